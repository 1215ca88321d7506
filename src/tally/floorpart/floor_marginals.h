// SPDX-License-Identifier: MIT
#pragma once

#include "platform/numbers/currency.h"
#include "tally/floor_tables.h"
#include "tally/floorpart/column_run.h"

namespace rbt {

/// Sums of a floor tally that its tables do not hold, from the cells in use. F, P, R, C as in `FloorTables`.

/// Stock weight of a floor, diameter and stock length: its parts together.
Currency StockOfFloor(const FloorTables& tables, int f, int r, int c);
/// Stock weight of a floor and diameter, whatever weight is shown.
Currency StockOfFloor(const FloorTables& tables, int f, int r, ColumnRun columns);

/// The weight that is shown of a floor, part and diameter.
Currency WeightOfFloorPart(const FloorTables& tables, int f, int p, int r, ColumnRun columns);
/// ... of a part and diameter on all floors.
Currency WeightOfPart(const FloorTables& tables, int p, int r, ColumnRun columns);
/// ... of a diameter on all floors: the floors' own sums together.
Currency WeightOfDiameter(const FloorTables& tables, int r);

}  // namespace rbt
