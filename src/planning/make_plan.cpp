// SPDX-License-Identifier: MIT
#include "planning/make_plan.h"

#include <chrono>
#include <string>
#include <utility>

#include "planning/problem/refusal.h"
#include "planning/verify/verify.h"

namespace rbt::planning {
namespace {

void Check(const Problem& problem, const Plan& plan) {
  const std::vector<std::string> faults = FindFaults(problem, plan);
  if (!faults.empty()) throw Refusal("the plan failed its check: " + faults.front());
}

}  // namespace

Plan MakePlan(const Problem& problem, const StopSignal& signal, const PlanListener& listener) {
  Plan plan = SolvePlan(problem, signal, listener);
  Check(problem, plan);
  return plan;
}

StopSignal StopAfter(double seconds, std::stop_token cancel) {
  using Clock = std::chrono::steady_clock;
  const auto end =
      Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
  return [end, cancel = std::move(cancel)] {
    if (cancel.stop_requested()) return Stopped::cancel;
    return Clock::now() >= end ? Stopped::time : Stopped::no;
  };
}

}  // namespace rbt::planning
