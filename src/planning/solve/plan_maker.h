// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/problem/stop_signal.h"

namespace rbt::planning {

/// Told when a plan stands and whenever it has become better or a steel's advice is ready: the best so far,
/// with the advice that is complete, and how many of the parts of the work are done.
using PlanListener = std::function<void(const Plan& so_far, std::size_t done, std::size_t of)>;

/// The best plan found, the same for the same problem unless the signal stops it. Once it is stopped, it
/// returns at once with what it has; the listener may be empty. Faults: `Refusal`.
Plan SolvePlan(const Problem& problem, const StopSignal& signal, const PlanListener& listener);

}  // namespace rbt::planning
