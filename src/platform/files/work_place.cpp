// SPDX-License-Identifier: MIT
#include "platform/files/work_place.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "platform/fault.h"
#include "platform/files/file_lock.h"
#include "platform/files/new_name.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

/// What every name of a file in work begins with.
constexpr std::string_view kFamilyMark = ".rbk-";
constexpr std::chrono::hours kOld{24};

bool IsOld(const fs::path& name) {
  std::error_code error;
  const auto written = fs::last_write_time(name, error);
  return !error && fs::file_time_type::clock::now() - written > kOld;
}

/// What cannot be removed disturbs nobody and is met again next time.
template <typename IsLeftover>
void Remove(const fs::path& folder, IsLeftover is_leftover) {
  std::error_code error;
  std::vector<fs::path> leftovers;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (is_leftover(entry->path())) leftovers.push_back(entry->path());
  }
  for (const fs::path& leftover : leftovers) fs::remove_all(leftover, error);
}

bool HasMark(const fs::path& name, std::string_view mark) {
  return name.filename().string().starts_with(mark);
}

/// Those who clear a folder hold it for a moment only.
void Share(const FileDescriptor& folder, const fs::path& name) {
  constexpr std::chrono::milliseconds kPause{10};
  constexpr int kTries = 1000;
  for (int tries = 0; !Lock(folder, LOCK_SH | LOCK_NB); ++tries) {
    if (errno != EWOULDBLOCK) return;
    if (tries == kTries) {
      throw Fault(FaultKind::locked, "another program holds the folder: " + name.string());
    }
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace

WorkPlace::WorkPlace(fs::path folder)
    : folder_(std::move(folder)), lock_(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (!lock_.IsOpen()) return;
  // Nobody else is at work there when the folder can be had alone.
  if (Lock(lock_, LOCK_EX | LOCK_NB)) {
    Remove(folder_, [](const fs::path& name) { return HasMark(name, kWorkPlaceMark); });
  }
  Share(lock_, folder_);
}

void RemoveOldLeftovers(const fs::path& folder) {
  const FileDescriptor lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock.IsOpen() || !Lock(lock, LOCK_EX | LOCK_NB)) return;
  Remove(folder, [](const fs::path& name) { return HasMark(name, kFamilyMark) && IsOld(name); });
}

fs::path WorkPlace::NewName() const { return NewNameIn(folder_, kWorkPlaceMark); }

}  // namespace rbt
