// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "data/shape_filter.h"
#include "tally/rows/bar_row.h"

namespace rbt {

/// How the floor and part tallies take a row in; both do it alike.
struct ShareRules {
  /// Left out: bars, weight and welds of shape 87 are, its threads, plates and cuts are not. To show it alone
  /// is up to the statement.
  ShapeFilter hoops = ShapeFilter::with_others;
  bool count_hoop_welds = true;  ///< setting 溶接フープの圧接数; false: shape 87 has weight but no welds
};

/// A count of fittings and the diameter row that it is filed under; nothing to count asks for no row.
struct FittingShare {
  int row = 0;
  std::optional<std::int32_t> count;

  friend bool operator==(const FittingShare&, const FittingShare&) = default;
};

/// What one row of the schedule adds to its floor and part.
struct RowShare {
  int part = 0;    ///< 1 to 11
  int row = 0;     ///< diameter row, 0 to 17
  int column = 0;  ///< stock column, 0 to 18
  std::optional<std::int32_t> bars;
  std::optional<double> installed_kilograms;  ///< (合計 x kilograms a metre) x metres of one piece
  FittingShare welds;                         ///< filed under the thicker of two diameters
  FittingShare threads;                       ///< of threaded bars alone
  FittingShare plates;
  FittingShare cuts;

  friend bool operator==(const RowShare&, const RowShare&) = default;
};

/// The share of a row; nothing for a row whose diameter or stock length has no place in the tables. A weld or
/// cut at a diameter that is not deformed has row -1. Faults: `subscript out of range` for a 部位 below 0.
std::optional<RowShare> ShareOf(const BarRow& row, const ShareRules& rules);

/// True for the rows that hold Ulbon.
bool IsThinRow(int diameter_row);

}  // namespace rbt
