// SPDX-License-Identifier: MIT
#include "planning/solve/reachable_sums.h"

#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem_samples.h"

namespace rbt::planning {
namespace {

using test::Random;
using ::testing::ElementsAre;
using ::testing::Pair;

CuttingTask TaskOf(const std::vector<int>& weights, int capacity, int mix = 0) {
  CuttingTask task;
  for (const int weight : weights) task.items.push_back({weight, weight, 0});
  task.bars.push_back({capacity, capacity, 1'000'000});
  task.mix = mix;
  return task;
}

TEST(OrShifted, MovesBitsAcrossWords) {
  std::vector<std::uint64_t> row(3, 0);
  row[0] = 1;
  OrShifted(row, row, 70);
  EXPECT_TRUE(TestBit(row, 0));
  EXPECT_TRUE(TestBit(row, 70));
  OrShifted(row, row, 64);
  EXPECT_TRUE(TestBit(row, 64));
  EXPECT_TRUE(TestBit(row, 134));
  EXPECT_FALSE(TestBit(row, 63));
}

TEST(HighestBit, LooksFromLowToHigh) {
  std::vector<std::uint64_t> row(3, 0);
  for (const int bit : {0, 5, 63, 64, 130})
    row[static_cast<std::size_t>(bit) / 64] |= std::uint64_t{1} << (bit % 64);
  EXPECT_EQ(HighestBit(row, 0, 191), 130);
  EXPECT_EQ(HighestBit(row, 0, 129), 64);
  EXPECT_EQ(HighestBit(row, 0, 63), 63);
  EXPECT_EQ(HighestBit(row, 6, 62), -1);
  EXPECT_EQ(HighestBit(row, 1, 62), 5);
}

TEST(ReachableSums, TakeNoPieceMoreOftenThanItIsLeft) {
  const CuttingTask task = TaskOf({50, 30, 20}, 120);
  ByIndex<std::int64_t> left{1, 1, 1};
  Pace pace(nullptr);
  ReachableSums sums(task, left, pace);
  sums.LeadWith(0);
  EXPECT_EQ(sums.Best(120), 100);
  EXPECT_THAT(sums.ContentOf(100), ElementsAre(Pair(0, 1), Pair(1, 1), Pair(2, 1)));
  left[2] = 2;
  sums.Renew(0, 2);
  sums.LeadWith(0);
  EXPECT_EQ(sums.Best(120), 120);
}

TEST(ReachableSums, HoldTheLeadingItem) {
  const CuttingTask task = TaskOf({50, 30}, 120);
  const ByIndex<std::int64_t> left{1, 9};
  Pace pace(nullptr);
  ReachableSums sums(task, left, pace);
  sums.LeadWith(0);
  EXPECT_EQ(sums.Best(120), 110);  // four of 30 would fill it
  EXPECT_EQ(sums.Best(40), 0);
  sums.LeadWith(1);
  EXPECT_EQ(sums.Best(120), 120);
}

TEST(ReachableSums, MixNoMoreItemsThanAllowed) {
  const ByIndex<std::int64_t> left{1, 1, 4};
  const CuttingTask two = TaskOf({50, 30, 10}, 100, 2);
  Pace pace(nullptr);
  ReachableSums sums(two, left, pace);
  sums.LeadWith(0);
  EXPECT_EQ(sums.Best(100), 90);  // 50 and four of 10; with 30 it would be 100
  const CuttingTask one = TaskOf({50, 30, 10}, 100, 1);
  ReachableSums alone(one, left, pace);
  alone.LeadWith(2);
  EXPECT_EQ(alone.Best(100), 40);
}

/// All sums of items from `at` on, with at most `kinds` of them (below 0: any number).
void Collect(const CuttingTask& task, const ByIndex<std::int64_t>& left, std::size_t at, int kinds, int sum,
             std::set<int>& sums) {
  if (at == task.items.size() || kinds == 0) {
    sums.insert(sum);
    return;
  }
  for (std::int64_t pieces = 0; pieces <= left[at]; ++pieces) {
    Collect(task, left, at + 1, pieces > 0 ? kinds - 1 : kinds,
            sum + static_cast<int>(pieces) * task.items[at].weight, sums);
  }
}

TEST(ReachableSums, AreThoseOfATrialOfAllWays) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    Random random(seed);
    std::vector<int> weights;
    ByIndex<std::int64_t> left;
    for (int i = 0; i < random.Between(1, 5); ++i) {
      weights.push_back(random.Between(1, 60));
      left.push_back(random.Between(0, 3));
    }
    const CuttingTask task = TaskOf(weights, random.Between(40, 150), random.Between(0, 3));
    Pace pace(nullptr);
    ReachableSums sums(task, left, pace);
    const auto lead = static_cast<std::size_t>(random.Between(0, static_cast<int>(weights.size()) - 1));
    sums.LeadWith(static_cast<int>(lead));
    std::set<int> all;
    for (std::int64_t pieces = 1; pieces <= left[lead]; ++pieces) {
      Collect(task, left, lead + 1, task.mix == 0 ? -1 : task.mix - 1,
              static_cast<int>(pieces) * weights[lead], all);
    }
    const int capacity = task.bars[0].capacity;
    const auto above = all.upper_bound(capacity);
    const int best = above == all.begin() ? 0 : *std::prev(above);
    ASSERT_EQ(sums.Best(capacity), best) << seed;
    int sum = 0;
    for (const auto& [item, pieces] : sums.ContentOf(best)) {
      sum += pieces * weights[static_cast<std::size_t>(item)];
      ASSERT_LE(pieces, left[static_cast<std::size_t>(item)]);
    }
    EXPECT_EQ(sum, best) << seed;
  }
}

}  // namespace
}  // namespace rbt::planning
