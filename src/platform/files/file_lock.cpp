// SPDX-License-Identifier: MIT
#include "platform/files/file_lock.h"

#include <cerrno>
#include <sys/file.h>

namespace rbt {

bool Lock(const FileDescriptor& file, int how) {
  int result = 0;
  do {
    result = ::flock(file.Number(), how);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

bool HasNoLocks(int cause) {
  return cause == ENOLCK || cause == EINVAL || cause == EOPNOTSUPP || cause == EBADF;
}

}  // namespace rbt
