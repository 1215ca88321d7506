// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt::jet {

/// Throws `file` when `KeepUnder` may not use the name: something else than the file itself stands there.
void RequireKeepable(const std::filesystem::path& original, const std::filesystem::path& kept);
/// Gives a file a second name beside it, or a copy where the file system has no second names; one that an
/// earlier run has left will do. True when it was made now. Throws `file`.
bool KeepUnder(const std::filesystem::path& original, const std::filesystem::path& kept);

}  // namespace rbt::jet
