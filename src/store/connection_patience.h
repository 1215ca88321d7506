// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

#include "platform/system/patience.h"
#include "store/connection.h"

namespace rbt {

/// How long a connection waits for other programs, and for a step of a statement to come to its end: until it
/// counts as endless, or the user has the work stopped.
class Connection::Patience {
 public:
  explicit Patience(std::filesystem::path file) : file_(std::move(file)) {}

  /// Of work that is written when it ends nobody could say whether it was stopped before.
  void BeginStep(bool may_stop) {
    ++step_;
    may_stop_ = may_stop;
    stopped_ = false;
  }
  /// The statement that was interrupted last was so for the user.
  bool Stopped() const { return stopped_; }
  /// Asks SQLite to call back when a file is locked and while a step runs.
  void WatchOver(sqlite3* connection);

 private:
  static int OnBusy(void* self, int times);
  static int OnProgress(void* self);

  using Clock = std::chrono::steady_clock;
  std::filesystem::path file_;
  std::optional<LockWait> wait_;
  std::uint64_t step_ = 0;
  std::uint64_t step_seen_ = 0;  ///< the last one that took long enough to be asked about
  Clock::time_point seen_since_;
  bool may_stop_ = true;
  bool stopped_ = false;
};

}  // namespace rbt
