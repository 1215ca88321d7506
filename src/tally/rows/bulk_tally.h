// SPDX-License-Identifier: MIT
#pragma once

#include "tally/tally_grid.h"

namespace rbt {

/// Tallies the whole site under the selection into `TallyGrid` and sets the presence flags of `RunState`.
/// `SiteContext.WorkDatabase` must be open. While `AccumulateFlag` is set it adds to what `LoadAccumulation`
/// brings. A fault ends it and leaves `TallyGrid` empty.
void Jyuuryo_Syukei();

}  // namespace rbt
