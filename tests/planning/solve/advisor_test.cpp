// SPDX-License-Identifier: MIT
#include "planning/solve/advisor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem_samples.h"
#include "planning/solve/plan_maker.h"

namespace rbt::planning {
namespace {

using test::OneGroup;
using test::RandomProblem;
using ::testing::ElementsAre;
using ::testing::SizeIs;

std::int64_t BoughtMm(const Problem& problem, const Plan& plan, std::size_t supply) {
  std::int64_t bought = 0;
  for (std::size_t g = 0; g < problem.groups.size(); ++g) {
    if (problem.groups[g].supply != supply) continue;
    for (const Pattern& pattern : plan.groups[g].patterns) {
      if (!pattern.rest) bought += pattern.stock_mm * pattern.bars;
    }
  }
  return bought;
}

TEST(Advise, BuysNoMoreThanThePlanWhereItsLengthsAreAllowed) {
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    Problem problem = RandomProblem(seed);
    problem.options.aim = Aim::steel;
    for (Supply& supply : problem.supplies) {
      for (StockLength& length : supply.lengths) length.cost = std::int64_t{length.mm} * 1'000'000;
    }
    problem.options.effort = seed % 2 == 0 ? Effort::full : Effort::greedy;
    problem.options.advise = 19;
    const Plan plan = SolvePlan(problem, nullptr, nullptr);
    ASSERT_THAT(plan.advice, SizeIs(problem.supplies.size()));
    for (std::size_t s = 0; s < plan.advice.size(); ++s) {
      ASSERT_FALSE(plan.advice[s].curve.empty()) << seed;
      EXPECT_LE(plan.advice[s].curve.back().bought_mm, BoughtMm(problem, plan, s)) << seed;
    }
  }
}

TEST(Advise, HasAPointForEveryCount) {
  Problem problem = OneGroup({{5200, 7}, {2340, 50}, {1200, 33}}, {6000, 12000});
  problem.options.advise = 5;
  const Plan plan = SolvePlan(problem, nullptr, nullptr);
  ASSERT_THAT(plan.advice, SizeIs(1));
  const std::vector<AdvicePoint>& curve = plan.advice[0].curve;
  ASSERT_THAT(curve, SizeIs(5));
  for (std::size_t p = 0; p < curve.size(); ++p) EXPECT_EQ(curve[p].count, static_cast<int>(p) + 1);
  EXPECT_EQ(curve[4].lengths, curve[1].lengths);
  EXPECT_EQ(curve[4].bought_mm, curve[1].bought_mm);
}

TEST(Advise, LeavesSetsOutThatDoNotFillTheirLots) {
  Problem problem = OneGroup({{2000, 3}, {3000, 4}}, {6000, 12000});
  problem.options.advise = 2;
  problem.supplies[0].lengths[1].least_lot = 1'000'000'000;
  const Plan plan = SolvePlan(problem, nullptr, nullptr);
  ASSERT_THAT(plan.advice, SizeIs(1));
  ASSERT_THAT(plan.advice[0].curve, SizeIs(2));
  for (const AdvicePoint& point : plan.advice[0].curve) {
    EXPECT_THAT(point.lengths, ElementsAre(6000));
    EXPECT_EQ(point.bought_mm, 18000);
  }
}

}  // namespace
}  // namespace rbt::planning
