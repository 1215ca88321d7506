// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// What a supply buys from the best set of 1, 2, ... up to the asked number of lengths that fills its least
/// lots. `plans` of the supply's groups are given: a set as large as theirs buys no more than they. No point
/// buys more than the one before; where one length more gains nothing it is the same again. Points before the
/// first set that holds every piece are left out, and so are those that were not reached when it was stopped.
Advice Advise(const Problem& problem, std::size_t supply, const std::vector<Candidate>& plans, Pace& pace);

}  // namespace rbt::planning
