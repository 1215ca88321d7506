// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt {

/// The folder that a file stands in; "." where its path names none.
std::filesystem::path FolderOf(const std::filesystem::path& file);

/// Sees what was written to a file through to the disk. Throws `file`.
void SyncFile(const std::filesystem::path& file);
/// Makes the names in a folder, new ones and those that went, last beyond a power cut. Throws `file`.
void SyncFolder(const std::filesystem::path& folder);

}  // namespace rbt
