// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tally/engine/stock_engine.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

/// Cell texts of a grid, row by row; every row has one cell per column.
using GridRows = std::vector<std::vector<std::string>>;

/// Columns of the result grid: diameter, stock weight, installed weight, difference, welds, cuts.
inline constexpr std::array<std::string_view, 6> kResultCaptions = {"太    さ", "定尺重量", "取付重量",
                                                                    "差    引", "圧    接", "切    断"};

/// How a result grid shows a tally.
struct GridView {
  bool show_ulbon_only = false;
  double percent = 0.0;                          ///< uplift of the Ulbon rows and of the grand total
  std::array<std::string, 12> grade_names = {};  ///< steel grade of D10 to D51 at this site
};

/// The rows of a result grid, texts as they stand in the cells. The selection decides the total row's label
/// and whether Ulbon and spiral rows belong to it; the grand total is the sum of what the grid shows.
GridRows ShowTally(const TallyTable& table, const SelectionData& selection, const GridView& view);
/// Which of those rows are sums of others, counted from 0.
std::vector<std::size_t> TotalRowsOfTally(const TallyTable& table, const SelectionData& selection,
                                          const GridView& view);
/// One call of the stock-length engine as a row: bars, pieces per bar, metres.
inline constexpr std::array<std::string_view, 3> kStockCaptions = {"本数", "切本数", "定尺"};
GridRows StockRows(const StockResult& stock);

}  // namespace rbt
