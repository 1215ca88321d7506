// SPDX-License-Identifier: MIT
#pragma once

#include "tally/closing_sums.h"

namespace rbt {

/// Tallies the whole site under the selection into `TallyGrid` and sets the presence flags of `RunState`.
/// `SiteContext.WorkDatabase` must be open. It is of that site alone, also while sites are being added up:
/// their sum is `SumOfSites`. A fault ends it and leaves `TallyGrid` empty.
void Jyuuryo_Syukei();

/// What the settings say of the closing of bulk sums.
ClosingRules BulkClosingRules();

}  // namespace rbt
