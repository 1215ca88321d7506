// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "archive/store/load_tally.h"
#include "archive/store/saved_name.h"

namespace rbt {

/// The words of the tallies that can be saved.
std::vector<std::string> SavedWords();

/// The setting 定尺13有無: whose tallies the lists hold.
bool Has13m();

/// The saved tallies of a kind at the bound site, the newest first.
std::vector<SavedTally> ListOfKind(TallyKind kind);
/// Those of the kind of a word, once the site is open.
std::vector<SavedTally> ListOfWord(const std::string& word);

/// The newest of a list by its name; one that is not there throws `database`.
const SavedTally& RequireSaved(const std::vector<SavedTally>& list, const std::string& name);

/// A name that is refused throws `database` with the words of the refusal.
void RequireName(const std::optional<NameRefusal>& refusal);

/// Loads the newest of a kind by its name, once the site is open, which is let go. One that is not there, or
/// is without rows, throws `database`.
LoadedTally LoadNamed(const std::string& word, const std::string& name);

}  // namespace rbt
