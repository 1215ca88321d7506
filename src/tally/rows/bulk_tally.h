// SPDX-License-Identifier: MIT
#pragma once

#include "tally/closing_sums.h"
#include "tally/rows/row_fold.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

/// How the bulk tally takes rows in under a selection, and how it closes its sums, by the settings as they
/// stand.
RowRules BulkRowRules(const SelectionData& selection);
ClosingRules BulkClosingRules();

/// Tallies the whole site under the selection into `TallyGrid` and sets the presence flags of `RunState`.
/// `SiteContext.WorkDatabase` must be open. It is of that site alone, also while sites are being added up:
/// their sum is `SumOfSites`. A fault ends it and leaves `TallyGrid` empty.
void Jyuuryo_Syukei();

}  // namespace rbt
