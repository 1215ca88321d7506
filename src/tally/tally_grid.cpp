// SPDX-License-Identifier: MIT
#include "tally/tally_grid.h"

namespace rbt {

TallyTable TallyGrid;

}  // namespace rbt
