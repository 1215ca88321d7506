// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/file_descriptor.h"

namespace rbt {

/// Locks an open file or folder among programs, `how` as flock() takes it; no signal interrupts the wait.
/// False, with the cause in errno, when it cannot be had.
bool Lock(const FileDescriptor& file, int how);
/// True for the cause that a file system knows no locks.
bool HasNoLocks(int cause);

}  // namespace rbt
