// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "tally/tally_grid.h"

namespace rbt {

/// Tallies the whole site under the selection into `TallyGrid` and sets the presence flags of `RunState`.
/// `SiteContext.WorkDatabase` must be open. A fault ends it and leaves `TallyGrid` empty.
void Jyuuryo_Syukei();

/// Brings the accumulated values of other sites into an empty table, instead of starting from nothing.
using AccumulationLoader = std::function<void(TallyTable& table)>;
/// What `Jyuuryo_Syukei` calls while `AccumulateFlag` is set; start-up hands it down.
void SetAccumulationLoader(AccumulationLoader loader);

}  // namespace rbt
