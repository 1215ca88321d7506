// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "shell/config/settings.h"
#include "tally/detail/detail_cell.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// How the grid of the purchase list is laid out, by the settings 明細画面重量表示 and 定尺13有無: each
/// diameter has a line of counts, with weights a line of those below it.
struct DetailLayout {
  bool with_weights = false;
  bool with_13m = false;

  friend bool operator==(const DetailLayout&, const DetailLayout&) = default;
};

/// As the settings have it.
DetailLayout DetailLayoutOf(const SettingsData& settings);
/// The stock columns of the grid.
int StockColumnsOf(const DetailLayout& layout);

/// Captions of the columns: diameter and what a line holds, which are not named where there are two lines,
/// the stock lengths, weight, welds, threads, plates, cuts.
std::vector<std::string_view> DetailCaptions(const DetailLayout& layout);

/// The lines of D10 to D51, in which zeros are left empty, and two lines of totals: bars by length with the
/// fittings, then weights by length, each cell as whole kilograms, with the total stock weight.
GridRows DetailRows(const TallyTable& table, const DetailLayout& layout);

/// The cell that a user may correct at a line and column of the grid, both from 0; nothing for labels,
/// weights and totals.
std::optional<DetailCell> CellAt(const DetailLayout& layout, int line, int column);

}  // namespace rbt
