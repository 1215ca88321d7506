// SPDX-License-Identifier: MIT
#include "planning/input/make_problem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/problem/refusal.h"
#include "support/fault_of.h"
#include "tally/closing_sums.h"

namespace rbt::planning {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

/// A D16 row of 6.0 m with 10 pieces of 2340 out of 5 bars on floor 1.
SteelRow Row() {
  SteelRow row;
  row.page = 3;
  row.line = 1;
  row.floor = 1;
  row.diameter = 16;
  row.stock_m = 6.0;
  row.stock_bars = 5;
  row.pieces = 10;
  row.cut_length_mm = 2340;
  return row;
}

SiteSchedule Schedule(const std::vector<SteelRow>& rows) {
  SiteSchedule schedule;
  schedule.rows = rows;
  for (const SteelRow& of : rows) {
    BarRow row;
    row.diameter_code = of.diameter;
    row.shape = of.hoop ? 87 : 1;
    row.stock_length_m = of.stock_m;
    row.stock_bars = of.stock_bars;
    row.pieces = of.pieces;
    row.cut_length_mm = of.cut_length_mm;
    row.kind = of.kind;
    FoldRow(schedule.table, row, {});
  }
  return schedule;
}

Problem ProblemOf(const std::vector<SteelRow>& rows, const PlanOptions& options = {}) {
  SiteLengths lengths;
  for (const int diameter : {13, 16}) lengths.limits.Set(diameter, 3500, 12000);
  return MakeProblem(Schedule(rows), lengths, {}, Scopes::Of(options.scope).value(), options);
}

/// Why a row stays as scheduled; nothing when it is planned.
std::optional<KeptReason> ReasonOf(const SteelRow& row, const PlanOptions& options = {}) {
  const Problem problem = ProblemOf({row}, options);
  if (problem.kept.empty()) return std::nullopt;
  EXPECT_THAT(problem.groups, SizeIs(0));
  return problem.kept.front().reason;
}

TEST(MakeProblem, PlansARow) {
  EXPECT_EQ(ReasonOf(Row()), std::nullopt);
  const Problem problem = ProblemOf({Row()});
  ASSERT_THAT(problem.groups, SizeIs(1));
  EXPECT_EQ(problem.groups[0].scope, "site");
  ASSERT_THAT(problem.groups[0].cuts, SizeIs(1));
  EXPECT_EQ(problem.groups[0].cuts[0].count, 10);
  EXPECT_EQ(problem.groups[0].cuts[0].rows[0].own_mm, 6000);
  EXPECT_EQ(problem.groups[0].cuts[0].rows[0].own_bars, 5);
}

TEST(MakeProblem, KeepsARowThatTheSetOfItsSteelDoesNotHold) {
  SiteLengths lengths;
  lengths.limits.Set(16, 3500, 12000);
  SteelRow hoop = Row();
  hoop.hoop = true;
  SteelRow longer = Row();
  longer.stock_m = 9.0;
  longer.cut_length_mm = 8800;
  BarOffer offer;
  offer.sets[{16, 1, false}] = {6000};
  const Problem problem =
      MakeProblem(Schedule({Row(), longer, hoop}), lengths, offer, Scopes::Of("site").value(), {});
  ASSERT_THAT(problem.kept, SizeIs(1));
  EXPECT_EQ(problem.kept[0].reason, KeptReason::too_long);
  EXPECT_EQ(problem.kept[0].stock_mm, 9000);
  ASSERT_THAT(problem.supplies, SizeIs(2));
  EXPECT_THAT(problem.supplies[0].lengths, SizeIs(1));
  EXPECT_GT(problem.supplies[1].lengths.size(), 1u) << "the set is that of bars, not of hoops";
}

TEST(MakeProblem, KeepsARowWithoutAColumn) {
  SteelRow row = Row();
  row.stock_m = 12.5;
  EXPECT_EQ(ReasonOf(row), KeptReason::column);
  row.stock_m = 13.0;
  EXPECT_EQ(ReasonOf(row), KeptReason::column);
}

TEST(MakeProblem, KeepsARowWithoutPiecesOrCut) {
  for (const auto& spoil :
       {+[](SteelRow& r) { r.pieces.reset(); }, +[](SteelRow& r) { r.pieces = 0; },
        +[](SteelRow& r) { r.cut_length_mm.reset(); }, +[](SteelRow& r) { r.cut_length_mm = -1; }}) {
    SteelRow row = Row();
    spoil(row);
    EXPECT_EQ(ReasonOf(row), KeptReason::empty);
  }
}

TEST(MakeProblem, KeepsARowWhosePieceIsJoined) {
  SteelRow row = Row();
  row.cut_length_mm = 6001;
  EXPECT_EQ(ReasonOf(row), KeptReason::joined);
  PlanOptions options;
  options.bar.plus = 1;
  EXPECT_EQ(ReasonOf(row, options), std::nullopt);
}

TEST(MakeProblem, KeepsAWeldedRowWhereAskedTo) {
  SteelRow row = Row();
  row.welded = true;
  EXPECT_EQ(ReasonOf(row), std::nullopt);
  PlanOptions options;
  options.keep_welded = true;
  EXPECT_EQ(ReasonOf(row, options), KeptReason::welded);
}

TEST(MakeProblem, KeepsARowOfNoScope) {
  PlanOptions options;
  options.scope = "2..5";
  EXPECT_EQ(ReasonOf(Row(), options), KeptReason::scope);
  options.scope = "1..5";
  EXPECT_EQ(ReasonOf(Row(), options), std::nullopt);
}

TEST(MakeProblem, KeepsARowThatNoAllowedBarHolds) {
  SteelRow row = Row();
  row.cut_length_mm = 5990;
  PlanOptions options;
  options.bar.trim = 6100;
  EXPECT_EQ(ReasonOf(row, options), KeptReason::too_long);
}

TEST(MakeProblem, SaysTheFirstReasonThatHolds) {
  SteelRow row = Row();
  row.stock_m = 12.5;
  row.pieces = 0;
  EXPECT_EQ(ReasonOf(row), KeptReason::column);
  row = Row();
  row.cut_length_mm = 9000;
  row.welded = true;
  PlanOptions options;
  options.keep_welded = true;
  options.scope = "2";
  EXPECT_EQ(ReasonOf(row, options), KeptReason::joined);
}

TEST(MakeProblem, PartsGroupsByScopeDiameterKindAndHoop) {
  SteelRow other = Row();
  other.floor = 2;
  other.diameter = 13;
  SteelRow kind = Row();
  kind.kind = 3;
  SteelRow hoop = Row();
  hoop.hoop = true;
  PlanOptions options;
  options.scope = "floor";
  const Problem problem = ProblemOf({other, hoop, kind, Row()}, options);
  std::vector<std::string> groups;
  for (const Group& group : problem.groups) {
    const BarSteel& steel = problem.supplies[group.supply].steel;
    groups.push_back(group.scope + " " + std::to_string(steel.diameter) + " " + std::to_string(steel.kind) +
                     (steel.hoop ? " hoop" : ""));
  }
  EXPECT_THAT(groups, ElementsAre("1 16 1", "1 16 1 hoop", "1 16 3", "2 13 1"));
}

TEST(MakeProblem, LeavesTheBarsOfKeptRowsInTheTally) {
  SteelRow kept = Row();
  kept.pieces = 0;
  kept.stock_bars = 7;
  const Problem problem = ProblemOf({Row(), kept});
  ASSERT_TRUE(problem.site_tally);
  const int column = 5;
  EXPECT_EQ(problem.site_tally->schedule.BarCount[2][column], 12);
  EXPECT_EQ(problem.site_tally->kept.BarCount[2][column], 7);
  EXPECT_EQ(problem.kept.front().bars, 7);
  EXPECT_EQ(problem.kept.front().table_weight, 9'360'000);
}

TEST(MakeProblem, RefusesAPieceOfAFileThatNoBarHolds) {
  BarOffer offer;
  offer.lengths = {{9000, 12000}};
  const auto refusal = [&](const PlanOptions& options, int length) -> std::string {
    try {
      MakeProblem({PieceLine{7, length, 1, 16, 1, ""}}, offer, options);
    } catch (const Refusal& refused) {
      return refused.what();
    }
    return "";
  };
  EXPECT_EQ(refusal({}, 12500), "line 7: piece 12500 is longer than the longest bar 12000");
  PlanOptions trim;
  trim.bar.trim = 20;
  EXPECT_EQ(refusal(trim, 11990), "line 7: piece 11990 is longer than the longest bar 12000");
  EXPECT_EQ(refusal(trim, 12000), "");
}

TEST(MakeProblem, TakesCountsWhoseBarsCanBeReckoned) {
  BarOffer offer;
  offer.lengths = {{9000, 12000}};
  const auto problem_of = [&](int length, std::int64_t count) {
    return MakeProblem({PieceLine{2, length, count, 16, 1, ""}}, offer, {});
  };
  EXPECT_EQ(problem_of(100, 1'000'000'000).groups[0].cuts[0].count, 1'000'000'000);
  EXPECT_EQ(problem_of(2340, 900'000'000).groups[0].cuts[0].count, 900'000'000);
  EXPECT_EQ(rbt::test::FaultOf([&] { problem_of(11000, 1'000'000'000); }), FaultKind::overflow);
}

}  // namespace
}  // namespace rbt::planning
