// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt::jet {

/// True when the lock file of a database (`NAME.ldb` beside it, letter case ignored) is there and some of its
/// bytes are locked: somebody has the database open.
bool IsOpenElsewhere(const std::filesystem::path& database);

}  // namespace rbt::jet
