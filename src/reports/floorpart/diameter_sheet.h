// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/currency.h"
#include "reports/frame/head_layout.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_pen.h"

namespace rbt {

/// Sheets of diameters side by side, seven on a page, each with its stock bars by length and the sums below:
/// of one floor, of the whole range, of one part.

/// What such a sheet tells of one diameter; weights are kilograms.
struct DiameterFigures {
  CheckedArray<std::int32_t, kStockColumns> bars;
  CheckedArray<Currency, kStockColumns> weights;
  Currency stock;
  Currency installed;
  std::int32_t welds = 0;
  std::int32_t threads = 0;
  std::int32_t plates = 0;
  std::int32_t cuts = 0;
};
using FiguresByDiameter = CheckedArray<DiameterFigures, kDiameterRows>;

/// What stands beside the names of D10 to D51.
struct BarOrigins {
  std::array<std::string, kDeformedRows> grades = {};
  std::array<std::string, kDeformedRows> makers = {};
};
/// Those of the bound site.
BarOrigins ReadBarOrigins();

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
