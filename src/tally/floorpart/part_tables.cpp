// SPDX-License-Identifier: MIT
#include "tally/floorpart/part_tables.h"

namespace rbt {

PartTables PartTally;

}  // namespace rbt
