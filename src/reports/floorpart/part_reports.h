// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"

namespace rbt {

/// The reports of a part tally of the bound site, A4 landscape. They return the figures that their fields
/// cut.

/// The diameters by part.
CutFigures Bui_Goukei_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);
/// All parts on one page, weights and welds.
CutFigures Bui_Zenbui_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result);
/// The part of the arguments by diameter and stock length, its frame where it has no weight.
CutFigures Bui_Kakubui_Print(PrinterSurface& Printer, const ReportArguments& arguments,
                             const TallyResult& result);

}  // namespace rbt
