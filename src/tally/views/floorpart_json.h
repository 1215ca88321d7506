// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "tally/floor_tables.h"
#include "tally/part_tables.h"

namespace rbt {

/// The tables as one JSON object, one field a line, closed by a line feed. A table lists its entries other
/// than 0 as their indices and the value, in ascending order of the indices; the list of the screen stands as
/// [label, part 1 ... part 11, total] row by row.
std::string FloorJson(const FloorTables& tables);
std::string PartJson(const PartTables& tables);

}  // namespace rbt
