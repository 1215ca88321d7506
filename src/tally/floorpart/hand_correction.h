// SPDX-License-Identifier: MIT
#pragma once

#include "tally/floor_tables.h"
#include "tally/part_tables.h"

namespace rbt {

/// Puts a weight into a cell of the list and sums the row, its column and the grand total afresh from what is
/// listed; counts and weights by diameter and stock length stay as tallied. `list_row` counts from 0. Faults:
/// `subscript out of range` for the total row and for a part outside 1 to 11, `overflow` of a sum; they leave
/// the tables as they are.
void CorrectCell(FloorTables& tables, int list_row, int part, Currency kilograms);
/// The same of the part tally, whose gap row has no cells either.
void CorrectCell(PartTables& tables, int list_row, int part, Currency kilograms);

/// True for a cell that a hand may correct.
bool MayCorrect(const FloorTables& tables, int list_row, int part);
bool MayCorrect(const PartTables& tables, int list_row, int part);

}  // namespace rbt
