// SPDX-License-Identifier: MIT
#include "shell/live/copy_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/fault.h"
#include "platform/files/file_lock.h"
#include "platform/files/system_error.h"
#include "platform/system/patience.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

/// The one before takes the file away with its lock: then the name leads to another file, or to none.
bool IsNamed(const FileDescriptor& open, const fs::path& name) {
  struct stat locked {};
  struct stat named {};
  return ::fstat(open.Number(), &locked) == 0 && ::stat(name.c_str(), &named) == 0 &&
         locked.st_ino == named.st_ino && locked.st_dev == named.st_dev;
}

/// One that a killed program of another user has left locks as well for those who may only read it.
std::unique_ptr<FileDescriptor> OpenLockFile(const fs::path& file) {
  constexpr mode_t kForAll = 0666;
  auto open = std::make_unique<FileDescriptor>(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kForAll));
  if (!open->IsOpen() && errno == EACCES) {
    open = std::make_unique<FileDescriptor>(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  }
  if (!open->IsOpen()) throw FileFault(file, "cannot be made");
  // Whatever this user's mask leaves out. Of another's file the rights stay his, and some shares know none.
  static_cast<void>(::fchmod(open->Number(), kForAll));
  return open;
}

}  // namespace

CopyLock::CopyLock(const fs::path& copy) : file_(copy) {
  file_ += ".lock";
  LockWait wait(copy);
  while (true) {
    auto open = OpenLockFile(file_);
    const bool is_locked = Lock(*open, LOCK_EX | LOCK_NB);
    if ((is_locked && IsNamed(*open, file_)) || (!is_locked && HasNoLocks(errno))) {
      lock_ = std::move(open);
      return;
    }
    if (!is_locked && !wait.Again()) {
      throw Fault(FaultKind::locked, "another program is making it: " + copy.string());
    }
  }
}

CopyLock::~CopyLock() {
  if (lock_) ::unlink(file_.c_str());
}

}  // namespace rbt
