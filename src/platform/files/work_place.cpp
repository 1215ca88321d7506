// SPDX-License-Identifier: MIT
#include "platform/files/work_place.h"

#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/files/file_lock.h"
#include "platform/files/new_name.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kMark = ".rbk-import-";

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

fs::path WorkPlace::NewName() const { return NewNameIn(folder_, kMark); }

}  // namespace rbt
