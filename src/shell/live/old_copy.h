// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

#include "shell/live/joined_saved.h"
#include "shell/live/working_copy.h"

namespace rbt {

/// A working copy whose contents go elsewhere; nobody writes it while this lives.
class OldCopy {
 public:
  /// What was saved in it. Nothing where there is none, or where it cannot be read as one. Throws `locked`.
  std::optional<SavedAndJoined> TakeFrom(const std::filesystem::path& copy);

 private:
  void KeepFromWriting(Database& database);

  std::optional<OpenedCopy> open_;
  std::optional<Transaction> nobody_writes_;
};

}  // namespace rbt
