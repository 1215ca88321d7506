// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/print/printer_surface.h"
#include "reports/detail/detail_layout.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "tally/tally_grid.h"

namespace rbt {

/// What a purchase list is drawn from.
struct DetailSheet {
  ReportSite site;
  ReportArguments arguments;
  const TallyTable& table;
  std::array<std::string, 12> grades = {};  ///< steel grade of D10 to D51
  std::string title = {};
  bool own_title = false;        ///< the user's own, which is spread
  bool with_13m = false;         ///< there is a row of 13.0 m
  bool empty_diameters = false;  ///< diameters without stock weight are listed too
};

/// Rows of the diameters that a sheet lists, in their order.
std::vector<int> ListedDiameters(const TallyTable& table, bool empty_diameters);

/// Draws a purchase list as one document: the diameters side by side, on as many pages as they take, with
/// head, frame and own company on each. Without a diameter there is one page with an empty frame. Returns the
/// figures that its fields cut.
CutFigures DrawDetail(PrinterSurface& Printer, const DetailPaper& form, const DetailSheet& sheet);

}  // namespace rbt
