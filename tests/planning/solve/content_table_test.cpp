// SPDX-License-Identifier: MIT
#include "planning/solve/content_table.h"

#include <functional>

#include <gtest/gtest.h>

#include "planning/problem_samples.h"

namespace rbt::planning {
namespace {

using test::Random;

struct Sample {
  CuttingTask task;
  std::vector<double> prices;
  std::vector<std::int64_t> left;
};

Sample RandomSample(Random& random) {
  Sample sample;
  for (int i = 0; i < random.Between(1, 6); ++i) {
    const int weight = random.Between(3, 40);
    sample.task.items.push_back({weight, weight, 0});
    sample.prices.push_back(random.Chance(20) ? 0.0 : random.Between(1, 500) / 10.0);
    sample.left.push_back(random.Between(0, 4));
  }
  const int capacity = random.Between(10, 90);
  sample.task.bars.push_back({capacity, capacity, 1'000'000});
  return sample;
}

/// The best worth of at most `kinds` items (below 0: any number) from `at` on.
double Best(const Sample& sample, std::size_t at, int room, int kinds) {
  if (at == sample.task.items.size() || kinds == 0) return 0.0;
  double best = Best(sample, at + 1, room, kinds);
  const int weight = sample.task.items[at].weight;
  for (int pieces = 1; pieces <= sample.left[at] && pieces * weight <= room; ++pieces) {
    best =
        std::max(best, pieces * sample.prices[at] + Best(sample, at + 1, room - pieces * weight, kinds - 1));
  }
  return best;
}

void ExpectBest(int kinds) {
  Pace pace(nullptr);
  Random random(static_cast<std::uint64_t>(100 + kinds));
  for (int trial = 0; trial < 150; ++trial) {
    const Sample sample = RandomSample(random);
    const auto table = MakeContentTable(sample.task, kinds);
    ASSERT_TRUE(table->Fill(sample.prices, sample.left, pace));
    for (int capacity = 0; capacity <= sample.task.bars[0].capacity; capacity += 7) {
      const double best = Best(sample, 0, capacity, kinds);
      ASSERT_NEAR(table->Worth(capacity), best, 1e-4) << trial << " " << capacity;
      double worth = 0.0;
      int weight = 0;
      const Content content = table->ContentAt(capacity);
      for (std::size_t c = 0; c < content.size(); ++c) {
        const auto [item, pieces] = content[c];
        const auto i = static_cast<std::size_t>(item);
        if (c > 0) {
          ASSERT_LT(content[c - 1].first, item);
        }
        ASSERT_LE(pieces, sample.left[i]);
        worth += pieces * sample.prices[i];
        weight += pieces * sample.task.items[i].weight;
      }
      ASSERT_NEAR(worth, best, 1e-4);
      ASSERT_LE(weight, capacity);
      if (kinds >= 0) {
        ASSERT_LE(static_cast<int>(content.size()), kinds);
      }
    }
  }
}

TEST(ContentTable, OfAnyItemsIsThatOfATrialOfAllWays) { ExpectBest(-1); }
TEST(ContentTable, OfNoItemIsEmpty) { ExpectBest(0); }
TEST(ContentTable, OfOneItemIsThatOfATrialOfAllWays) { ExpectBest(1); }
TEST(ContentTable, OfTwoItemsIsThatOfATrialOfAllWays) { ExpectBest(2); }
TEST(ContentTable, OfThreeItemsIsThatOfATrialOfAllWays) { ExpectBest(3); }

TEST(ContentTable, CanBeFilledAgain) {
  CuttingTask task;
  task.items = {{10, 10, 0}, {7, 7, 0}};
  task.bars.push_back({20, 20, 1'000'000});
  Pace pace(nullptr);
  const auto table = MakeContentTable(task, -1);
  table->Fill(std::vector<double>{5.0, 1.0}, std::vector<std::int64_t>{2, 2}, pace);
  EXPECT_NEAR(table->Worth(20), 10.0, 1e-6);
  table->Fill(std::vector<double>{1.0, 5.0}, std::vector<std::int64_t>{2, 1}, pace);
  EXPECT_NEAR(table->Worth(20), 6.0, 1e-6);
  table->Fill(std::vector<double>{0.0, 0.0}, std::vector<std::int64_t>{2, 1}, pace);
  EXPECT_EQ(table->Worth(20), 0.0);
  EXPECT_TRUE(table->ContentAt(20).empty());
}

TEST(ContentTable, IsFilledNoFurtherOnceItIsStopped) {
  CuttingTask task;
  std::vector<double> prices;
  for (int item = 0; item < 8; ++item) {
    task.items.push_back({1000 - item, 1000 - item, 0});
    prices.push_back(10.0 + item);
  }
  task.bars.push_back({200'000, 200'000, 1'000'000});
  const std::vector<std::int64_t> left(task.items.size(), 20);
  for (const int kinds : {-1, 2, 3}) {
    const auto table = MakeContentTable(task, kinds);
    int asked = 0;
    Pace pace([&] { return ++asked == 3 ? Stopped::time : Stopped::no; });
    EXPECT_FALSE(table->Fill(prices, left, pace)) << kinds;
    EXPECT_EQ(asked, 3) << kinds;
    EXPECT_EQ(pace.Why(), Stopped::time);
    EXPECT_EQ(pace.Spent(), 0);
    Pace patience(nullptr);
    EXPECT_TRUE(table->Fill(prices, left, patience)) << kinds;
    const auto fresh = MakeContentTable(task, kinds);
    fresh->Fill(prices, left, patience);
    EXPECT_EQ(table->Worth(200'000), fresh->Worth(200'000)) << kinds;
  }
}

}  // namespace
}  // namespace rbt::planning
