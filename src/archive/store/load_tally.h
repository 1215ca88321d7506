// SPDX-License-Identifier: MIT
#pragma once

#include "archive/store/saved_tallies.h"
#include "tally/tally_result.h"

namespace rbt {

/// A saved tally as it comes back.
struct LoadedTally {
  TallyResult result;  ///< its origin is `loaded`
  SavedMemos memos;
  bool has_rows = false;  ///< false: the result is empty
};

/// Reads a saved tally into the place of the current result and its masks, hoops and floors into the
/// selection. Of a bulk, shape or page tally the totals are the sums of what was read; Ulbon and spirals are
/// not kept. Of a floor or part tally every sum is worked out from its cells, in stock weight. A tally
/// without rows leaves that place empty and the selection as it is; so does a fault.
LoadedTally LoadTally(Database& site, const SavedTally& saved, bool with_13m);

}  // namespace rbt
