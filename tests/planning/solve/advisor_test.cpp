// SPDX-License-Identifier: MIT
#include "planning/solve/advisor.h"

#include <algorithm>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem_samples.h"
#include "planning/solve/plan_maker.h"
#include "planning/solve/row_plans.h"
#include "support/sample.h"

namespace rbt::planning {
namespace {

using test::OneGroup;
using test::RandomProblem;
using ::testing::ElementsAre;
using ::testing::SizeIs;

Micros CostOfSupply(const Problem& problem, const Plan& plan, std::size_t supply) {
  Micros cost = 0;
  for (std::size_t g = 0; g < problem.groups.size(); ++g) {
    if (problem.groups[g].supply != supply) continue;
    for (const Pattern& pattern : plan.groups[g].patterns) {
      if (!pattern.rest) cost += FindLength(problem.supplies[supply], pattern.stock_mm)->cost * pattern.bars;
    }
  }
  return cost;
}

Problem AdvisedSample(std::uint64_t seed) {
  Problem problem = RandomProblem(seed);
  problem.options.effort = seed % 4 == 3 ? Effort::greedy : Effort::full;
  problem.options.advise = 4;
  return problem;
}

TEST(Advise, CostsNoMoreThanThePlanWhereItsLengthsAreAllowed) {
  for (std::uint64_t seed = 1; seed <= rbt::test::ProblemsOf(40); ++seed) {
    Problem problem = AdvisedSample(seed);
    problem.options.advise = 19;
    const Plan plan = SolvePlan(problem, nullptr, nullptr);
    ASSERT_THAT(plan.advice, SizeIs(problem.supplies.size()));
    for (std::size_t s = 0; s < plan.advice.size(); ++s) {
      ASSERT_FALSE(plan.advice[s].curve.empty()) << seed;
      EXPECT_LE(plan.advice[s].curve.back().cost, CostOfSupply(problem, plan, s)) << seed;
    }
  }
}

/// What the advice for so many lengths of a supply costs; nothing where no set is advised.
std::optional<Micros> Advised(const Plan& plan, std::size_t supply, int count) {
  const std::vector<AdvicePoint>& curve = plan.advice[supply].curve;
  const auto point = std::ranges::find(curve, count, &AdvicePoint::count);
  return point == curve.end() ? std::nullopt : std::optional(point->cost);
}

TEST(Advise, CostsNoMoreThanThePlanOfAsManyLengthsNorThanThePointBefore) {
  for (std::uint64_t seed = 1; seed <= rbt::test::ProblemsOf(30); ++seed) {
    Problem problem = AdvisedSample(seed);
    // Pieces on rest bars may need a length that is not bought.
    for (Supply& supply : problem.supplies) supply.rests.clear();
    const Plan advised = SolvePlan(problem, nullptr, nullptr);
    problem.options.advise = 0;
    for (int count = 1; count <= 4; ++count) {
      problem.options.max_lengths = count;
      const Plan limited = SolvePlan(problem, nullptr, nullptr);
      for (std::size_t s = 0; s < problem.supplies.size(); ++s) {
        const std::optional<Micros> cost = Advised(advised, s, count);
        ASSERT_TRUE(cost) << seed;
        EXPECT_LE(*cost, CostOfSupply(problem, limited, s)) << seed << ": " << count;
        EXPECT_LE(*cost, Advised(advised, s, count - 1).value_or(*cost)) << seed << ": " << count;
      }
    }
  }
}

TEST(Advise, HoldsEveryPieceByTheLengthsOfEachSet) {
  for (std::uint64_t seed = 1; seed <= rbt::test::ProblemsOf(40); ++seed) {
    const Problem problem = AdvisedSample(seed);
    for (const Advice& advice : SolvePlan(problem, nullptr, nullptr).advice) {
      const auto supply = std::ranges::find(problem.supplies, advice.steel, &Supply::steel);
      const auto index = static_cast<std::size_t>(supply - problem.supplies.begin());
      for (const AdvicePoint& point : advice.curve) {
        LengthSet lengths;
        for (std::size_t l = 0; l < supply->lengths.size(); ++l) {
          if (std::ranges::count(point.lengths, supply->lengths[l].mm) > 0) lengths.push_back(l);
        }
        EXPECT_TRUE(HoldsAll(problem, GroupsOf(problem, index), lengths)) << seed;
      }
    }
  }
}

TEST(Advise, RanksByMoneyWhereThatIsTheAim) {
  // Two pieces fill a bar of 6.0 m; one of 6.5 m wastes 500 mm, but costs less.
  Problem problem = OneGroup({{3000, 20}}, {6000, 6500});
  problem.options.aim = Aim::money;
  problem.options.advise = 1;
  problem.supplies[0].lengths[0].cost = 700'000'000;
  problem.supplies[0].lengths[1].cost = 600'000'000;
  const Plan plan = SolvePlan(problem, nullptr, nullptr);
  ASSERT_THAT(plan.advice, SizeIs(1));
  ASSERT_THAT(plan.advice[0].curve, SizeIs(1));
  EXPECT_THAT(plan.advice[0].curve[0].lengths, ElementsAre(6500));
  EXPECT_EQ(plan.advice[0].curve[0].cost, 6'000'000'000);
  EXPECT_EQ(plan.advice[0].curve[0].bought_mm, 65000);
}

TEST(Advise, IsToldSteelBySteelAndKeptAsFarAsItIsCompleteWhenItIsStopped) {
  Problem problem = AdvisedSample(2);
  ASSERT_THAT(problem.supplies, SizeIs(2));
  bool stop = false;
  std::vector<Advice> told;
  const auto listen = [&](const Plan& so_far, std::size_t, std::size_t) {
    if (so_far.advice.empty()) return;
    told = so_far.advice;
    stop = true;
  };
  const Plan whole = SolvePlan(problem, nullptr, nullptr);
  const Plan plan = SolvePlan(
      problem, [&] { return stop ? Stopped::cancel : Stopped::no; }, listen);
  EXPECT_EQ(plan.stopped, Stopped::cancel);
  ASSERT_THAT(told, SizeIs(1));
  EXPECT_EQ(plan.advice, told);
  EXPECT_EQ(told[0], whole.advice[0]);
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
