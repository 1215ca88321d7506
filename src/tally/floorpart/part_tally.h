// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "tally/floorpart/column_run.h"
#include "tally/floorpart/row_share.h"
#include "tally/part_tables.h"

namespace rbt {

/// What a part tally is made of beside the schedule. Deformed bars always show stock weight.
struct PartRules {
  ShareRules rows = {};
  double uplift = 0.0;  ///< a ratio
  ColumnRun columns = {};
};

/// Adds one row of the schedule. Faults, which name the row's page and line: `subscript out of range` for a
/// part below 0 and a fitting at no deformed diameter; `overflow` of a count.
void FoldPartRow(PartTables& tables, const BarRow& row, const PartRules& rules);
/// Raises, rounds and sums what the rows left.
void ClosePartTally(PartTables& tables, const PartRules& rules);

/// Tallies the parts of the floors `start` to `end` and of the penthouse, the R floor and no floor where
/// their flag is not 0, under the selection, into `PartTally`. `Selection.KaiStart` is what the box of the
/// start holds: with 0 the foundation belongs to the rows. `SiteContext.WorkDatabase` must be open. A fault
/// ends it and leaves `PartTally` empty.
void Bui_Jyuuryo_Syukei(std::int16_t start, std::int16_t end, std::int16_t hasPH, std::int16_t hasR,
                        std::int16_t hasNone);

/// Works all weights and the list of `PartTally` out from a saved tally: its `BuiHonsu`, its fittings and the
/// weights of Ulbon in its `BuiJyuuryo`. No uplift: saved counts carry theirs.
void Bui_Jyuuryo_Syukei_Load();

}  // namespace rbt
