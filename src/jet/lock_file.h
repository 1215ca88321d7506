// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace rbt::jet {

/// What the lock file of a database (`NAME.ldb` beside it, letter case ignored) tells: that somebody has the
/// database open, or that the file is there and nobody on this machine holds it. Nothing where there is none.
std::optional<std::string> NoteOnLockFile(const std::filesystem::path& database);

/// True when the lock file of a database (`NAME.ldb` beside it, letter case ignored) is there and some of its
/// bytes are locked: somebody has the database open.
bool IsOpenElsewhere(const std::filesystem::path& database);

}  // namespace rbt::jet
