// SPDX-License-Identifier: MIT
#pragma once

#include "reports/floorpart/diameter_sheet.h"
#include "tally/floor_tables.h"
#include "tally/floorpart/column_run.h"
#include "tally/part_tables.h"

namespace rbt {

/// What the sheets of diameters show of a tally.

/// Of one floor: stock weight whatever weight the tally shows; installed weight where it shows that.
FiguresByDiameter FiguresOfFloor(const FloorTables& tables, int floor_code, ColumnRun columns);
/// Of all floors together.
FiguresByDiameter FiguresOfRange(const FloorTables& tables);
/// Of one part, 1 to 11. There is no installed weight.
FiguresByDiameter FiguresOfPart(const PartTables& tables, int part);

}  // namespace rbt
