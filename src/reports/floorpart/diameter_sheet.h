// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/diameters.h"
#include "platform/numbers/checked_array.h"
#include "reports/frame/head_layout.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_pen.h"
#include "shell/context/reference_names.h"
#include "tally/diameter_figures.h"

namespace rbt {

/// Sheets of diameters side by side, seven on a page, each with its stock bars by length and the sums below:
/// of one floor, of the whole range, of one part.

using FiguresByDiameter = CheckedArray<DiameterFigures, kDiameterRows>;

struct DiameterSheet {
  const HeadLayout& layout;
  ReportHead head = {};
  std::string tells_of = {};  ///< before the names of figures that are cut: "12階 "
  FiguresByDiameter figures = {};
  BarOrigins origins = {};
  bool thin = false;           ///< U6 to U16, on one page
  bool thick = false;          ///< a second page for D32 to D51
  bool with_13m = false;       ///< there is a row of 13.0 m, and that of 3.5 m is empty
  bool with_weights = true;    ///< of bars by length
  bool with_installed = true;  ///< the row 取重
};

/// True where a diameter of the second page has weight.
bool HasThickBars(const FiguresByDiameter& figures);

/// Draws a sheet as one document and returns the figures that its fields cut.
CutFigures DrawDiameters(PrinterSurface& Printer, const DiameterSheet& sheet);

}  // namespace rbt
