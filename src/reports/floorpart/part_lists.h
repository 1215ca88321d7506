// SPDX-License-Identifier: MIT
#pragma once

#include "platform/print/printer_surface.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_result.h"
#include "tally/views/floorpart_grid.h"

namespace rbt {

/// What the sheets of floors and parts are drawn from, beside the result.
struct SheetSite {
  ReportSite site = {};
  PartNames parts = {};
  bool with_13m = false;  ///< bars of 13.0 m are in use
};
/// That of the bound site, under the setting 定尺13有無.
SheetSite ReadSheetSite();

/// 階別合計数量表: a line for each listed floor, with weight or not, a column for each part, 19 floors on a
/// page. The total stands below the last floor, whatever the page holds.
CutFigures DrawFloorTotals(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                           const TallyResult& result);

/// 部位別合計数量表: a line for each deformed diameter, or for each thin one where these were tallied alone,
/// a column for each part, on one page.
CutFigures DrawPartTotals(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                          const TallyResult& result);

}  // namespace rbt
