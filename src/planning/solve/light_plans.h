// SPDX-License-Identifier: MIT
#pragma once

#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// Every cut by itself from bars of two lengths at most, the lightest at the tally's table that cost no more
/// than the per-row rule.
Candidate LightRowsCandidate(const Problem& problem, const Group& group);

/// Looks for a plan that keeps the promises where the cheapest one weighs too much at the tally's table:
/// with costs between its own and the table's, then by mixtures. Takes what is better; ends where one keeps
/// them, or where it is stopped.
void LookForLightPlan(const Problem& problem, const Group& group, const RestCounts& rests,
                      const Promises& promises, Candidate& best, Pace& pace);

/// Mixtures of a plan and a greedy one: so and so many bars of each of its patterns, the rest cut greedily by
/// the costs of the task. Takes what is better.
void OfferMixtures(const Supply& supply, const CuttingTask& task, const Candidate& base,
                   const Promises& promises, Candidate& best, Pace& pace);

}  // namespace rbt::planning
