// SPDX-License-Identifier: MIT
#pragma once

#include "planning/problem/plan.h"
#include "planning/problem_samples.h"

namespace rbt::planning::test {

/// D16: 5 pieces of 2340 and 2 of 1200, bought as 12.0 m; one 6.0 m row stays as scheduled.
///
///     12000  2340 x 5            11700, 300 left, 5 cuts
///     6000   1200 x 2 (rest)      2400, 3600 left, 2 cuts
inline Problem SampleProblem() {
  Problem problem = OneGroup({{2340, 5}, {1200, 2}}, {6000, 12000});
  problem.supplies[0].rests = {{6000, 1}};
  problem.supplies[0].lengths[1].price = 100'000;
  problem.groups[0].cuts[0].rows[0].own_mm = 6000;
  problem.groups[0].cuts[0].rows[0].own_bars = 2;  // needs 3
  problem.groups[0].cuts[1].rows[0].own_mm = 6000;
  problem.groups[0].cuts[1].rows[0].own_bars = 1;
  problem.kept = {{std::nullopt, 9, KeptReason::welded, {16, 1, false}, 12000, 4, 18'700'000, 100'000}};
  return problem;
}

inline Plan SamplePlan() {
  Plan plan;
  plan.groups.resize(1);
  plan.groups[0].patterns = {{6000, true, 1, {{1200, 2}}}, {12000, false, 1, {{2340, 5}}}};
  plan.groups[0].method = Method::greedy;
  plan.groups[0].prices = {{1200, 0}, {2340, 2'400'000'000}};
  plan.groups[0].bound = 12'000'000'000;
  return plan;
}

}  // namespace rbt::planning::test
