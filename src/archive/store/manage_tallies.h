// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "archive/store/saved_tallies.h"

namespace rbt {

/// Deletes a saved tally with all its rows, whatever its kind, as one transaction. One that is gone by now
/// throws `database`.
void DeleteTally(Database& site, const SavedTally& saved);

/// Gives a saved tally another name, trimmed and not empty, likewise.
void RenameTally(Database& site, const SavedTally& saved, std::string_view name);

}  // namespace rbt
