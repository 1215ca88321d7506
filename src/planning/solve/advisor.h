// SPDX-License-Identifier: MIT
#pragma once

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// What a supply buys from the best set of 1, 2, ... up to the asked number of lengths, least lots aside. No
/// point buys more than the one before. A point where no so small a set holds every piece is left out, and so
/// are those that were not reached when it was stopped.
Advice Advise(const Problem& problem, std::size_t supply, Pace& pace);

}  // namespace rbt::planning
