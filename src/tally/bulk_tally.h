// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

/// The statement that the presence probes ask: the rows of the selected forms and kinds.
std::string BulkStatementSoFar(const SelectionData& selection);
/// The statement of the bulk tally: the same with the hoops or the anchor plates alone, or without the
/// plates, as the modes say. `has_hoop_rows` is the probe's answer.
std::string BulkStatement(const SelectionData& selection, bool has_hoop_rows);

/// Tallies the whole site under the selection into `TallyGrid` and sets the presence flags of `RunState`.
/// `SiteContext.WorkDatabase` must be open. A fault ends it and leaves `TallyGrid` empty.
void Jyuuryo_Syukei();

/// Brings the accumulated values of other sites into an empty table, instead of starting from nothing.
using AccumulationLoader = std::function<void(TallyTable& table)>;
/// What `Jyuuryo_Syukei` calls while `AccumulateFlag` is set; start-up hands it down.
void SetAccumulationLoader(AccumulationLoader loader);

}  // namespace rbt
