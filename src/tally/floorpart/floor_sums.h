// SPDX-License-Identifier: MIT
#pragma once

#include "tally/floor_tables.h"
#include "tally/floorpart/column_run.h"

namespace rbt {

/// Raises the bars by a ratio (0.1 for 10 percent) in the columns in use; the others keep theirs. Of deformed
/// bars each cell is raised and the floors are the sums of their cells; of Ulbon cells and floors are each
/// raised from their own count, so that the parts need not add up to the floor. `SouHonsu` is the sum of the
/// floors and 0 outside the columns in use. No fitting is raised. Faults: `overflow`.
void RaiseFloorBars(FloorTables& tables, double ratio, ColumnRun columns);

/// `KaiHonsu` and `SouHonsu` anew from `KaiBuiHonsu`. Faults: `overflow`.
void SumFloorBars(FloorTables& tables);

/// How the weights of a floor tally are closed.
struct FloorClosing {
  bool installed_cells = false;  ///< deformed cells show the installed weight that the walk left, else stock
  bool installed_sums = false;   ///< the second set of sums is filled, from the same cells
  double uplift = 0.0;           ///< ratio that Ulbon weights are raised by; deformed ones never are
  ColumnRun columns = {};
};

/// Brings every cell in use to whole kilograms and sums the cells into all tables by floor, part and
/// diameter. Stock weight by diameter of deformed bars is worked out from the count of all floors.
void CloseFloorSums(FloorTables& tables, const FloorClosing& closing);

}  // namespace rbt
