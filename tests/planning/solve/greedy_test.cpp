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

Cutting CutAll(const CuttingTask& task, Ties ties = Ties::shorter) {
  Pace pace(nullptr);
  return CutGreedily(task, DemandOf(task), pace, ties).value();
}

Cutting CutOneGroup(const Problem& problem) { return CutAll(MakeTask(problem, problem.groups[0])); }

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
  const Cutting shorter = CutAll(task, Ties::shorter);
  ASSERT_THAT(shorter, SizeIs(1));
  EXPECT_EQ(shorter[0].bar, 0);
  EXPECT_EQ(shorter[0].count, 2);
  const Cutting fuller = CutAll(task, Ties::fuller);
  ASSERT_THAT(fuller, SizeIs(1));
  EXPECT_EQ(fuller[0].bar, 1);
  EXPECT_THAT(fuller[0].content, ElementsAre(Pair(0, 2)));
}

TEST(CutGreedily, TakesRestBarsFirst) {
  Problem problem = OneGroup({{3000, 4}}, {12000});
  problem.supplies[0].rests = {{3100, 1}, {6100, 1}};
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  const Cutting cutting = CutAll(task);
  EXPECT_EQ(CostOf(task, cutting), 12000 * kMm);
  ASSERT_THAT(cutting, SizeIs(3));
  EXPECT_TRUE(task.bars[static_cast<std::size_t>(cutting[0].bar)].rest);
  EXPECT_TRUE(task.bars[static_cast<std::size_t>(cutting[1].bar)].rest);
}

TEST(CutGreedily, CutsABarWholeThatItsTrimWouldForbid) {
  Problem problem = OneGroup({{6000, 2}, {2900, 2}}, {6000});
  problem.options.bar.trim = 50;
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(CostOf(task, CutAll(task)), 18000 * kMm);
}

/// Lengths on long bars that keep it busy for a while.
CuttingTask LongTask() {
  test::Random random(2);
  std::vector<std::pair<int, std::int64_t>> pieces;
  pieces.reserve(40);
  for (int n = 0; n < 40; ++n) pieces.emplace_back(random.Between(100'000, 400'000), 3);
  const Problem problem = OneGroup(pieces, {999'999, 1'000'000});
  return MakeTask(problem, problem.groups[0]);
}

TEST(CutGreedily, IsNothingWhereverItIsStopped) {
  const CuttingTask task = LongTask();
  int questions = 0;
  Pace counting([&] {
    ++questions;
    return Stopped::no;
  });
  ASSERT_TRUE(CutGreedily(task, DemandOf(task), counting).has_value());
  ASSERT_GT(questions, 10);
  for (int stop = 1; stop <= questions; ++stop) {
    int asked = 0;
    Pace pace([&] { return ++asked == stop ? Stopped::time : Stopped::no; });
    // At the last questions all may be cut already.
    const bool is_whole = CutGreedily(task, DemandOf(task), pace).has_value();
    EXPECT_TRUE(!is_whole || stop == questions) << stop;
    EXPECT_EQ(asked, stop);
    EXPECT_EQ(pace.Why(), Stopped::time);
  }
}

TEST(MakeTask, DropsALimitOfTheMixOfAsManyItemsAsThereAre) {
  Problem problem = OneGroup({{300, 90}, {200, 90}, {100, 90}}, {6000});
  problem.options.mix = 3;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).mix, 0);
  problem.options.mix = 2;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).mix, 2);
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
  Problem problem = OneGroup({{2340, 5}, {1800, 5}, {1700, 1}, {1600, 1}}, {6000});
  problem.options.mix = 3;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).mix, 0);
  problem.options.mix = 2;
  EXPECT_EQ(MakeTask(problem, problem.groups[0]).mix, 2);
}

}  // namespace
}  // namespace rbt::planning
