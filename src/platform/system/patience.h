// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>

namespace rbt {

/// How long one step of a statement may take before it is given up as endless.
std::chrono::milliseconds StatementLimit();

/// Waits for a file that another program holds. Nothing else runs meanwhile.
class LockWait {
 public:
  explicit LockWait(std::filesystem::path file);

  /// Lets a moment pass before the next try. False when the time is over and nobody wants to wait on.
  bool Again();

 private:
  using Clock = std::chrono::steady_clock;

  std::filesystem::path file_;
  Clock::time_point end_;
  std::chrono::milliseconds pause_{1};
};

/// Called before each pause of a wait.
using WaitHook = std::function<void()>;
/// Asked when a file was waited for in vain: true waits as long once more.
using LockQuestion = std::function<bool(const std::filesystem::path& file)>;
/// That of the command line, which tells its user instead.
bool GiveUpWaiting(const std::filesystem::path& file);

}  // namespace rbt
