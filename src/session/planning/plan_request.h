// SPDX-License-Identifier: MIT
#pragma once

#include "planning/input/bar_offer.h"
#include "planning/problem/problem.h"

namespace rbt {

/// What is asked of a plan.
struct PlanRequest {
  planning::BarOffer offer;
  planning::PlanOptions options;  ///< the scope one that `Scopes::Of` takes
};

/// By how many mm a bar may be longer than its stock length where nobody says otherwise: the setting, at
/// least 0.
int DefaultPlus();

/// The problem of the bound site under the selection: to be asked for while the state that the bulk tally
/// found is held, whose presence flags it goes by. Refusals: see `MakeProblem`. Faults: those of the bulk
/// tally.
planning::Problem SiteProblem(const PlanRequest& request);

}  // namespace rbt
