// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "tally/selection.h"

namespace rbt {

/// The statement that the presence probes ask: the rows of the selected forms and kinds.
std::string BulkStatementSoFar(const SelectionData& selection);
/// The statement of the bulk tally: the same with the hoops or the anchor plates alone, or without the
/// plates, as the modes say. `has_hoop_rows` is the probe's answer.
std::string BulkStatement(const SelectionData& selection, bool has_hoop_rows);

}  // namespace rbt
