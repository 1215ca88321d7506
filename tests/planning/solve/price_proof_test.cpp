// SPDX-License-Identifier: MIT
#include "planning/solve/price_proof.h"

#include <limits>

#include <gtest/gtest.h>

#include "planning/problem_samples.h"
#include "planning/solve/brute_force.h"

namespace rbt::planning {
namespace {

using test::BruteForce;
using test::kMm;
using test::OneGroup;

PriceProof Proven(const CuttingTask& task, const std::vector<double>& prices) {
  Pace pace(nullptr);
  return ProveBound(task, prices, pace).value();
}

TEST(RoundUpBound, GoesToAMultipleOfWhatAllCostsAreMultiplesOf) {
  const Problem problem = OneGroup({{2000, 1}}, {5500, 6000, 12000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(RoundUpBound(task, 0), 0);
  EXPECT_EQ(RoundUpBound(task, 1), 500 * kMm);
  EXPECT_EQ(RoundUpBound(task, 500 * kMm), 500 * kMm);
  EXPECT_EQ(RoundUpBound(task, 500 * kMm + 1), 1000 * kMm);
}

TEST(RoundUpBound, LeavesItWhereCostsAreNotWhole) {
  Problem problem = OneGroup({{2000, 1}}, {5500, 6000});
  problem.supplies[0].lengths[0].cost = 858'500'000;  // 858.5 yen
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(RoundUpBound(task, 1), 1);
}

TEST(ProveMaterialBound, IsTheMaterialRoundedUp) {
  const Problem problem = OneGroup({{2340, 5}, {1200, 3}}, {6000, 12000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(ProveMaterialBound(task).bound, 18000 * kMm);  // 15300 mm in steps of 6000
}

TEST(ProveMaterialBound, TakesWhatRestBarsCarryAway) {
  Problem problem = OneGroup({{2340, 5}, {1200, 3}}, {6000, 12000});
  problem.supplies[0].rests = {{5000, 2}};
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(ProveMaterialBound(task).bound, 6000 * kMm);  // 5300 mm
}

TEST(ProveMaterialBound, IsNothingWhereRestBarsCouldCarryEverythingHoweverManyTheyAre) {
  Problem problem = OneGroup({{2340, 5}}, {6000, 12000});
  for (const std::int64_t count : {1LL, 5LL, 999'999'999LL, std::numeric_limits<long long>::max()}) {
    problem.supplies[0].rests = {{12000, count}};
    const CuttingTask task = MakeTask(problem, problem.groups[0]);
    EXPECT_EQ(ProveMaterialBound(task).bound, 0) << count;
    EXPECT_EQ(Proven(task, MaterialPrices(task)).bound, 0) << count;
  }
}

TEST(ProveBound, IsThatOfThePiecesWhereNoneFitsARestBar) {
  Problem problem = OneGroup({{2340, 5}}, {6000, 12000});
  problem.supplies[0].rests = {{2000, std::numeric_limits<std::int64_t>::max()}};
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(Proven(task, MaterialPrices(task)).bound, 12000 * kMm);  // 11700 mm
}

TEST(ProveBound, LowersPricesUntilNoContentIsWorthMoreThanItsBar) {
  const Problem problem = OneGroup({{4000, 6}}, {6000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  const PriceProof proof = Proven(task, std::vector<double>{60000.0});
  EXPECT_EQ(proof.prices, std::vector<Micros>{6000 * kMm});
  EXPECT_EQ(proof.bound, 36000 * kMm);
}

TEST(ProveBound, RaisesPricesThatAreTooLow) {
  const Problem problem = OneGroup({{4000, 6}}, {6000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(Proven(task, std::vector<double>{1.0}).bound, 36000 * kMm);
}

TEST(ProveBound, CountsNoPieceMoreOftenThanItIsToBeCut) {
  // Two of 2000 fit, but there is only one: it may be worth the whole bar.
  const Problem problem = OneGroup({{2000, 1}}, {5000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  EXPECT_EQ(Proven(task, MaterialPrices(task)).bound, 5000 * kMm);
}

TEST(ProveBound, IsNoneWhenItIsStopped) {
  const Problem problem = OneGroup({{4001, 999}, {3001, 999}, {701, 999}, {307, 999}}, {1'000'000});
  const CuttingTask task = MakeTask(problem, problem.groups[0]);
  Pace pace([] { return Stopped::cancel; });
  EXPECT_FALSE(ProveBound(task, MaterialPrices(task), pace).has_value());
}

TEST(ProveBound, NeverPassesTheLeastCost) {
  for (std::uint64_t seed = 1; seed <= 150; ++seed) {
    test::RandomKind kind;
    kind.most_cuts = 3;
    kind.supplies = 1;
    kind.scopes = 1;
    Problem problem = test::RandomProblem(seed, kind);
    if (problem.groups.empty()) continue;
    for (Cut& cut : problem.groups[0].cuts) cut.count = 1 + cut.count % 3;
    const CuttingTask task = MakeTask(problem, problem.groups[0]);
    const Micros least = BruteForce(problem, problem.groups[0]).LeastCost();
    EXPECT_LE(ProveMaterialBound(task).bound, least) << seed;
    EXPECT_LE(Proven(task, MaterialPrices(task)).bound, least) << seed;
    std::vector<double> prices;
    test::Random random(seed);
    for (std::size_t i = 0; i < task.items.size(); ++i) prices.push_back(random.Between(0, 12000));
    EXPECT_LE(Proven(task, prices).bound, least) << seed;
  }
}

}  // namespace
}  // namespace rbt::planning
