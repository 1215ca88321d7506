// SPDX-License-Identifier: MIT
#include "jet/import/swap_in.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "platform/files/file_sync.h"
#include "platform/files/system_error.h"

namespace rbt::jet {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kIsThere = "is there already and is not overwritten";

bool Exists(const fs::path& name) {
  std::error_code error;
  return fs::exists(fs::symlink_status(name, error));
}

/// A second name for a file; false where the file system has no such thing, or not for this user.
bool Link(const fs::path& file, const fs::path& name) {
  if (::link(file.c_str(), name.c_str()) == 0) return true;
  if (errno == EEXIST) throw FileFaultText(name, kIsThere);
  if (errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK) return false;
  throw FileFault(name, "cannot be made");
}

void Rename(const fs::path& from, const fs::path& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) throw FileFault(to, "cannot be put in place");
}

bool SameBytes(const fs::path& a, const fs::path& b) {
  std::ifstream first(a, std::ios::binary);
  std::ifstream second(b, std::ios::binary);
  if (!first || !second) return false;
  using Bytes = std::istreambuf_iterator<char>;
  return std::equal(Bytes(first), Bytes(), Bytes(second), Bytes());
}

bool IsKeptAlready(const fs::path& original, const fs::path& kept) {
  std::error_code error;
  return fs::equivalent(original, kept, error) ||
         (fs::is_regular_file(fs::symlink_status(kept, error)) &&
          fs::file_size(original, error) == fs::file_size(kept, error) && SameBytes(original, kept));
}

/// A copy with the time of the original, which appears when it is complete.
void CopyUnder(const fs::path& original, const fs::path& kept) {
  FileInWork copy(kept);
  std::error_code error;
  fs::copy_file(original, copy.Path(), error);
  if (!error) fs::last_write_time(copy.Path(), fs::last_write_time(original, error), error);
  if (error) throw FileFault(kept, "cannot be made", error.value());
  copy.PutInPlace(kept);
}

/// Everyone who could work with the original can work with the new file. Originals from a medium that is only
/// read are marked so; the new file is there to be written.
void TakeOverPermissions(const fs::path& original, const fs::path& file) {
  struct stat old {};
  if (::stat(original.c_str(), &old) != 0) throw FileFault(original, "cannot be read");
  // Only the superuser gives files away; for anyone else the file is his own.
  if (::chown(file.c_str(), old.st_uid, old.st_gid) != 0 && errno != EPERM) {
    throw FileFault(original, "cannot keep its owner");
  }
  if (::chmod(file.c_str(), (old.st_mode & 0777) | S_IRUSR | S_IWUSR) != 0) {
    throw FileFault(original, "cannot keep its permissions");
  }
}

}  // namespace

FileInWork::FileInWork(const fs::path& beside) : place_(FolderOf(beside)), path_(place_.NewName()) {}

FileInWork::~FileInWork() {
  if (path_.empty()) return;
  ::unlink(path_.c_str());
  // A database that could not be rolled back leaves its journal.
  path_ += "-journal";
  ::unlink(path_.c_str());
}

void FileInWork::Write(std::string_view bytes) const {
  std::ofstream out(path_, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw FileFault(path_, "cannot be written");
}

void FileInWork::PutInPlace(const fs::path& target) {
  SyncFile(path_);
  if (Link(path_, target)) {
    ::unlink(path_.c_str());
  } else {
    if (Exists(target)) throw FileFaultText(target, kIsThere);
    Rename(path_, target);
  }
  path_.clear();
  SyncFolder(FolderOf(target));
}

void FileInWork::PutInPlaceOf(const fs::path& original) {
  if (Exists(original)) TakeOverPermissions(original, path_);
  SyncFile(path_);
  Rename(path_, original);
  path_.clear();
  SyncFolder(FolderOf(original));
}

void RequireKeepable(const fs::path& original, const fs::path& kept) {
  if (Exists(kept) && !IsKeptAlready(original, kept)) throw FileFaultText(kept, kIsThere);
}

bool KeepUnder(const fs::path& original, const fs::path& kept) {
  RequireKeepable(original, kept);
  if (Exists(kept)) return false;
  if (!Link(original, kept)) CopyUnder(original, kept);
  SyncFolder(FolderOf(original));
  return true;
}

}  // namespace rbt::jet
