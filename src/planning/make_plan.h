// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/problem/stop_signal.h"
#include "planning/solve/plan_maker.h"

namespace rbt::planning {

/// A plan, checked. The listener may be empty; what it is told is checked as well. Faults: `Refusal` where no
/// plan can be made, or where a plan fails its check, which names what is wrong; `overflow`.
Plan MakePlan(const Problem& problem, const StopSignal& signal, const PlanListener& listener = nullptr);

/// The plan that `MakePlan` begins with, checked: quick, whatever is asked of it. It says `cancel` where
/// there was more to try. Faults: those of `MakePlan`.
Plan MakeFirstPlan(const Problem& problem);

/// Says `time` once so many seconds have passed from now, `cancel` as soon as it was asked for; nobody asks
/// where `cancelled` is empty.
StopSignal StopAfter(double seconds, std::function<bool()> cancelled = nullptr);

}  // namespace rbt::planning
