// SPDX-License-Identifier: MIT
#include "planning/solve/light_plans.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem_samples.h"
#include "planning/solve/greedy.h"
#include "planning/solve/plan_maker.h"

namespace rbt::planning {
namespace {

/// A row of D16 with so many bars of its own length.
Problem OneRow(int cut_mm, std::int64_t pieces, const std::vector<int>& lengths, int own_mm,
               std::int64_t own_bars) {
  Problem problem = test::OneGroup({{cut_mm, pieces}}, lengths);
  PlannedRow& row = problem.groups[0].cuts[0].rows[0];
  row.own_mm = own_mm;
  row.own_bars = own_bars;
  return problem;
}

bool KeepsPromises(const Problem& problem, const GroupPlan& plan) {
  const Group& group = problem.groups[0];
  const Candidate candidate = MakeCandidate(problem.supplies[group.supply], plan.method, plan.patterns);
  return PromisesOf(problem, group).KeptBy(candidate);
}

TEST(LightRowsCandidate, IsTheLightestFromTwoLengthsThatCostsNoMoreThanOne) {
  const Problem problem = OneRow(500, 1700, {6500, 8500}, 6500, 131);
  const Candidate rows = LightRowsCandidate(problem, problem.groups[0]);
  EXPECT_EQ(rows.bought_mm, 850'000);
  const Candidate alone = PerRowCandidate(problem, problem.groups[0], AllLengths(problem.supplies[0]));
  EXPECT_EQ(alone.bought_mm, 850'000);
  EXPECT_EQ(rows.table_weight, 119 * 10'100'000 + 9 * 13'300'000);
}

TEST(LightRowsCandidate, IsThatOfEveryNumberOfBarsTried) {
  test::Random random(5);
  for (int round = 0; round < 200; ++round) {
    std::vector<int> lengths{12000};
    for (const int mm : {3500, 5500, 6500, 8500, 9000, 11500}) {
      if (random.Chance(40)) lengths.push_back(mm);
    }
    std::ranges::sort(lengths);
    const int cut = random.Between(2, 60) * 100;
    const int pieces = random.Between(1, 300);
    const Problem problem = OneRow(cut, pieces, lengths, 12000, 1);
    const Supply& supply = problem.supplies[0];
    const Candidate alone = PerRowCandidate(problem, problem.groups[0], AllLengths(supply));
    Milligrams least = alone.table_weight;
    for (const StockLength& a : supply.lengths) {
      for (const StockLength& b : supply.lengths) {
        for (int bars = 0; a.mm >= cut && b.mm >= cut && bars <= pieces / (a.mm / cut); ++bars) {
          const int per_bar = b.mm / cut;
          const int others = (pieces - bars * (a.mm / cut) + per_bar - 1) / per_bar;
          if (a.cost * bars + b.cost * others > alone.cost) continue;
          least = std::min(least, a.table_weight * bars + b.table_weight * others);
        }
      }
    }
    const Candidate rows = LightRowsCandidate(problem, problem.groups[0]);
    EXPECT_EQ(rows.table_weight, least) << round;
    EXPECT_LE(rows.cost, alone.cost) << round;
  }
}

TEST(SolvePlan, WeighsNoMoreThanTheScheduleThoughItCostsLess) {
  for (const Effort effort : {Effort::full, Effort::greedy}) {
    for (Problem problem : {OneRow(500, 1700, {6500, 8500}, 6500, 131),
                            OneRow(1000, 978, {6500, 7000, 8500, 9500, 11000, 12000}, 7000, 140)}) {
      problem.options.effort = effort;
      EXPECT_TRUE(KeepsPromises(problem, SolvePlan(problem, nullptr, nullptr).groups[0]));
    }
  }
}

TEST(SolvePlan, WeighsNoMoreThanTheScheduleWhenItIsStoppedAtOnce) {
  const Problem problem = OneRow(500, 1700, {6500, 8500}, 6500, 131);
  const Plan plan = SolvePlan(
      problem, [] { return Stopped::time; }, nullptr);
  EXPECT_TRUE(KeepsPromises(problem, plan.groups[0]));
}

TEST(OfferMixtures, KeepsSomeBarsOfAPlanAndCutsTheRestFromTheLightestLength) {
  const Problem problem = OneRow(500, 1700, {6500, 8500}, 6500, 131);
  const Supply& supply = problem.supplies[0];
  const Promises promises = PromisesOf(problem, problem.groups[0]);
  const Candidate cheapest = PerRowCandidate(problem, problem.groups[0], AllLengths(supply));
  ASSERT_FALSE(promises.KeptBy(cheapest));
  CuttingTask task = MakeTask(problem, problem.groups[0]);
  for (Bar& bar : task.bars) bar.cost = bar.table_weight;
  Candidate best = cheapest;
  Pace pace(nullptr);
  OfferMixtures(supply, task, cheapest, promises, best, pace);
  EXPECT_TRUE(promises.KeptBy(best));
  std::int64_t pieces = 0;
  for (const Pattern& pattern : best.patterns) pieces += pattern.bars * pattern.pieces[0].second;
  EXPECT_EQ(pieces, 1700);
}

}  // namespace
}  // namespace rbt::planning
