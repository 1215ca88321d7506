// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "platform/files/file_descriptor.h"

namespace rbt {

/// The folder that a file stands in; "." where its path names none.
std::filesystem::path FolderOf(const std::filesystem::path& file);

/// Sees what was written to an open file or folder through to the disk. Throws `file`, naming `name`.
void Sync(const FileDescriptor& open, const std::filesystem::path& name);
/// Makes the names in a folder, new ones and those that went, last beyond a power cut. Throws `file`.
void SyncFolder(const std::filesystem::path& folder);

}  // namespace rbt
