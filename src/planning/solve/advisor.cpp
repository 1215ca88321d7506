// SPDX-License-Identifier: MIT
#include "planning/solve/advisor.h"

namespace rbt::planning {
namespace {

AdvicePoint PointOf(const Problem& problem, const LimitedSupply& limited, int count,
                    const SupplyPlans& plans) {
  AdvicePoint point{count, {}};
  const std::vector<std::size_t>& groups = limited.Groups();
  const Supply& supply = problem.supplies[problem.groups[groups.front()].supply];
  for (const std::size_t l : NeededLengths(problem, groups, plans)) {
    point.lengths.push_back(supply.lengths[l].mm);
  }
  for (const Candidate& plan : plans) {
    point.cost += plan.cost;
    point.bought_mm += plan.bought_mm;
  }
  return point;
}

}  // namespace

Advice Advise(const Problem& problem, std::size_t supply, const SupplyPlans& plans, Micros least,
              Pace& pace) {
  LimitedSupply limited(problem, supply, problem.options.advise, Wanted::curve);
  limited.FindQuickPlan(pace);
  limited.Improve(least, pace);
  limited.Keep(plans);
  Advice advice{problem.supplies[supply].steel, {}};
  for (int count = 1; count <= problem.options.advise; ++count) {
    const SupplyPlans* best = limited.BestOf(static_cast<std::size_t>(count));
    if (best != nullptr) advice.curve.push_back(PointOf(problem, limited, count, *best));
  }
  return advice;
}

}  // namespace rbt::planning
