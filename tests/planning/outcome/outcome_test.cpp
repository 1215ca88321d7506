// SPDX-License-Identifier: MIT
#include "planning/outcome/outcome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/outcome/outcome_sample.h"

namespace rbt::planning {
namespace {

using test::SamplePlan;
using test::SampleProblem;
using ::testing::SizeIs;

Outcome Sample() { return Describe(SampleProblem(), SamplePlan()); }

TEST(Describe, WeighsBoughtBarsByUnitWeightAndByTheTable) {
  const Outcome outcome = Sample();
  ASSERT_THAT(outcome.groups, SizeIs(1));
  const OutcomeGroup& group = outcome.groups[0];
  EXPECT_EQ(group.steel_weight, 18'720'000);  // 12 m x 1.56
  EXPECT_EQ(group.table_weight, 18'700'000);  // three figures
  EXPECT_EQ(group.installed_weight,
            (5 * 2340 + 2 * 1200) * 1560);  // rest bars cost nothing, their pieces weigh
  EXPECT_DOUBLE_EQ(group.loss_percent, (18'720'000.0 / (14'100 * 1560) - 1.0) * 100.0);
}

TEST(Describe, MeasuresEveryPattern) {
  const Outcome outcome = Sample();
  const std::vector<OutcomePattern>& patterns = outcome.groups[0].patterns;
  ASSERT_THAT(patterns, SizeIs(2));
  EXPECT_EQ(patterns[0].used_mm, 2400);
  EXPECT_EQ(patterns[0].left_mm, 3600);
  EXPECT_EQ(patterns[0].cuts, 2);
  EXPECT_EQ(patterns[1].left_mm, 300);
}

TEST(Describe, TellsRowsWhoseBarsAreTooFew) {
  const Outcome outcome = Sample();
  ASSERT_THAT(outcome.short_rows, SizeIs(1));
  EXPECT_EQ(outcome.short_rows[0].line, 1);
  EXPECT_EQ(outcome.short_rows[0].bars_needed, 3);
}

TEST(Describe, OrdersPlannedAndKeptBarsOnOneLine) {
  const Outcome outcome = Sample();
  ASSERT_THAT(outcome.purchase, SizeIs(1));
  const PurchaseLine& line = outcome.purchase[0];
  EXPECT_EQ(line.stock_mm, 12000);
  EXPECT_EQ(line.planned, 1);
  EXPECT_EQ(line.kept, 4);
  EXPECT_EQ(line.table_weight, 5 * 18'700'000);
  EXPECT_EQ(line.yen, 9'350'000'000);  // 93.5 kg by 100 yen
}

TEST(Describe, KeepsRestsThatAreOfUse) {
  Problem problem = SampleProblem();
  EXPECT_THAT(Describe(problem, SamplePlan()).rests, SizeIs(1));
  problem.options.usable = 300;
  const Outcome outcome = Describe(problem, SamplePlan());
  ASSERT_THAT(outcome.rests, SizeIs(2));
  EXPECT_EQ(outcome.rests[0].mm, 300);
  EXPECT_EQ(outcome.rests[1].mm, 3600);
  EXPECT_EQ(outcome.plan.usable_weight, 3900 * 1560);
}

TEST(Describe, SetsTheWaysToCutSideBySide) {
  const Outcome outcome = Sample();
  EXPECT_FALSE(outcome.schedule);      // there is no site
  EXPECT_EQ(outcome.per_row.bars, 2);  // 5 x 2340 on one of 12.0 m, 2 x 1200 on one of 6.0 m
  EXPECT_EQ(outcome.per_row.steel_weight, 18'000 * 1560);
  EXPECT_EQ(outcome.per_row.cuts, 7);
  EXPECT_EQ(outcome.plan.common.bars, 1);
  EXPECT_EQ(outcome.plan.common.cuts, 7);
  EXPECT_EQ(outcome.plan.patterns, 2);
  EXPECT_EQ(outcome.plan.lengths, 1);
}

TEST(Describe, TellsHowFarTheBoundIs) {
  Plan plan = SamplePlan();
  plan.groups[0].bound = 6'000'000'000;
  const Outcome outcome = Describe(SampleProblem(), plan);
  EXPECT_EQ(outcome.bound.cost, 6000 * 1560);
  EXPECT_EQ(outcome.bound.plan_cost, 12'000 * 1560);
  EXPECT_EQ(outcome.bound.gap_percent, 100.0);
}

TEST(Describe, TellsNoLossOfMoney) {
  Problem problem = SampleProblem();
  problem.options.aim = Aim::money;
  for (StockLength& length : problem.supplies[0].lengths) length.cost = length.table_weight / 10;
  const Outcome outcome = Describe(problem, SamplePlan());
  EXPECT_EQ(outcome.bound.plan_cost, 1'870'000);
  EXPECT_EQ(outcome.bound.loss_percent, std::nullopt);
}

TEST(ProgressText, TellsLossAndBound) {
  EXPECT_EQ(ProgressText(SampleProblem(), SamplePlan(), 1, 3),
            "1 of 3 groups: loss -14.894 %, bound -14.894 %");
}

}  // namespace
}  // namespace rbt::planning
