// SPDX-License-Identifier: MIT
#include "jet/import/kept_original.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"

namespace rbt::jet {

namespace fs = std::filesystem;

namespace {

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
  const WorkPlace place(FolderOf(kept));
  FileInWork copy(kept, place, ReadOnlyTarget::refused);
  std::error_code error;
  fs::copy_file(original, copy.Path(), error);
  if (!error) fs::last_write_time(copy.Path(), fs::last_write_time(original, error), error);
  if (error) throw FileFault(kept, "cannot be made", error.value());
  copy.PutInPlace();
}

}  // namespace

void RequireKeepable(const fs::path& original, const fs::path& kept) {
  if (IsTaken(kept) && !IsKeptAlready(original, kept)) throw FileFaultText(kept, kIsThereAlready);
}

bool KeepUnder(const fs::path& original, const fs::path& kept) {
  RequireKeepable(original, kept);
  if (IsTaken(kept)) return false;
  if (!LinkFile(original, kept)) CopyUnder(original, kept);
  SyncFolder(FolderOf(original));
  return true;
}

}  // namespace rbt::jet
