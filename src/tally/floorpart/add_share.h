// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "tally/floor_tables.h"
#include "tally/floorpart/row_share.h"
#include "tally/part_tables.h"

namespace rbt {

/// Which weight a cell of deformed bars collects while the rows are walked. Cells of Ulbon collect installed
/// weight in every tally.
enum class CellWeight { none, stock, installed };

/// Adds the share of a row of floor `f` (`FloorIndex` of its 階), to the counts and to the cell's weight.
/// Faults: `subscript out of range` for a fitting without a row, `overflow` of a count.
void AddShare(FloorTables& tables, int f, const RowShare& share, CellWeight deformed);
/// The same without a floor.
void AddShare(PartTables& tables, const RowShare& share, CellWeight deformed);

}  // namespace rbt
