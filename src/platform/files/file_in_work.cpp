// SPDX-License-Identifier: MIT
#include "platform/files/file_in_work.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/failure_log.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/new_name.h"
#include "platform/files/system_error.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kMark = ".rbk-write-";

void WriteAll(const FileDescriptor& file, std::string_view bytes, const fs::path& name) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.Number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) throw FileFault(name, "cannot be written");
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void RequireWritable(const fs::path& file, const struct stat& status) {
  if (!S_ISREG(status.st_mode)) throw FileFaultText(file, "is no regular file");
  if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) throw FileFault(file, "cannot be written");
}

void LogLeftover(const fs::path& name, std::error_code error) {
  LogFailure(FileFault(name, "cannot be removed", error.value()).what());
}

void RemoveFile(const fs::path& name) {
  std::error_code error;
  fs::remove(name, error);
  if (error) LogLeftover(name, error);
}

}  // namespace

FileInWork::FileInWork(fs::path target)
    : target_(std::move(target)),
      path_(NewNameIn(FolderOf(target_), kMark)),
      read_only_(ReadOnlyTarget::refused) {}

FileInWork::FileInWork(fs::path target, const WorkPlace& place, ReadOnlyTarget read_only)
    : target_(std::move(target)), path_(place.NewName()), read_only_(read_only) {}

FileInWork::~FileInWork() {
  if (path_.empty()) return;
  RemoveFile(path_);
  // A database that could not be rolled back leaves its journal.
  path_ += "-journal";
  RemoveFile(path_);
}

void FileInWork::Write(std::string_view bytes) {
  FileDescriptor file(::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file.IsOpen()) throw FileFault(target_, "cannot write a file in its folder");
  TakeOverPermissions(file);
  WriteAll(file, bytes, target_);
  Sync(file, target_);
  if (file.Close() != 0) throw FileFault(target_, "cannot be written");
  complete_ = true;
}

void FileInWork::TakeOverPermissions(const FileDescriptor& file) const {
  struct stat old {};
  if (::stat(target_.c_str(), &old) != 0) {
    if (errno == ENOENT) return;
    throw FileFault(target_, "cannot be replaced");
  }
  if (read_only_ == ReadOnlyTarget::refused) RequireWritable(target_, old);
  struct stat fresh {};
  if (::fstat(file.Number(), &fresh) != 0) throw FileFault(target_, "cannot be replaced");
  // Only the superuser gives files away; for anyone else the file becomes his own, as with any editor.
  if ((fresh.st_uid != old.st_uid || fresh.st_gid != old.st_gid) &&
      ::fchown(file.Number(), old.st_uid, old.st_gid) != 0 && errno != EPERM) {
    throw FileFault(target_, "cannot keep its owner");
  }
  const mode_t to_be_written = read_only_ == ReadOnlyTarget::replaced ? S_IRUSR | S_IWUSR : 0;
  if (::fchmod(file.Number(), (old.st_mode & 07777) | to_be_written) != 0) {
    throw FileFault(target_, "cannot keep its permissions");
  }
}

void FileInWork::Complete() {
  if (complete_) return;
  const FileDescriptor file(::open(path_.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) throw FileFault(target_, "cannot be put in place");
  TakeOverPermissions(file);
  Sync(file, target_);
  complete_ = true;
}

void FileInWork::PutInPlace() {
  if (IsTaken(target_)) throw FileFaultText(target_, kIsThereAlready);
  Complete();
  if (LinkFile(path_, target_)) {
    RemoveFile(path_);
  } else {
    if (IsTaken(target_)) throw FileFaultText(target_, kIsThereAlready);
    if (::rename(path_.c_str(), target_.c_str()) != 0) throw FileFault(target_, "cannot be put in place");
  }
  path_.clear();
  SyncFolder(FolderOf(target_));
}

void FileInWork::Replace() {
  Complete();
  if (::rename(path_.c_str(), target_.c_str()) != 0) throw FileFault(target_, "cannot be put in place");
  path_.clear();
  SyncFolder(FolderOf(target_));
}

FolderInWork::FolderInWork(const WorkPlace& place) : path_(place.NewName()) {
  std::error_code error;
  fs::create_directory(path_, error);
  if (error) throw FileFault(path_, "cannot be made", error.value());
}

FolderInWork::~FolderInWork() {
  if (path_.empty()) return;
  std::error_code error;
  fs::remove_all(path_, error);
  if (error) LogLeftover(path_, error);
}

void FolderInWork::PutInPlace(const fs::path& target) {
  SyncFolder(path_);
  std::error_code error;
  fs::rename(path_, target, error);
  if (error) throw FileFault(target, "cannot be put in place", error.value());
  path_.clear();
  SyncFolder(FolderOf(target));
}

bool LinkFile(const fs::path& file, const fs::path& name) {
  if (::link(file.c_str(), name.c_str()) == 0) return true;
  if (errno == EEXIST) throw FileFaultText(name, kIsThereAlready);
  if (errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK) return false;
  throw FileFault(name, "cannot be made");
}

}  // namespace rbt
