// SPDX-License-Identifier: MIT
#include "platform/jet/import/swap_in.h"

#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <system_error>
#include <unistd.h>

#include "platform/system/file_descriptor.h"
#include "platform/system/system_error.h"

namespace rbt::jet {

namespace fs = std::filesystem;

namespace {

fs::path FolderOf(const fs::path& file) {
  const fs::path folder = file.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

void Sync(const fs::path& path, int flags) {
  const FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | flags));
  if (!descriptor.IsOpen()) throw FileFault(path, "cannot be synced");
  // Some network file systems do not sync folders and say so with EINVAL.
  if (::fsync(descriptor.Number()) != 0 && errno != EINVAL) throw FileFault(path, "cannot be synced");
}

void SyncFolder(const fs::path& file) { Sync(FolderOf(file), O_DIRECTORY); }

/// A second name for a file; false where the file system has no such thing.
bool Link(const fs::path& file, const fs::path& name) {
  if (::link(file.c_str(), name.c_str()) == 0) return true;
  if (errno == EEXIST) throw FileFaultText(name, "is there already and is not overwritten");
  if (errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS) return false;
  throw FileFault(name, "cannot be made");
}

void RequireFree(const fs::path& name) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(name, error))) {
    throw FileFaultText(name, "is there already and is not overwritten");
  }
}

void Rename(const fs::path& from, const fs::path& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) throw FileFault(to, "cannot be put in place");
}

}  // namespace

FileInWork::FileInWork(const fs::path& beside) {
  static std::atomic<unsigned> counter{0};
  std::error_code error;
  do {
    path_ = FolderOf(beside) /
            (".rbk-import-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".tmp");
  } while (fs::exists(fs::symlink_status(path_, error)));  // left behind by a process that was killed
}

FileInWork::~FileInWork() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

void FileInWork::PutInPlace(const fs::path& target) {
  Sync(path_, 0);
  if (!Link(path_, target)) {
    RequireFree(target);
    Rename(path_, target);
    path_.clear();
  }
  SyncFolder(target);
}

void FileInWork::PutInPlaceOf(const fs::path& original, const fs::path& kept) {
  Sync(path_, 0);
  if (!Link(original, kept)) {
    RequireFree(kept);
    Rename(original, kept);
  }
  SyncFolder(original);
  Rename(path_, original);
  path_.clear();
  SyncFolder(original);
}

}  // namespace rbt::jet
