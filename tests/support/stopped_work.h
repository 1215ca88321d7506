// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "platform/system/services.h"
#include "support/fault_of.h"
#include "support/kept_services.h"

namespace rbt::test {

/// Stops work at one of the steps at which its user could stop it. Statements of files that are opened in its
/// life tell of themselves often.
class WorkStopper {
 public:
  explicit WorkStopper(int pace = 100) {
    Services.WorkPace = pace;
    Services.OnWork = [this](const WorkNews& news) { return news.may_stop && ++seen_ == stop_at_; };
  }

  /// Steps count from 1; 0 stops at none.
  void StopAt(std::int64_t step) {
    stop_at_ = step;
    seen_ = 0;
  }
  /// Since then.
  std::int64_t Seen() const { return seen_; }

 private:
  const KeptServices kept_;
  std::int64_t seen_ = 0;
  std::int64_t stop_at_ = 0;
};

/// Runs work once to its end; then anew after `prepare`, stopped at one step after the other, about `times`
/// of them from the first to the last: `check` looks at what that leaves.
inline void StopEverywhere(WorkStopper& stopper, const std::function<void()>& prepare,
                           const std::function<void()>& work, const std::function<void()>& check,
                           std::int64_t times = 12) {
  prepare();
  stopper.StopAt(0);
  work();
  const std::int64_t steps = stopper.Seen();
  ASSERT_GT(steps, 3) << "there is nothing to stop";
  std::int64_t stopped = 0;
  for (std::int64_t step = 1; step <= steps; step += std::max<std::int64_t>(1, steps / times)) {
    stopper.StopAt(0);
    prepare();
    stopper.StopAt(step);
    const auto fault = FaultOf(work);
    // Work that goes by what it did before may take fewer steps each time.
    if (!fault && stopper.Seen() < step) continue;
    EXPECT_EQ(fault, FaultKind::stopped) << "step " << step << " of " << steps;
    ++stopped;
    stopper.StopAt(0);
    check();
    if (testing::Test::HasFailure()) {
      FAIL() << "stopped at step " << step << " of " << steps;
    }
  }
  EXPECT_GT(stopped, 2);
}

inline std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace rbt::test
