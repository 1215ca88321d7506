// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "tally/detail/detail_cell.h"
#include "tally/tally_result.h"

namespace rbt {

/// What a user changes in the purchase list. Each change gives a new table, so that a fault leaves the old
/// one as it was. `columns` are the stock columns in use (`StockColumnsInUse`): a 13.0 m column that is off
/// keeps its bars and belongs to no sum. Installed weights and the loss rate stay as tallied.

/// The bars of D10 to D51 raised by `percent`, which may be negative: the uplift of each cell is rounded half
/// up on its own, upon what the cell holds now. Cells become whole kilograms, and the sums of stock weight
/// are made anew. Faults: `overflow` for a count or weight that becomes too large.
TallyTable WithBarsRaised(TallyTable table, double percent, int columns);
/// A count written into a cell: that of bars brings its cell to whole kilograms and its diameter's stock
/// weight to the sum of the cells as the closing sums make it; the totals of stock weight and fittings are
/// made anew. Faults: `subscript out of range`, `overflow`.
TallyTable WithCellCorrected(TallyTable table, const DetailCell& cell, std::int32_t count, int columns);

/// The same on a result. A counted one becomes raised; what was corrected by hand stays so, and any result
/// becomes corrected by a correction.
TallyResult RaiseBars(TallyResult result, double percent, int columns);
TallyResult CorrectCell(TallyResult result, const DetailCell& cell, std::int32_t count, int columns);

}  // namespace rbt
