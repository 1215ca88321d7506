// SPDX-License-Identifier: MIT
#include "platform/files/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "platform/files/file_descriptor.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/system_error.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

/// The file behind a symbolic link, so that the link stays and its target is replaced.
fs::path Target(const fs::path& file) {
  std::error_code error;
  if (!fs::is_symlink(file, error)) return file;
  fs::path target = fs::weakly_canonical(file, error);
  if (error) throw FileFault(file, "cannot follow the link", error.value());
  return target;
}

}  // namespace

bool IsTaken(const fs::path& name) {
  std::error_code error;
  return fs::exists(fs::symlink_status(name, error));
}

bool LiesIn(const fs::path& folder, const fs::path& path) {
  return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

bool TakesFiles(const fs::path& folder) {
  return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool MayBeReplaced(const fs::path& file) {
  if (::faccessat(AT_FDCWD, file.c_str(), F_OK, AT_EACCESS) == 0 &&
      ::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) {
    return false;
  }
  fs::path folder = FolderOf(file);
  std::error_code error;
  while (!fs::exists(folder, error) && folder.has_parent_path() && folder != folder.parent_path()) {
    folder = folder.parent_path();
  }
  return TakesFiles(folder);
}

void WriteFileAtomically(const fs::path& file, std::string_view bytes) {
  FileInWork work(Target(file));
  work.Write(bytes);
  work.Replace();
}

std::string ReadFileBytes(const fs::path& file) {
  const FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!descriptor.IsOpen()) throw FileFault(file, "cannot be opened");
  struct stat status {};
  if (::fstat(descriptor.Number(), &status) != 0) throw FileFault(file, "cannot be read");
  std::string bytes;
  if (S_ISREG(status.st_mode)) bytes.reserve(static_cast<std::size_t>(status.st_size));
  std::array<char, 65536> buffer{};
  for (;;) {
    const ssize_t count = ::read(descriptor.Number(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw FileFault(file, "cannot be read");
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace rbt
