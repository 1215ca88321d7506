// SPDX-License-Identifier: MIT
#include "planning/make_plan.h"

#include <chrono>
#include <string>
#include <utility>

#include "planning/problem/refusal.h"
#include "planning/verify/verify.h"

namespace rbt::planning {
namespace {

void Require(const std::vector<std::string>& faults) {
  if (!faults.empty()) throw Refusal("the plan failed its check: " + faults.front());
}

}  // namespace

Plan MakePlan(const Problem& problem, const StopSignal& signal, const PlanListener& listener) {
  Verifier verifier(problem);
  PlanListener checked = nullptr;
  if (listener) {
    checked = [&](const Plan& so_far, std::size_t done, std::size_t of) {
      Require(verifier.FindFaults(so_far));
      listener(so_far, done, of);
    };
  }
  Plan plan = SolvePlan(problem, signal, checked);
  Require(verifier.FindFaults(plan));
  return plan;
}

Plan MakeFirstPlan(const Problem& problem) {
  bool stands = false;
  const StopSignal once_it_stands = [&stands] { return stands ? Stopped::cancel : Stopped::no; };
  return MakePlan(problem, once_it_stands,
                  [&stands](const Plan&, std::size_t, std::size_t) { stands = true; });
}

StopSignal StopAfter(double seconds, std::function<bool()> cancelled) {
  using Clock = std::chrono::steady_clock;
  const auto end =
      Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
  return [end, cancelled = std::move(cancelled)] {
    if (cancelled && cancelled()) return Stopped::cancel;
    return Clock::now() >= end ? Stopped::time : Stopped::no;
  };
}

}  // namespace rbt::planning
