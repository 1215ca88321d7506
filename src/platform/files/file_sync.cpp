// SPDX-License-Identifier: MIT
#include "platform/files/file_sync.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/files/system_error.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kNotSynced = "cannot be synced";

}  // namespace

fs::path FolderOf(const fs::path& file) {
  const fs::path folder = file.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

void Sync(const FileDescriptor& open, const fs::path& name) {
  // Some network file systems do not sync folders and say so with EINVAL.
  if (::fsync(open.Number()) != 0 && errno != EINVAL) throw FileFault(name, kNotSynced);
}

void SyncFolder(const fs::path& folder) {
  const FileDescriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!open.IsOpen()) throw FileFault(folder, kNotSynced);
  Sync(open, folder);
}

}  // namespace rbt
