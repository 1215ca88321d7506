// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"

namespace rbt::planning {

/// What is wrong with the prices and the bound of one group's plan; each begins with the group's name. `cost`
/// is what the plan costs.
std::vector<std::string> CheckPrices(const Problem& problem, const Group& group, const GroupPlan& plan,
                                     std::int64_t cost);

}  // namespace rbt::planning
