// SPDX-License-Identifier: MIT
#include "jet/import/work_place.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace rbt::jet {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kMark = ".rbk-import-";

bool Lock(const FileDescriptor& folder, int how) {
  int result = 0;
  do {
    result = ::flock(folder.Number(), how);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

/// What cannot be removed disturbs nobody and is met again next time.
void RemoveLeftovers(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> leftovers;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (entry.path().filename().string().starts_with(kMark)) leftovers.push_back(entry.path());
  }
  for (const fs::path& leftover : leftovers) fs::remove_all(leftover, error);
}

}  // namespace

WorkPlace::WorkPlace(fs::path folder)
    : folder_(std::move(folder)), lock_(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (!lock_.IsOpen()) return;
  // Nobody else is at work there when the folder can be had alone.
  if (Lock(lock_, LOCK_EX | LOCK_NB)) RemoveLeftovers(folder_);
  Lock(lock_, LOCK_SH);
}

fs::path WorkPlace::NewName() const {
  static std::atomic<unsigned> counter{0};
  for (;;) {
    fs::path name = folder_ / fmt::format("{}{}-{}", kMark, ::getpid(), counter++);
    std::error_code error;
    if (!fs::exists(fs::symlink_status(name, error))) return name;
  }
}

}  // namespace rbt::jet
