// SPDX-License-Identifier: MIT
#pragma once

#include <stop_token>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/problem/stop_signal.h"
#include "planning/solve/plan_maker.h"

namespace rbt::planning {

/// A plan, checked. The listener may be empty; what it is told is checked too. Faults: `Refusal` where no
/// plan can be made, or where a plan fails its check, which names what is wrong; `overflow`.
Plan MakePlan(const Problem& problem, const StopSignal& signal, const PlanListener& listener = nullptr);

/// Says `time` once so many seconds have passed from now, `cancel` when a stop was requested. The clock runs
/// whatever the machine does.
StopSignal StopAfter(double seconds, std::stop_token cancel = {});

}  // namespace rbt::planning
