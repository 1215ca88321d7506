// SPDX-License-Identifier: MIT
#include "planning/solve/limited_supply.h"

#include <algorithm>
#include <optional>

#include <gtest/gtest.h>

#include "planning/problem/refusal.h"
#include "planning/problem_samples.h"
#include "planning/solve/plan_maker.h"
#include "support/sample.h"

namespace rbt::planning {
namespace {

using test::RandomKind;
using test::RandomProblem;

constexpr int kMost = 4;

/// Pieces of one steel in one or two scopes; small problems are where whole bars and bars in parts differ.
Problem LimitedSample(std::uint64_t seed, bool lots = false) {
  RandomKind kind;
  kind.most_cuts = seed % 3 == 0 ? 30 : 6;
  kind.supplies = 1;
  kind.scopes = 1 + static_cast<int>(seed % 2);
  kind.limits = lots;
  Problem problem = RandomProblem(seed, kind);
  problem.options.effort = seed % 4 == 3 ? Effort::greedy : Effort::full;
  problem.options.max_lengths = 0;
  return problem;
}

Micros CostOfPlan(const Problem& problem, const Plan& plan) {
  Micros cost = 0;
  for (std::size_t g = 0; g < plan.groups.size(); ++g) {
    const std::vector<StockLength>& lengths = problem.supplies[problem.groups[g].supply].lengths;
    for (const Pattern& pattern : plan.groups[g].patterns) {
      if (pattern.rest) continue;
      cost += std::ranges::find(lengths, pattern.stock_mm, &StockLength::mm)->cost * pattern.bars;
    }
  }
  return cost;
}

/// What the plan of at most so many lengths costs; nothing where it is refused.
std::optional<Micros> CostOfLengths(Problem problem, int most) {
  problem.options.max_lengths = most;
  try {
    return CostOfPlan(problem, SolvePlan(problem, nullptr, nullptr));
  } catch (const Refusal&) {
    return std::nullopt;
  }
}

void ExpectMoreLengthsToCostNoMore(const Problem& problem, std::uint64_t seed) {
  std::optional<Micros> last;
  for (int most = 1; most <= kMost; ++most) {
    const std::optional<Micros> cost = CostOfLengths(problem, most);
    EXPECT_TRUE(cost || !last) << seed << ": " << most;
    if (cost && last) {
      EXPECT_LE(*cost, *last) << seed << ": " << most;
    }
    last = cost;
  }
}

TEST(LimitedSupply, CostsNoMoreWhereMoreLengthsAreAllowed) {
  for (std::uint64_t seed = 1; seed <= rbt::test::ProblemsOf(120); ++seed)
    ExpectMoreLengthsToCostNoMore(LimitedSample(seed), seed);
}

TEST(LimitedSupply, CostsNoMoreWhereMoreLengthsAreAllowedThatHaveLots) {
  for (std::uint64_t seed = 1; seed <= rbt::test::ProblemsOf(60); ++seed)
    ExpectMoreLengthsToCostNoMore(LimitedSample(seed, true), seed);
}

TEST(LimitedSupply, CostsNoMoreThanOneLengthThatAloneIsAllowed) {
  int compared = 0;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    const Problem problem = LimitedSample(seed);
    if (problem.groups.empty()) continue;
    const std::optional<Micros> limited = CostOfLengths(problem, 1 + static_cast<int>(seed % 2));
    for (std::size_t length = 0; length < problem.supplies[0].lengths.size(); ++length) {
      if (!HoldsAll(problem, GroupsOf(problem, 0), {length})) continue;
      Problem alone = problem;
      alone.supplies[0].lengths = {problem.supplies[0].lengths[length]};
      EXPECT_LE(limited, CostOfPlan(alone, SolvePlan(alone, nullptr, nullptr))) << seed << ": " << length;
      ++compared;
    }
  }
  EXPECT_GT(compared, 60);
}

/// Pieces of slit bars: the cheapest set of two lengths by bars in parts is dearer than one length.
Problem SlitBars() {
  Problem problem = test::OneGroup({{1080, 14}, {1050, 44}, {950, 76}, {720, 24}, {600, 20}}, {});
  std::vector<int> lengths;
  for (int mm = 3500; mm <= 12000; mm += 500) lengths.push_back(mm);
  problem.supplies[0].lengths = test::Lengths(10, lengths);
  problem.supplies[0].steel.diameter = 10;
  problem.options.bar.kerf = 3;
  problem.options.bar.trim = 25;
  problem.options.mix = 2;
  return problem;
}

TEST(LimitedSupply, TakesOneLengthWhereTwoAreNoCheaper) {
  const Problem problem = SlitBars();
  const std::optional<Micros> one = CostOfLengths(problem, 1);
  const std::optional<Micros> two = CostOfLengths(problem, 2);
  ASSERT_TRUE(one && two);
  EXPECT_LE(*two, *one);
  for (const StockLength& length : problem.supplies[0].lengths) {
    Problem alone = problem;
    alone.supplies[0].lengths = {length};
    EXPECT_LE(*one, CostOfPlan(alone, SolvePlan(alone, nullptr, nullptr))) << length.mm;
  }
}

}  // namespace
}  // namespace rbt::planning
