// SPDX-License-Identifier: MIT
#include "platform/system/patience.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "platform/system/services.h"

namespace rbt {

std::chrono::milliseconds StatementLimit() { return Services.StatementLimit; }

LockWait::LockWait(std::filesystem::path file)
    : file_(std::move(file)), end_(Clock::now() + Services.LockPatience) {}

bool LockWait::Again() {
  constexpr std::chrono::milliseconds kLongestPause{20};
  if (Clock::now() >= end_) {
    if (!Services.WaitOn(file_)) return false;
    end_ = Clock::now() + Services.LockPatience;
  }
  Services.OnWait();
  std::this_thread::sleep_for(pause_);
  pause_ = std::min(2 * pause_, kLongestPause);
  return true;
}

bool GiveUpWaiting(const std::filesystem::path& /*file*/) { return false; }

}  // namespace rbt
