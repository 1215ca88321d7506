// SPDX-License-Identifier: MIT
#include "tally/floor_tables.h"

namespace rbt {

FloorTables FloorTally;

}  // namespace rbt
