// SPDX-License-Identifier: MIT
#include "tally/part_tables.h"

namespace rbt {

PartTables PartTally;

}  // namespace rbt
