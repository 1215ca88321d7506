// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "planning/input/bar_offer.h"
#include "planning/input/plan_files.h"
#include "planning/input/scopes.h"
#include "planning/input/site_schedule.h"
#include "planning/problem/problem.h"

namespace rbt::planning {

/// The problem of a site's schedule: every row is planned or kept. `scopes` are those that the options name.
/// Refusals: see `bar_offer.h`. Faults: `overflow` for more pieces than can be planned.
Problem MakeProblem(const SiteSchedule& schedule, const SiteLengths& lengths, const BarOffer& offer,
                    const Scopes& scopes, const PlanOptions& options);

/// The problem of a file of pieces, all of which are planned. Refusals: also "line 7: piece 12500 is longer
/// than the longest bar 12000".
Problem MakeProblem(const std::vector<PieceLine>& pieces, const BarOffer& offer, const PlanOptions& options);

/// The lengths that a site's rows have, those with a column in the tally's sums.
std::map<int, std::set<int>> LengthsOfRows(const SiteSchedule& schedule);

}  // namespace rbt::planning
