// SPDX-License-Identifier: MIT
#include "planning/verify/verify.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem_samples.h"
#include "planning/solve/plan_maker.h"

namespace rbt::planning {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr Micros kMm = 1'000'000;

/// Two lengths to buy, a rest bar, a schedule of its own; its plan uses all of them.
class SpoiltPlan : public ::testing::Test {
 protected:
  SpoiltPlan() {
    problem_ = test::OneGroup({{5000, 4}, {2400, 6}, {1000, 3}}, {6000, 12000});
    problem_.supplies[0].rests = {{5100, 1}};
    for (Cut& cut : problem_.groups[0].cuts) {
      for (PlannedRow& row : cut.rows) {
        row.own_mm = 12000;
        row.own_bars = row.pieces;
      }
    }
    plan_ = SolvePlan(problem_, nullptr, nullptr);
  }

  GroupPlan& Of() { return plan_.groups[0]; }
  Pattern& Bought() { return *std::ranges::find(Of().patterns, false, &Pattern::rest); }
  void ExpectFault(const std::string& words) const {
    EXPECT_THAT(FindFaults(problem_, plan_), Contains(HasSubstr(words)));
  }

  Problem problem_;
  Plan plan_;
};

TEST_F(SpoiltPlan, IsSoundBeforeItIsSpoilt) { EXPECT_THAT(FindFaults(problem_, plan_), IsEmpty()); }

TEST_F(SpoiltPlan, LacksAGroup) {
  plan_.groups.clear();
  ExpectFault("0 groups are planned, not 1");
}

TEST_F(SpoiltPlan, CutsABarOnceMore) {
  ++Bought().bars;
  ExpectFault("times, not");
}

TEST_F(SpoiltPlan, LacksAPiece) {
  Of().patterns.pop_back();
  ExpectFault("times, not");
}

TEST_F(SpoiltPlan, CutsAPieceThatNobodyAskedFor) {
  Of().patterns.push_back({6000, false, 1, {{777, 1}}});
  ExpectFault("piece 777 is not asked for");
}

TEST_F(SpoiltPlan, OverfillsABar) {
  problem_.options.bar.kerf = 300;
  ExpectFault("is overfilled");
}

TEST_F(SpoiltPlan, OverfillsABarByTheTrim) {
  problem_.options.bar.trim = 6000;
  ExpectFault("is overfilled");
}

TEST_F(SpoiltPlan, MixesTooManyLengths) {
  Of().patterns = {{12000, false, 1, {{5000, 1}, {2400, 2}, {1000, 2}}}};
  problem_.options.mix = 2;
  ExpectFault("mixes 3 lengths");
}

TEST_F(SpoiltPlan, BuysALengthThatIsNotAllowed) {
  Bought().stock_mm = 12500;
  ExpectFault("bar 12500 may not be bought");
}

TEST_F(SpoiltPlan, CutsARestBarThatIsNotThere) {
  ASSERT_TRUE(Of().patterns.front().rest);
  Of().patterns.front().stock_mm = 5200;
  ExpectFault("rest bar 5200 is not there");
}

TEST_F(SpoiltPlan, CutsMoreRestBarsThanThereAre) {
  Of().patterns.front().bars = 2;
  ExpectFault("2 rest bars of 5100 are cut, there are 1");
}

TEST_F(SpoiltPlan, CutsRestBarsForHoops) {
  problem_.supplies[0].steel.hoop = true;
  ExpectFault("is cut for hoops");
}

TEST_F(SpoiltPlan, HasAnEmptyBar) {
  Bought().pieces.clear();
  ExpectFault("is empty");
}

TEST_F(SpoiltPlan, HasAPieceNoTimes) {
  Bought().pieces.emplace_back(500, 0);
  ExpectFault("carries 0 pieces of 500");
}

TEST_F(SpoiltPlan, HasABarNoTimes) {
  Bought().bars = 0;
  ExpectFault("is cut 0 times");
}

TEST_F(SpoiltPlan, HasPiecesThatDoNotFall) {
  Bought().pieces.emplace_back(Bought().pieces.back());
  ExpectFault("its pieces do not fall");
}

TEST_F(SpoiltPlan, HasPatternsOutOfOrder) {
  std::ranges::reverse(Of().patterns);
  ExpectFault("is out of order");
}

TEST_F(SpoiltPlan, BuysTooManyLengths) {
  Of().patterns = {
      {12000, false, 2, {{5000, 2}}}, {6000, false, 3, {{2400, 2}}}, {6000, false, 1, {{1000, 3}}}};
  problem_.options.max_lengths = 1;
  ExpectFault("2 lengths are bought, allowed are 1");
}

TEST_F(SpoiltPlan, LeavesALotUnfilled) {
  for (StockLength& length : problem_.supplies[0].lengths) length.least_lot = 1'000'000'000;
  ExpectFault("is not filled");
}

TEST_F(SpoiltPlan, CostsMoreThanTheRowsAlone) {
  problem_.supplies[0].rests.clear();
  Of().patterns = {
      {12000, false, 4, {{5000, 1}}}, {12000, false, 6, {{2400, 1}}}, {12000, false, 3, {{1000, 1}}}};
  ExpectFault("it costs more than the per-row rule");
}

TEST_F(SpoiltPlan, BuysMoreThanTheSchedule) {
  for (Cut& cut : problem_.groups[0].cuts) {
    for (PlannedRow& row : cut.rows)
      row = {1, 1, row.pieces, cut.mm == 1000 ? 6000 : 12000, 0, {}, row.place};
  }
  problem_.supplies[0].rests.clear();
  Of().patterns = {
      {12000, false, 4, {{5000, 1}}}, {12000, false, 6, {{2400, 1}}}, {12000, false, 3, {{1000, 1}}}};
  ExpectFault("it buys more steel than the schedule");
}

/// 1700 pieces of 500 from 100 bars of 8500 or, as scheduled, 131 of 6500: the schedule costs more, but
/// weighs less at the table.
class PlanBesideALighterSchedule : public ::testing::Test {
 protected:
  PlanBesideALighterSchedule() {
    problem_ = test::OneGroup({{500, 1700}}, {6500, 8500});
    PlannedRow& row = problem_.groups[0].cuts[0].rows[0];
    row.own_mm = 6500;
    row.own_bars = 131;
    plan_ = SolvePlan(problem_, nullptr, nullptr);
  }

