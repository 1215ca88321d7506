// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>

#include "platform/files/file_descriptor.h"

namespace rbt {

/// The right to make a working copy: one program at a time has it, others wait as `LockWait` says and throw
/// `locked` then. It is a lock on a file of its own, `NAME.MDB.work.lock`, which goes with the object: on a
/// share a lock on the Jet file itself would keep its other programs out. Where the file system knows no
/// locks everybody has the right.
class CopyLock {
 public:
  explicit CopyLock(const std::filesystem::path& copy);
  CopyLock(const CopyLock&) = delete;
  CopyLock& operator=(const CopyLock&) = delete;
  ~CopyLock();

 private:
  std::filesystem::path file_;
  std::unique_ptr<FileDescriptor> lock_;
};

}  // namespace rbt
