// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "data/calc_choice.h"
#include "data/shape_filter.h"
#include "tally/rows/bar_row.h"
#include "tally/tally_grid.h"

namespace rbt {

/// How a tally by rows takes a row in. The bulk tally, the page and line tally and the tally of registered
/// names share the rule of a row; where they differ they do so on purpose, and the field says how.
struct RowRules {
  /// Left out: bars and welds of shape 87 are, its other counts are not. To show it alone is up to the
  /// statement.
  ShapeFilter hoops = ShapeFilter::with_others;
  bool count_hoop_welds = true;  ///< setting 溶接フープの圧接数; false: shape 87 has weight but no welds
  bool include_ulbon = true;  ///< looked at only where the stock length has a column

  /// Bulk: a deformed row whose stock length has no column adds its welds, threads, plates and cuts only when
  /// the choice holds its kind. The other tallies do not look at the choice: nothing.
  std::optional<CalcChoice> counts_without_column_by_choice = std::nullopt;

  /// Such a row's installed length. Bulk puts it into the first column, so that a cell shows it, and takes
  /// 太さ 0 to be a fault of the schedule. The others keep it apart in `LengthWithoutColumnM`: the totals
  /// have it, no cell does, and a row without a diameter gives only the warning.
  bool length_without_column_in_first_cell = true;

  /// Bulk works an Ulbon diameter's weight out anew from all its metres with every row. The others add the
  /// weight of a row without a column, rounding as they go.
  bool ulbon_weight_from_all_metres = true;
};

/// Adds one row of the schedule to the table. Null adds nothing. Faults: `subscript out of range` for a
/// diameter that belongs to no row, `overflow` of a count; both name the row's page and line.
void FoldRow(TallyTable& table, const BarRow& row, const RowRules& rules);

}  // namespace rbt
