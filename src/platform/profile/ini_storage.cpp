// SPDX-License-Identifier: MIT
// INI files on disk: reading within bounds, changing one key under a lock.
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/file.h>

#include "platform/files/file_descriptor.h"
#include "platform/files/file_lock.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/profile/ini_text.h"
#include "platform/system/patience.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

// The files of the family hold a few kilobytes.
constexpr std::uintmax_t kLargestFile = std::uintmax_t{16} << 20U;

/// Holds the folder of a file; the file itself is replaced by every change and cannot carry the lock.
class FolderLock {
 public:
  explicit FolderLock(const fs::path& folder)
      : descriptor_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!descriptor_.IsOpen()) throw FileFault(folder, "cannot be opened");
    LockWait wait(folder);
    while (!Lock(descriptor_, LOCK_EX | LOCK_NB)) {
      // A file system without locks leaves the change unguarded against a second writer, not against a kill.
      if (HasNoLocks(errno)) return;
      if (errno != EWOULDBLOCK) throw FileFault(folder, "cannot be locked");
      if (!wait.Again()) {
        throw Fault(FaultKind::locked, "another program holds the folder: " + folder.string());
      }
    }
  }

 private:
  FileDescriptor descriptor_;
};

}  // namespace

std::optional<std::string> ReadIniBytes(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) return std::nullopt;
  if (status.type() == fs::file_type::none) throw FileFault(file, "cannot be read", error.value());
  if (status.type() != fs::file_type::regular) throw FileFaultText(file, "is no regular file");
  if (fs::file_size(file, error) > kLargestFile && !error) {
    throw FileFaultText(file, "is larger than the 16 MiB that a settings file may have");
  }
  return ReadFileBytes(file);
}

void UpdateIniFile(const fs::path& file, IniEncoding encoding, std::string_view section, std::string_view key,
                   std::optional<std::string_view> value) {
  const FolderLock lock(FolderOf(file));
  const std::optional<std::string> old = ReadIniBytes(file);
  IniText text(old.value_or(""), encoding);
  if (value) {
    text.Set(section, key, *value);
  } else {
    text.Remove(section, key);
  }
  if (text.Bytes() != old.value_or("")) WriteFileAtomically(file, text.Bytes());
}

}  // namespace rbt
