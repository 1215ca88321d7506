// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "store/database.h"
#include "tally/floor_tables.h"
#include "tally/floorpart/column_run.h"
#include "tally/floorpart/floor_list.h"
#include "tally/floorpart/row_share.h"
#include "tally/selection.h"

namespace rbt {

/// What a floor tally is made of beside the schedule.
struct FloorRules {
  ShareRules rows = {};
  bool installed = false;  ///< setting 階別集計定取 is 1: deformed bars show installed weight
  double uplift = 0.0;     ///< a ratio
  ColumnRun columns = {};
};

/// Adds one row of the schedule that stands on a floor (階). Faults, which name the row's page and line:
/// `subscript out of range` for a floor outside -5 to 78, a part below 0, a fitting at no deformed diameter;
/// `overflow` of a count; `invalid use of null` for no floor.
void FoldFloorRow(FloorTables& tables, const BarRow& row, std::optional<std::int32_t> floor,
                  const FloorRules& rules);
/// Raises, rounds and sums what the rows left.
void CloseFloorTally(FloorTables& tables, const FloorRules& rules);

/// The floors of a selection.
FloorScope FloorScopeOf(const SelectionData& selection);

/// Tallies the floors of the selection into `FloorTally`. `SiteContext.WorkDatabase` must be open. A fault
/// ends it and leaves `FloorTally` empty.
void Kai_Jyuuryo_Syukei();

/// Works all weights and the list of `FloorTally` out from a saved tally: its `KaiBuiHonsu`, its fittings,
/// the weights of Ulbon in its `KaiBuiJyuuryo`, and the floors of the selection. Deformed bars show stock
/// weight whatever the setting; the second set of sums follows it. No uplift: saved counts carry theirs.
void Kai_Jyuuryo_Syukei_Load();

}  // namespace rbt
