// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "archive/store/saved_cells.h"
#include "archive/store/saved_tallies.h"
#include "tally/tally_result.h"

namespace rbt {

/// What a tally is saved with.
struct SaveOrder {
  SavedKey key;
  std::string name;       ///< trimmed, not empty
  SavedMemos memos = {};  ///< an empty one is kept as null
  BarOrigins supply;
  bool with_13m = false;  ///< the 13.0 m column is in use
};

/// True when the totals of a result were corrected by hand, as a saved tally of floors or parts never is.
bool WasCorrected(const TallyResult& result);

/// Saves a tally under a name: its rows, then that name, as one transaction. `replaced`, tallies of that
/// name, go with it: their names and their rows of bulk, shape and page tallies; the rows of floors and parts
/// stay behind, where no list leads to them. False, with nothing written, for a tally without figures. A
/// fault, such as that of a second save in one second, leaves the site as it was.
bool SaveTally(Database& site, const TallyResult& result, const SaveOrder& order,
               std::span<const SavedTally> replaced = {});

}  // namespace rbt
