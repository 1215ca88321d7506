// SPDX-License-Identifier: MIT
#pragma once

#include "tally/floorpart/column_run.h"
#include "tally/part_tables.h"

namespace rbt {

/// Raises the part tally by a ratio (0.1 for 10 percent): the bars and the weight of Ulbon in the columns in
/// use, and every count of fittings from its own value, so that the parts need not add up to the diameter.
/// Faults: `overflow`.
void RaiseParts(PartTables& tables, double ratio, ColumnRun columns);

/// Works the weight of every deformed cell in use out from its bars, brings every cell in use to whole
/// kilograms, and sums bars and weights.
void ClosePartSums(PartTables& tables, ColumnRun columns);

}  // namespace rbt
