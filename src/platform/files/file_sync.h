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

/// Makes a folder and those above it that are missing, so that they last beyond a power cut. Throws `file`.
void MakeFolders(const std::filesystem::path& folder);

/// A folder that is made if need be; when it was made and is still empty, it goes again with the object.
class MadeFolder {
 public:
  /// Throws `file`.
  explicit MadeFolder(std::filesystem::path folder);
  MadeFolder(const MadeFolder&) = delete;
  MadeFolder& operator=(const MadeFolder&) = delete;
  ~MadeFolder();

 private:
  std::filesystem::path path_;
  bool made_;
};

}  // namespace rbt
