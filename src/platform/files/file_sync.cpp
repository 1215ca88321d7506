// SPDX-License-Identifier: MIT
#include "platform/files/file_sync.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/files/file_descriptor.h"
#include "platform/files/system_error.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

void Sync(const fs::path& path, int flags) {
  const FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | flags));
  if (!descriptor.IsOpen()) throw FileFault(path, "cannot be synced");
  // Some network file systems do not sync folders and say so with EINVAL.
  if (::fsync(descriptor.Number()) != 0 && errno != EINVAL) throw FileFault(path, "cannot be synced");
}

}  // namespace

fs::path FolderOf(const fs::path& file) {
  const fs::path folder = file.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

void SyncFile(const fs::path& file) { Sync(file, 0); }

void SyncFolder(const fs::path& folder) { Sync(folder, O_DIRECTORY); }

}  // namespace rbt
