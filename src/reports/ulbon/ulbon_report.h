// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"

namespace rbt {

/// The Ulbon weights of a result of the bound site, on one page of A4 landscape. The percentage raises the
/// rows; totals stand as tallied. Returns the figures that its fields cut.
CutFigures Ulbon_Report(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result);

/// The same without the global state but the own-company data.
CutFigures DrawUlbonReport(PrinterSurface& Printer, const ReportSite& site, const ReportArguments& arguments,
                           const TallyTable& table);

/// Whole kilograms of Ulbon row `d` (12..17) on the sheet, spirals included, raised by `percent`: in fixed
/// point but for the percentage. Faults: subscript out of range, overflow.
Currency UlbonRowWeight(const TallyTable& table, int d, std::int32_t percent);

}  // namespace rbt
