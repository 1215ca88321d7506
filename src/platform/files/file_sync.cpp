// SPDX-License-Identifier: MIT
#include "platform/files/file_sync.h"

#include <fcntl.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/failure_log.h"
#include "platform/files/files.h"
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

void MakeFolders(const fs::path& folder) {
  std::error_code error;
  if (folder.empty() || fs::is_directory(folder, error)) return;
  const fs::path above = FolderOf(folder);
  if (above != folder) MakeFolders(above);
  fs::create_directory(folder, error);
  if (error) throw FileFault(folder, "cannot be made", error.value());
  SyncFolder(above);
}

MadeFolder::MadeFolder(fs::path folder) : path_(std::move(folder)), made_(!IsTaken(path_)) {
  MakeFolders(path_);
}

MadeFolder::~MadeFolder() {
  std::error_code error;
  if (made_) fs::remove(path_, error);
  if (error && error != std::errc::directory_not_empty) {
    LogFailure(FileFault(path_, "cannot be removed", error.value()).what());
  }
}

}  // namespace rbt
