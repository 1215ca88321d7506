// SPDX-License-Identifier: MIT
// Reading whole files and replacing them atomically.
#include "platform/files/files.h"

#include <array>
#include <atomic>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/file_descriptor.h"
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

/// A new file beside the one to be replaced; removed again unless it was renamed.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& beside) : descriptor_(-1) {
    static std::atomic<unsigned> counter{0};
    int number = -1;
    do {
      path_ = FolderOf(beside) /
              (".rbk-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".tmp");
      number = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (number < 0 && errno == EEXIST);  // left behind by a process that was killed
    if (number < 0) {
      const int cause = errno;
      path_.clear();
      throw FileFault(beside, "cannot write a file in its folder", cause);
    }
    descriptor_.emplace(number);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }

  int Number() const { return descriptor_->Number(); }
  int Close() { return descriptor_->Close(); }
  const fs::path& Path() const { return path_; }
  void KeepAs(const fs::path& file) {
    if (::rename(path_.c_str(), file.c_str()) != 0) throw FileFault(file, "cannot be replaced");
    path_.clear();
  }

 private:
  fs::path path_;
  std::optional<FileDescriptor> descriptor_;
};

/// A file that may not be written is not replaced either, though its folder would allow it.
void KeepPermissions(const fs::path& file, int temporary) {
  struct stat old {};
  if (::stat(file.c_str(), &old) != 0) {
    if (errno == ENOENT) return;
    throw FileFault(file, "cannot be replaced");
  }
  if (!S_ISREG(old.st_mode)) throw FileFaultText(file, "is no regular file");
  if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) throw FileFault(file, "cannot be written");
  struct stat fresh {};
  if (::fstat(temporary, &fresh) != 0) throw FileFault(file, "cannot be replaced");
  // Only the superuser gives files away; for anyone else the file becomes his own, as with any editor.
  if ((fresh.st_uid != old.st_uid || fresh.st_gid != old.st_gid) &&
      ::fchown(temporary, old.st_uid, old.st_gid) != 0 && errno != EPERM) {
    throw FileFault(file, "cannot keep its owner");
  }
  if (::fchmod(temporary, old.st_mode & 07777) != 0) throw FileFault(file, "cannot keep its permissions");
}

void WriteAll(int descriptor, std::string_view bytes, const fs::path& file) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) throw FileFault(file, "cannot be written");
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

void WriteFileAtomically(const fs::path& file, std::string_view bytes) {
  const fs::path target = Target(file);
  TemporaryFile temporary(target);
  KeepPermissions(target, temporary.Number());
  WriteAll(temporary.Number(), bytes, target);
  if (::fsync(temporary.Number()) != 0) throw FileFault(target, "cannot be synced");
  if (temporary.Close() != 0) throw FileFault(target, "cannot be written");
  temporary.KeepAs(target);
  SyncFolder(FolderOf(target));
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
