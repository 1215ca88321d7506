// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_tables.h"

namespace rbt {

FloorTables FloorTally;

}  // namespace rbt
