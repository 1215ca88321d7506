// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"

namespace rbt {

/// The comparison reports, 重量対比表: a result of the bound site on one page. Kind A shows stock and
/// installed weight with their difference, B the stock weight, C the installed weight; A4T is A4 portrait,
/// A4Y A4 landscape, B5Y B5 landscape. They return the figures that their fields cut.
CutFigures Taihi_A_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_A_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_A_B5Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_B_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_B_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_B_B5Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_C_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_C_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);
CutFigures Taihi_C_B5Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);

}  // namespace rbt
