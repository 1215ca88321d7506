// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>

#include "planning/problem/stop_signal.h"

namespace rbt::planning {

/// How far the work has come: whether it is to end, and how many steps it took. A step is about a nanosecond
/// of computing; how much is done depends on steps alone, never on a clock.
class Pace {
 public:
  explicit Pace(StopSignal signal) : signal_(std::move(signal)) {}

  /// True when the work is to end with what it has.
  bool Stopped() {
    if (stopped_ == planning::Stopped::no && signal_) stopped_ = signal_();
    return stopped_ != planning::Stopped::no;
  }
  /// The same in the midst of work, so many steps further: asks about once a millisecond.
  bool StoppedAfter(std::int64_t steps) {
    unasked_ += steps;
    if (unasked_ < kStepsOfQuestion) return stopped_ != planning::Stopped::no;
    unasked_ = 0;
    return Stopped();
  }
  /// Why, if it was.
  planning::Stopped Why() const { return stopped_; }

  void Spend(std::int64_t steps) { spent_ += steps; }
  std::int64_t Spent() const { return spent_; }

 private:
  static constexpr std::int64_t kStepsOfQuestion = 1'000'000;

  StopSignal signal_;
  planning::Stopped stopped_ = planning::Stopped::no;
  std::int64_t spent_ = 0;
  std::int64_t unasked_ = 0;  ///< steps since the last question in the midst of work; none of those spent
};

}  // namespace rbt::planning
