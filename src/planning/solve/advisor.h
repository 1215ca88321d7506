// SPDX-License-Identifier: MIT
#pragma once

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/solve/limited_supply.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// What a supply buys from the best set of 1, 2, ... up to the asked number of lengths that fills its least
/// lots. `plans` of the supply's groups are given: a set as large as theirs costs no more than they; none
/// costs less than `least`. Nor does a point cost more than the plan that is limited to as many lengths, or
/// than the point before; where one length more gains nothing it is the same again. A set holds every piece,
/// those on rest bars included, which may take a length that is not bought. Points before the first set are
/// left out.
Advice Advise(const Problem& problem, std::size_t supply, const SupplyPlans& plans, Micros least, Pace& pace);

}  // namespace rbt::planning
