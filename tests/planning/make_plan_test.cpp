// SPDX-License-Identifier: MIT
#include "planning/make_plan.h"

#include <algorithm>
#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/outcome/outcome.h"
#include "planning/outcome/plan_json.h"
#include "planning/problem/refusal.h"
#include "planning/problem_samples.h"
#include "planning/solve/brute_force.h"
#include "planning/solve/cover_lp.h"
#include "planning/solve/needed_bars.h"
#include "planning/verify/verify.h"
#include "support/sample.h"

namespace rbt::planning {
namespace {

using test::RandomKind;
using test::RandomProblem;
using ::testing::IsEmpty;

const StopSignal kGoOn = nullptr;

Micros CostOf(const Problem& problem, const Group& group, const GroupPlan& plan) {
  Micros cost = 0;
  for (const Pattern& pattern : plan.patterns) {
    for (const StockLength& length : problem.supplies[group.supply].lengths) {
      if (!pattern.rest && length.mm == pattern.stock_mm) cost += length.cost * pattern.bars;
    }
  }
  return cost;
}

/// Stops a plan when it has been asked so often.
StopSignal StopAtQuestion(int number) {
  return [left = number]() mutable { return --left < 0 ? Stopped::cancel : Stopped::no; };
}

TEST(MakePlan, KeepsEveryPromiseOverRandomProblems) {
  for (std::uint64_t seed = 1; seed <= 150; ++seed) {
    const Problem problem = RandomProblem(seed);
    const Plan plan = SolvePlan(problem, kGoOn, nullptr);
    EXPECT_THAT(FindFaults(problem, plan), IsEmpty()) << seed;
  }
}

TEST(MakePlan, KeepsEveryPromiseWithMoreRestBarsThanAnyGroupNeeds) {
  constexpr std::int64_t kMany = 999'999'999;
  int with_rests = 0;
  for (std::uint64_t seed = 300; seed <= 360; ++seed) {
    Problem problem = RandomProblem(seed);
    for (Supply& supply : problem.supplies) {
      for (RestBar& rest : supply.rests) rest.count = kMany;
      with_rests += static_cast<int>(supply.rests.size());
    }
    EXPECT_THAT(FindFaults(problem, SolvePlan(problem, kGoOn, nullptr)), IsEmpty()) << seed;
  }
  EXPECT_GT(with_rests, 50);
}

TEST(MakePlan, KeepsLimitsOfLengthsAndLotsOrIsRefused) {
  int planned = 0;
  for (std::uint64_t seed = 1; seed <= 80; ++seed) {
    RandomKind kind;
    kind.limits = true;
    const Problem problem = RandomProblem(seed, kind);
    try {
      EXPECT_THAT(FindFaults(problem, SolvePlan(problem, kGoOn, nullptr)), IsEmpty()) << seed;
      ++planned;
    } catch (const Refusal&) {
      continue;
    }
  }
  EXPECT_GT(planned, 40);
}

TEST(MakePlan, KeepsEveryPromiseWithGreedyEffort) {
  for (std::uint64_t seed = 200; seed <= 280; ++seed) {
    Problem problem = RandomProblem(seed);
    problem.options.effort = Effort::greedy;
    EXPECT_THAT(FindFaults(problem, SolvePlan(problem, kGoOn, nullptr)), IsEmpty()) << seed;
  }
}

/// One group of few pieces.
Problem TinyProblem(std::uint64_t seed, bool limits) {
  RandomKind kind;
  kind.most_cuts = 3;
  kind.supplies = 1;
  kind.scopes = 1;
  kind.schedule = false;
  kind.limits = limits;
  Problem problem = RandomProblem(seed, kind);
  for (Group& group : problem.groups) {
    for (Cut& cut : group.cuts) {
      cut.count = 1 + cut.count % 3;
      cut.rows.resize(1);
      cut.rows[0].pieces = cut.count;
    }
  }
  return problem;
}

/// What the plan of the only group costs; `kNever` where it is refused.
Micros CostOrRefusal(const Problem& problem, const StopSignal& signal) {
  try {
    return CostOf(problem, problem.groups[0], MakePlan(problem, signal).groups[0]);
  } catch (const Refusal&) {
    return test::BruteForce::kNever;
  }
}

TEST(MakePlan, IsTheCheapestWithLimitsOnTinyProblemsAndRefusedOnlyWhereThereIsNone) {
  int refused = 0;
  int best = 0;
  int all = 0;
  constexpr std::uint64_t kAll = 250;
  const std::uint64_t problems = rbt::test::ProblemsOf(kAll);
  for (std::uint64_t seed = 1; seed <= problems; ++seed) {
    Problem problem = TinyProblem(seed, true);
    if (problem.groups.empty()) continue;
    const Micros least = test::NeededBars(problem).LeastCost();
    const Micros cost = CostOrRefusal(problem, kGoOn);
    if (problem.options.max_lengths > 0 ||
        std::ranges::any_of(problem.supplies[0].lengths, [](const auto& l) { return l.least_lot > 0; })) {
      ++all;
      if (cost == least) ++best;
    }
    if (cost == test::BruteForce::kNever) {
      EXPECT_EQ(least, test::BruteForce::kNever) << seed;
      ++refused;
    }
    problem.options.effort = Effort::greedy;
    EXPECT_EQ(CostOrRefusal(problem, StopAtQuestion(0)) == test::BruteForce::kNever,
              cost == test::BruteForce::kNever)
        << seed << ": nor for want of time";
  }
  // Of fewer problems none may have to be refused.
  if (problems == kAll) {
    EXPECT_GE(refused, 3);
  }
  // Where the cheapest of all plans has a bar that only fills a lot, others are found that need not be the
  // best.
  EXPECT_GE(best * 100, all * 98) << best << " of " << all;
}

TEST(MakePlan, IsNotRefusedWhereOtherLengthsThanTheCheapestFillTheirLots) {
  // Forty pieces of 3.9 m: three on a bar of 12.0 m make 14 bars, one on a bar of 4.0 m 40, two on one of
  // 8.0 m 20.
  Problem problem = test::OneGroup({{3900, 40}}, {4000, 8000, 12000});
  std::vector<StockLength>& lengths = problem.supplies[0].lengths;
  lengths[0].least_lot = 41 * lengths[0].table_weight;
  lengths[1].least_lot = 20 * lengths[1].table_weight;
  lengths[2].least_lot = 15 * lengths[2].table_weight;
  EXPECT_EQ(CostOrRefusal(problem, kGoOn), 20 * lengths[1].cost);
  lengths[1].least_lot = 21 * lengths[1].table_weight;
  EXPECT_EQ(CostOrRefusal(problem, kGoOn), test::BruteForce::kNever)
      << "no bars are bought just to fill a lot";
}

TEST(MakePlan, BuysNoBarOnTinyProblemsThatOnlyFillsALot) {
  // Ten pieces of 1.0 m go on one bar of 12.0 m; a lot of six would be filled by spreading them.
  Problem problem = test::OneGroup({{1000, 10}}, {12000});
  StockLength& length = problem.supplies[0].lengths[0];
  length.least_lot = 6 * length.table_weight;
  EXPECT_EQ(CostOrRefusal(problem, kGoOn), test::BruteForce::kNever);
  length.least_lot = length.table_weight;
  EXPECT_EQ(CostOrRefusal(problem, kGoOn), length.cost);
}

TEST(MakePlan, IsNoFurtherFromTheLeastCostThanItsBoundSaysOnTinyProblems) {
  int best = 0;
  int all = 0;
  for (std::uint64_t seed = 1; seed <= 120; ++seed) {
    const Problem problem = TinyProblem(seed, false);
    if (problem.groups.empty()) continue;
    const Micros least = test::BruteForce(problem, problem.groups[0]).LeastCost();
    const Plan plan = SolvePlan(problem, kGoOn, nullptr);
    const Micros cost = CostOf(problem, problem.groups[0], plan.groups[0]);
    EXPECT_LE(plan.groups[0].bound, least) << seed;
    EXPECT_GE(cost, least) << seed;
    ++all;
    if (cost == least) ++best;
  }
  if (LinearProgramsAreSolved()) {
    EXPECT_GE(best * 100, all * 95) << best << " of " << all;
  }
}

TEST(MakePlan, GivesTheSameBytesAgainAlsoBesideOthers) {
  RandomKind kind;
  kind.most_cuts = 30;
  const Problem problem = RandomProblem(7, kind);
  const std::string alone = PlanJson(Describe(problem, MakePlan(problem, kGoOn)));
  std::vector<std::string> beside(4);
  std::vector<std::thread> threads;
  threads.reserve(beside.size());
  for (std::string& text : beside) {
    threads.emplace_back([&] { text = PlanJson(Describe(problem, MakePlan(problem, kGoOn))); });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_THAT(beside, ::testing::Each(alone));
}

TEST(MakePlan, HasAnAnswerAtEveryMoment) {
  RandomKind kind;
  kind.limits = true;
  Problem problem = RandomProblem(11, kind);
  problem.options.advise = 2;
  Stopped last = Stopped::cancel;
  for (int question = 0; last != Stopped::no && question < 4000; question += 1 + question / 4) {
    const Plan plan = MakePlan(problem, StopAtQuestion(question));
    EXPECT_THAT(FindFaults(problem, plan), IsEmpty()) << question;
    last = plan.stopped;
  }
  EXPECT_EQ(last, Stopped::no);
}

/// Many lengths that are cut from long bars.
Problem LongBars(int number) {
  test::Random random(1);
  std::vector<std::pair<int, std::int64_t>> pieces;
  pieces.reserve(static_cast<std::size_t>(number));
  for (int n = 0; n < number; ++n) pieces.emplace_back(random.Between(100'000, 400'000), 1);
  return test::OneGroup(pieces, {1'000'000});
}

TEST(MakePlan, IsThatSoFarWhereverItIsStoppedWhilePiecesAreCutGreedily) {
  Problem problem = LongBars(16);
  problem.options.effort = Effort::greedy;
  std::vector<Micros> costs;
  std::set<Method> methods;
  Stopped last = Stopped::cancel;
  for (int question = 0; last != Stopped::no; question += 1 + question / 16) {
    const Plan plan = MakePlan(problem, StopAtQuestion(question));
    costs.push_back(CostOf(problem, problem.groups[0], plan.groups[0]));
    methods.insert(plan.groups[0].method);
    last = plan.stopped;
    ASSERT_EQ(methods.size() == 1, plan.groups[0].method == Method::per_row) << question;
  }
  EXPECT_GT(costs.size(), 10u);
  EXPECT_TRUE(std::is_sorted(costs.rbegin(), costs.rend()));
  EXPECT_EQ(methods, (std::set{Method::per_row, Method::greedy}));
}

TEST(MakePlan, IsThatSoFarWhereverItIsStoppedWhileFewLengthsAreMixed) {
  Problem problem = test::OneGroup({{13, 900}, {11, 900}, {7, 900}, {5, 900}, {3, 900}}, {39'000, 40'000});
  problem.options.mix = 4;
  Stopped last = Stopped::cancel;
  int question = 0;
  for (; last != Stopped::no && question < 100'000; question += 1 + question / 4) {
    const Plan plan = MakePlan(problem, StopAtQuestion(question));
    EXPECT_THAT(FindFaults(problem, plan), IsEmpty()) << question;
    last = plan.stopped;
  }
  EXPECT_EQ(last, Stopped::no);
  EXPECT_GT(question, 50);
}

TEST(MakePlan, CutsGreedilyWhereBarsAreTooLongForTables) {
  const Problem problem = LongBars(400);
  const Plan plan = MakePlan(problem, kGoOn);
  EXPECT_EQ(plan.groups[0].method, Method::greedy);
}

TEST(MakePlan, BecomesNoWorseFromOneTellingToTheNext) {
  const Problem problem = RandomProblem(3);
  std::vector<Micros> costs;
  const auto listen = [&](const Plan& plan, std::size_t done, std::size_t of) {
    EXPECT_LE(done, of);
    Micros cost = 0;
    for (std::size_t g = 0; g < problem.groups.size(); ++g)
      cost += CostOf(problem, problem.groups[g], plan.groups[g]);
    costs.push_back(cost);
  };
  MakePlan(problem, kGoOn, listen);
  ASSERT_GE(costs.size(), 2u);
  EXPECT_TRUE(std::is_sorted(costs.rbegin(), costs.rend()));
}

TEST(MakePlan, AdvisesALengthMoreWhereWholeBarsGainByIt) {
  Problem problem = test::OneGroup({{5200, 7}, {2340, 50}, {1200, 33}}, {6000, 12000});
  problem.options.advise = 2;
  const Plan plan = MakePlan(problem, kGoOn);
  ASSERT_EQ(plan.advice.size(), 1u);
  ASSERT_EQ(plan.advice[0].curve.size(), 2u);
  EXPECT_EQ(plan.advice[0].curve[0].lengths, std::vector<int>{12000});
  EXPECT_LT(plan.advice[0].curve[1].bought_mm, plan.advice[0].curve[0].bought_mm);
}

TEST(MakeFirstPlan, IsWhereEverySearchBeginsHoweverManyLengthsItMayBuy) {
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    Problem problem = RandomProblem(seed);
    problem.options.max_lengths = seed % 2 == 0 ? 2 : 0;
    try {
      const Plan first = MakeFirstPlan(problem);
      std::vector<Plan> told;
      MakePlan(problem, kGoOn, [&](const Plan& plan, std::size_t, std::size_t) { told.push_back(plan); });
      EXPECT_EQ(first.groups, told.front().groups) << seed;
      EXPECT_EQ(first.stopped, problem.groups.empty() ? Stopped::no : Stopped::cancel) << seed;
    } catch (const Refusal&) {
      EXPECT_GT(problem.options.max_lengths, 0) << seed;
    }
  }
}

TEST(StopAfter, SaysTimeWhenItIsUpAndCancelWhenAsked) {
  EXPECT_EQ(StopAfter(0.0)(), Stopped::time);
  EXPECT_EQ(StopAfter(1000.0)(), Stopped::no);
  std::atomic<bool> cancelled = false;
  const StopSignal stop = StopAfter(1000.0, [&] { return cancelled.load(); });
  EXPECT_EQ(stop(), Stopped::no);
  cancelled = true;
  EXPECT_EQ(stop(), Stopped::cancel);
}

}  // namespace
}  // namespace rbt::planning
