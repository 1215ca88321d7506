// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "shell/live/saved_here.h"
#include "store/database.h"

namespace rbt {

/// What was saved in a working copy, and what it has had from the copy in the other place: a file has two of
/// them where its folder could not be written for a time.
struct SavedAndJoined {
  SavedHere saved;
  /// Digests of the tallies that the other copy held when they were joined, and of how that copy stood.
  std::set<std::string> joined;
};

SavedAndJoined ReadSavedAndJoined(Database& working_copy);
/// Notes it in a copy in which nothing of the kind is noted yet, or beside what is.
void NoteJoined(Database& working_copy, const std::set<std::string>& joined);

/// The tallies of the other copy that this one has neither now nor had before.
std::vector<KeptTally> LackingTallies(const SavedAndJoined& copy, const SavedAndJoined& other);
/// Adds them.
void Join(SavedAndJoined& copy, const SavedAndJoined& other);
/// Whatever their order.
bool HaveSameTallies(const SavedAndJoined& a, const SavedAndJoined& b);

/// How another copy stands.
struct Standing {
  std::string digest;    ///< for `SavedAndJoined::joined`; empty where there is none
  bool settled = false;  ///< its next change cannot look the same
};
Standing StandingOf(const std::filesystem::path& other);
/// True where the other copy holds nothing that a working copy has not looked at, or is not there.
bool HasJoined(Database& working_copy, const std::filesystem::path& other);

}  // namespace rbt