  Problem problem_;
  Plan plan_;
};

TEST_F(PlanBesideALighterSchedule, IsSoundFromBothLengths) {
  EXPECT_THAT(FindFaults(problem_, plan_), IsEmpty());
}

TEST_F(PlanBesideALighterSchedule, WeighsMoreThoughTwoLengthsWouldWeighLess) {
  plan_.groups[0].patterns = {{8500, false, 100, {{500, 17}}}};
  EXPECT_THAT(FindFaults(problem_, plan_), Contains(HasSubstr("it weighs more than the schedule")));
}

TEST_F(PlanBesideALighterSchedule, MayWeighMoreWhereNoTwoLengthsWeighLess) {
  for (Cut& cut : problem_.groups[0].cuts) {
    cut.count = 17;
    cut.rows[0].pieces = 17;
    cut.rows[0].own_bars = 2;
  }
  problem_.supplies[0].lengths[0].table_weight = 6'600'000;
  plan_ = SolvePlan(problem_, nullptr, nullptr);
  EXPECT_EQ(plan_.groups[0].patterns, (std::vector<Pattern>{{8500, false, 1, {{500, 17}}}}));
  EXPECT_THAT(FindFaults(problem_, plan_), IsEmpty());
}

TEST_F(SpoiltPlan, LacksAPrice) {
  Of().prices.pop_back();
  ExpectFault("it has 2 prices for 3 cuts");
}

TEST_F(SpoiltPlan, HasAPriceOfAnotherCut) {
  ++Of().prices[0].cut_mm;
  ExpectFault("price 1 is not that of 1000");
}

TEST_F(SpoiltPlan, HasAPriceBelowZero) {
  Of().prices[0].price = -1;
  ExpectFault("the price of 1000 is below 0");
}

TEST_F(SpoiltPlan, HasPricesThatMakeAContentWorthMoreThanItsBar) {
  Of().prices[2].price = 6001 * kMm;
  ExpectFault("a content of bar 6000 is worth more than the bar costs");
}

TEST_F(SpoiltPlan, HasABoundThatItsPricesDoNotProve) {
  for (Price& price : Of().prices) price.price = 0;
  Of().bound = 6000 * kMm;
  ExpectFault("its prices do not prove its bound");
}

TEST_F(SpoiltPlan, HasABoundThoughRestBarsBeyondNumberCouldCarryEveryPiece) {
  problem_.supplies[0].rests = {{12000, std::numeric_limits<std::int64_t>::max() / 2}};
  plan_ = SolvePlan(problem_, nullptr, nullptr);
  EXPECT_THAT(FindFaults(problem_, plan_), IsEmpty());
  EXPECT_EQ(Of().bound, 0);
  Of().bound = 1;
  ExpectFault("its prices do not prove its bound");
}

TEST_F(SpoiltPlan, HasABoundAboveItsCost) {
  Of().bound = 600'000 * kMm;
  ExpectFault("its bound is above its cost");
}

TEST_F(SpoiltPlan, HasABoundBelowZero) {
  Of().bound = -1;
  ExpectFault("its bound is below 0");
}

TEST_F(SpoiltPlan, HasAdviceThatRises) {
  plan_.advice = {{problem_.supplies[0].steel, {{1, {6000}, 100, 100}, {2, {6000, 12000}, 100, 101}}}};
  ExpectFault("the curve rises");
}

TEST_F(SpoiltPlan, HasAdviceOfTooManyLengths) {
  plan_.advice = {{problem_.supplies[0].steel, {{1, {6000, 12000}, 100}}}};
  ExpectFault("more lengths than 1");
}

TEST_F(SpoiltPlan, HasAdviceOfALengthThatMayNotBeBought) {
  plan_.advice = {{problem_.supplies[0].steel, {{1, {7000}, 100}}}};
  ExpectFault("7000 may not be bought");
}

TEST_F(SpoiltPlan, HasAdviceForASteelThatIsNotThere) {
  plan_.advice = {{{51, 1, false}, {}}};
  ExpectFault("there is no such steel");
}

TEST(Verifier, LooksAgainAtAGroupThatHasChanged) {
  const Problem problem = test::OneGroup({{2400, 6}}, {12000});
  Plan plan = SolvePlan(problem, nullptr, nullptr);
  Verifier verifier(problem);
  EXPECT_THAT(verifier.FindFaults(plan), IsEmpty());
  ++plan.groups[0].patterns[0].bars;
  EXPECT_THAT(verifier.FindFaults(plan), Contains(HasSubstr("times, not")));
  EXPECT_THAT(verifier.FindFaults(plan), Contains(HasSubstr("times, not")));
  --plan.groups[0].patterns[0].bars;
  EXPECT_THAT(verifier.FindFaults(plan), IsEmpty());
}

}  // namespace
}  // namespace rbt::planning
