// SPDX-License-Identifier: MIT
#include "jet/lock_file.h"

#include <fcntl.h>
#include <string>
#include <system_error>

#include <fmt/format.h>

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

std::optional<std::string> NoteOnLockFile(const fs::path& database) {
  if (IsOpenElsewhere(database)) {
    return fmt::format("{} is open in another program; what has not been saved there is missing here",
                       database.string());
  }
  const fs::path lock_file = LockFileOf(database);
  if (lock_file.empty()) return std::nullopt;
  return fmt::format(
      "{}: the lock file {} stands beside it, which nobody here holds: somebody elsewhere has it "
      "open, or it was not closed properly",
      database.string(), lock_file.filename().string());
}

}  // namespace rbt::jet
