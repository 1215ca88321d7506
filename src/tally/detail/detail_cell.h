// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

#include "data/bar_tables.h"
#include "tally/tally_grid.h"

namespace rbt {

/// The purchase list: of each deformed diameter (row 0 to 11) its stock bars by length, and its fittings.

/// Stock lengths in metres as the list writes them, by their column.
inline constexpr std::array<std::string_view, kStockColumns> kStockLengthTexts{
    "3.5", "4.0", "4.5", "5.0",  "5.5",  "6.0",  "6.5",  "7.0",  "7.5", "8.0",
    "8.5", "9.0", "9.5", "10.0", "10.5", "11.0", "11.5", "12.0", "13.0"};

/// A count that a diameter has once, for all lengths.
enum class Fitting { welds, threads, plates, cuts };
struct FittingWord {
  Fitting fitting;
  std::string_view word;     ///< on the command line
  std::string_view caption;  ///< of the grid's column
};
/// In the order of the grid's columns.
inline constexpr std::array<FittingWord, 4> kFittingWords{{{Fitting::welds, "weld", "圧 接"},
                                                           {Fitting::threads, "thread", "ｶﾌﾟﾗ"},
                                                           {Fitting::plates, "plate", "Ｄ Ｂ"},
                                                           {Fitting::cuts, "cut", "切 断"}}};
/// Faults: subscript out of range.
std::int32_t& FittingCount(TallyTable& table, int d, Fitting fitting);
std::int32_t FittingCount(const TallyTable& table, int d, Fitting fitting);
/// Of all diameters, as the tally has added them up.
std::int32_t FittingTotal(const TallyTable& table, Fitting fitting);

/// A cell that a user may correct: the bars of a diameter in a stock column, or one of its fittings.
struct BarCell {
  int d = 0;
  int l = 0;

  friend bool operator==(const BarCell&, const BarCell&) = default;
};
struct FittingCell {
  int d = 0;
  Fitting fitting = Fitting::welds;

  friend bool operator==(const FittingCell&, const FittingCell&) = default;
};
using DetailCell = std::variant<BarCell, FittingCell>;

}  // namespace rbt
