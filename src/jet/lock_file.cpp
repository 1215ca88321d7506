// SPDX-License-Identifier: MIT
#include "jet/lock_file.h"

#include <fcntl.h>
#include <string>
#include <system_error>

#include "platform/files/file_descriptor.h"
#include "platform/text/characters.h"

namespace rbt::jet {

namespace fs = std::filesystem;

namespace {

fs::path LockFileOf(const fs::path& database) {
  const fs::path folder = database.has_parent_path() ? database.parent_path() : fs::path(".");
  const std::string name = database.stem().string() + ".ldb";
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (EqualIgnoringCase(entry.path().filename().string(), name)) return entry.path();
  }
  return {};
}

}  // namespace

bool IsOpenElsewhere(const fs::path& database) {
  const fs::path lock_file = LockFileOf(database);
  if (lock_file.empty()) return false;
  const FileDescriptor descriptor(::open(lock_file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!descriptor.IsOpen()) return false;
  struct flock any {};
  any.l_type = F_WRLCK;  // would meet read locks as well as write locks
  any.l_whence = SEEK_SET;
  return ::fcntl(descriptor.Number(), F_GETLK, &any) == 0 && any.l_type != F_UNLCK;
}

}  // namespace rbt::jet
