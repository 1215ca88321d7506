// SPDX-License-Identifier: MIT
#include "planning/solve/greedy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem_samples.h"

namespace rbt::planning {
namespace {

using test::kMm;
using test::OneGroup;
using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::SizeIs;

Cutting CutOneGroup(const Problem& problem) {
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  return CutGreedily(task, DemandOf(task));
}

TEST(CutGreedily, FillsTheBarThatLosesLeastForWhatItCarries) {
  const Problem problem = OneGroup({{2340, 5}, {300, 1}}, {5500, 12000});
  const Cutting cutting = CutOneGroup(problem);
  ASSERT_THAT(cutting, SizeIs(1));
  EXPECT_EQ(cutting[0].bar, 1);
  EXPECT_EQ(cutting[0].count, 1);
  EXPECT_THAT(cutting[0].content, ElementsAre(Pair(0, 5), Pair(1, 1)));
}

TEST(CutGreedily, RepeatsABarAsOftenAsThePiecesLast) {
  const Problem problem = OneGroup({{6000, 7}}, {12000});
  const Cutting cutting = CutOneGroup(problem);
  ASSERT_THAT(cutting, SizeIs(2));
  EXPECT_EQ(cutting[0].count, 3);
  EXPECT_EQ(cutting[1].count, 1);
  EXPECT_THAT(cutting[1].content, ElementsAre(Pair(0, 1)));
}

TEST(CutGreedily, TakesOfFullBarsTheShortestOrThatWhichCarriesMost) {
  const Problem problem = OneGroup({{3000, 2}}, {3000, 6000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  const Cutting shorter = CutGreedily(task, DemandOf(task), Ties::shorter);
  ASSERT_THAT(shorter, SizeIs(1));
  EXPECT_EQ(shorter[0].bar, 0);
  EXPECT_EQ(shorter[0].count, 2);
  const Cutting fuller = CutGreedily(task, DemandOf(task), Ties::fuller);
  ASSERT_THAT(fuller, SizeIs(1));
  EXPECT_EQ(fuller[0].bar, 1);
  EXPECT_THAT(fuller[0].content, ElementsAre(Pair(0, 2)));
}

TEST(CutGreedily, TakesRestBarsFirst) {
  Problem problem = OneGroup({{3000, 4}}, {12000});
  problem.supplies[0].rests = {{3100, 1}, {6100, 1}};
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  const Cutting cutting = CutGreedily(task, DemandOf(task));
  EXPECT_EQ(CostOf(task, cutting), 12000 * kMm);
  ASSERT_THAT(cutting, SizeIs(3));
  EXPECT_TRUE(task.bars[static_cast<std::size_t>(cutting[0].bar)].rest);
  EXPECT_TRUE(task.bars[static_cast<std::size_t>(cutting[1].bar)].rest);
}

TEST(CutGreedily, CutsABarWholeThatItsTrimWouldForbid) {
  Problem problem = OneGroup({{6000, 2}, {2900, 2}}, {6000});
  problem.options.bar.trim = 50;
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(CostOf(task, CutGreedily(task, DemandOf(task))), 18000 * kMm);
}

TEST(MakeTask, MeasuresWeightsByTheirCommonMeasure) {
  Problem problem = OneGroup({{2340, 5}, {1200, 1}}, {6000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(task.items[0].weight, 39);  // of 60 mm
  EXPECT_EQ(task.items[1].weight, 20);
  EXPECT_EQ(task.bars[0].capacity, 100);
  problem.options.bar.kerf = 1;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).bars[0].capacity, 6001);
}

TEST(MakeTask, DropsALimitOfTheMixThatNoBarReaches) {
  Problem problem = OneGroup({{2340, 5}, {1600, 1}}, {6000});
  problem.options.mix = 3;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).mix, 0);
  problem.options.mix = 2;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).mix, 2);
}

}  // namespace
}  // namespace rbt::planning
