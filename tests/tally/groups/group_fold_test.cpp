// SPDX-License-Identifier: MIT
#include "tally/groups/group_fold.h"

#include <initializer_list>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/bar_tables.h"
#include "platform/fault.h"
#include "support/kilograms.h"

namespace rbt {
namespace {

using test::Kg;

/// 4 pieces of 3.0 m, D19 (row 3), stock of 6.0 m (column 5) in the schedule.
BarGroup D19Group() {
  BarGroup group;
  group.diameter_code = 19;
  group.shape = 1;
  group.cut_length_mm = 3000;
  group.dimensions = "3000,,,,,,,,,,";
  group.stock_length_m = 6.0;
  group.pieces = Currency::FromInteger(4);
  return group;
}

BarGroup U9Group() {
  BarGroup group = D19Group();
  group.diameter_code = 9;
  return group;
}

/// Two pieces a bar of 6.0 m, so that a test sees which pieces share bars.
GroupRules TwoABar() {
  GroupRules rules;
  rules.choose_stock = [](const BarGroup& group) { return BarsOfGivenStock(group.pieces, 2, 6.0); };
  rules.bar_weight = BarWeight;
  return rules;
}

TallyTable Folded(std::initializer_list<BarGroup> groups, const GroupRules& rules = TwoABar()) {
  TallyTable table;
  GroupFold fold(table, rules);
  for (const BarGroup& group : groups) fold.Add(group);
  fold.Finish();
  return table;
}

std::optional<FaultKind> FaultOf(std::initializer_list<BarGroup> groups,
                                 const GroupRules& rules = TwoABar()) {
  try {
    Folded(groups, rules);
  } catch (const Fault& fault) {
    EXPECT_THAT(fault.Where(), testing::StartsWith("加工テーブル 太さ "));
    return fault.Kind();
  }
  return std::nullopt;
}

BarGroup WithPieces(BarGroup group, int pieces) {
  group.pieces = Currency::FromInteger(pieces);
  return group;
}

TEST(GroupFold, BuysStockForAGroup) {
  TallyTable expected;
  expected.BarCount[3][5] = 2;
  expected.StockWeight[3][5] = Kg(27);  // 13.5 kg a bar
  expected.CutLengthM[3][5] = 12.0;
  EXPECT_EQ(Folded({D19Group()}), expected);
}

TEST(GroupFold, OfNoGroupsIsEmpty) { EXPECT_EQ(Folded({}), TallyTable()); }

TEST(GroupFold, LetsEqualPiecesThatFollowEachOtherShareTheirBars) {
  BarGroup other_weld = D19Group();
  other_weld.weld_diameter_code = 25;
  BarGroup other_stock = D19Group();
  other_stock.stock_length_m = 9.0;
  const TallyTable table =
      Folded({WithPieces(D19Group(), 1), WithPieces(other_weld, 1), WithPieces(other_stock, 1)});
  EXPECT_EQ(table.BarCount[3][5], 2);  // three pieces together, two a bar
  EXPECT_EQ(table.CutLengthM[3][5], 9.0);
}

TEST(GroupFold, KeepsPiecesApartThatDifferInDiameterShapeLengthOrDimensions) {
  BarGroup diameter = D19Group();
  diameter.diameter_code = 22;
  BarGroup shape = D19Group();
  shape.shape = 2;
  BarGroup length = D19Group();
  length.cut_length_mm = 2999;
  BarGroup dimensions = D19Group();
  dimensions.dimensions = "1000,2000,,,,,,,,,";
  for (const BarGroup& other : {diameter, shape, length, dimensions}) {
    const TallyTable table = Folded({WithPieces(D19Group(), 1), WithPieces(other, 1)});
    EXPECT_EQ(table.BarCount[3][5] + table.BarCount[4][5], 2);
  }
}

TEST(GroupFold, KeepsPiecesOfOtherScheduleStockApartWhenThatStockStands) {
  BarGroup other = D19Group();
  other.stock_length_m = 9.0;
  GroupRules rules = TwoABar();
  rules.keep_schedule_stock = true;
  rules.choose_stock = [](const BarGroup& group) {
    return BarsOfGivenStock(group.pieces, 2, group.stock_length_m);
  };
  const TallyTable table = Folded({WithPieces(D19Group(), 1), WithPieces(other, 1)}, rules);
  EXPECT_EQ(table.BarCount[3][5], 1);
  EXPECT_EQ(table.BarCount[3][11], 1);
}

TEST(GroupFold, AddsTheRealCutLengthNotTheOneThatTheEngineShortens) {
  BarGroup group = WithPieces(D19Group(), 2);
  group.cut_length_mm = 12500;
  GroupRules rules = TwoABar();
  rules.choose_stock = [](const BarGroup&) { return StockResult{2, 1, 12.0}; };
  EXPECT_EQ(Folded({group}, rules).CutLengthM[3][17], 25.0);
}

TEST(GroupFold, CountsWeldsOfEveryGroupAtTheThickerDiameter) {
  BarGroup group = D19Group();
  group.welds = 4;
  BarGroup thicker = group;
  thicker.weld_diameter_code = 25;
  BarGroup thinner = group;
  thinner.weld_diameter_code = 16;
  const TallyTable table = Folded({group, thicker, thinner});
  EXPECT_EQ(table.WeldCount[3], 8);
  EXPECT_EQ(table.WeldCount[5], 4);
}

TEST(GroupFold, DropsTheWeldsOfHoopsByTheSetting) {
  BarGroup hoop = D19Group();
  hoop.shape = 87;
  hoop.welds = 4;
  GroupRules rules = TwoABar();
  rules.count_hoop_welds = false;
  EXPECT_EQ(Folded({hoop}).WeldCount[3], 4);
  EXPECT_EQ(Folded({hoop}, rules).WeldCount[3], 0);
  EXPECT_EQ(Folded({hoop}, rules).BarCount[3][5], 2);
  BarGroup bent = hoop;
  bent.shape = 2;
  EXPECT_EQ(Folded({hoop, bent}, rules).WeldCount[3], 4);  // no other shape's
}

TEST(GroupFold, CountsThreadsAndPlatesOfEveryGroup) {
  BarGroup group = D19Group();
  group.threads = 5;
  group.plates = 6;
  const TallyTable table = Folded({group, group});
  EXPECT_EQ(table.ThreadCount[3], 10);
  EXPECT_EQ(table.PlateCount[3], 12);
}

TEST(GroupFold, FaultsAtAWeldRowThatIsNoDiameterEvenWithoutAWeld) {
  BarGroup group = D19Group();
  group.weld_diameter_code = 20;
  EXPECT_EQ(FaultOf({group}), FaultKind::subscript_out_of_range);
  group.welds = 0;
  EXPECT_EQ(FaultOf({group}), FaultKind::subscript_out_of_range);
  group.shape = 87;
  GroupRules rules = TwoABar();
  rules.count_hoop_welds = false;
  EXPECT_EQ(FaultOf({group}, rules), std::nullopt);
}

TEST(GroupFold, FaultsAtAStockLengthWithoutColumn) {
  for (const double metres : {12.5, 3.6, 0.0}) {
    GroupRules rules = TwoABar();
    rules.choose_stock = [metres](const BarGroup&) { return StockResult{1, 1, metres}; };
    EXPECT_EQ(FaultOf({D19Group()}, rules), FaultKind::subscript_out_of_range) << metres;
  }
}

TEST(GroupFold, FaultsAtAThinBarThatIsNoUlbon) {
  EXPECT_EQ(FaultOf({U9Group()}), FaultKind::field_not_found);
  EXPECT_EQ(FaultOf({U9Group(), D19Group()}), FaultKind::field_not_found);
  BarGroup unknown = D19Group();
  unknown.diameter_code = 8;
  EXPECT_EQ(FaultOf({unknown}), FaultKind::subscript_out_of_range);
}

TEST(GroupFold, FaultsAtAThinBarBetweenDeformedOnesAtItsWelds) {
  BarGroup d10 = D19Group();
  d10.diameter_code = 10;
  BarGroup d11 = D19Group();
  d11.diameter_code = 11;
  EXPECT_EQ(FaultOf({d10, d11, D19Group()}), FaultKind::subscript_out_of_range);
  d11.shape = 87;  // no weld statement: the row after it finds the thin bar held
  GroupRules rules = TwoABar();
  rules.count_hoop_welds = false;
  EXPECT_EQ(FaultOf({d10, d11, D19Group()}, rules), FaultKind::field_not_found);
  EXPECT_EQ(FaultOf({d10, d11}, rules), FaultKind::subscript_out_of_range);
}

TEST(GroupFold, TakesWeightsOfThePageTableAt13Metres) {
  GroupRules rules = TwoABar();
  rules.choose_stock = [](const BarGroup&) { return StockResult{2, 1, 13.0}; };
  rules.bar_weight = [](int d, int l) {
    return Get_BarWeightTbl(static_cast<std::int16_t>(d), static_cast<std::int16_t>(l));
  };
  const TallyTable table = Folded({D19Group()}, rules);
  EXPECT_EQ(table.BarCount[3][18], 2);
  EXPECT_EQ(table.StockWeight[3][18], Kg(21.2));  // two of D22 at 3.5 m: 3.04 x 3.5 = 10.64, 10.6
  BarGroup d51 = D19Group();
  d51.diameter_code = 51;
  EXPECT_EQ(FaultOf({d51}, rules), FaultKind::subscript_out_of_range);
}

TEST(FoldUlbonGroup, AddsMetresWeightAndCountsAndNoStock) {
  BarGroup group = U9Group();
  group.welds = 1;
  group.threads = 2;
  group.plates = 3;
  TallyTable table;
  FoldUlbonGroup(table, group, true);
  TallyTable expected;
  expected.UlbonLengthM[14] = 12.0;
  expected.UlbonWeight[14] = 6.0;  // 0.5 kg/m
  expected.UlbonWeldCount[14] = 1;
  expected.UlbonThreadCount[14] = 2;
  expected.UlbonPlateCount[14] = 3;
  EXPECT_EQ(table, expected);
}

TEST(FoldUlbonGroup, WeighsAllMetresOfADiameterAtOnce) {
  BarGroup three = WithPieces(U9Group(), 3);
  BarGroup two = WithPieces(U9Group(), 2);
  three.diameter_code = two.diameter_code = 11;
  three.cut_length_mm = 1002;
  three.threads = two.threads = 2;
  three.plates = two.plates = 5;
  two.cut_length_mm = 2001;
  TallyTable table;
  FoldUlbonGroup(table, three, true);
  FoldUlbonGroup(table, two, true);
  EXPECT_EQ(table.UlbonWeight[15], 4.97568);  // 7.008 m x 0.71; 2.13426 + 2.84142 ends in ...0005
  EXPECT_EQ(table.UlbonThreadCount[15], 4);
  EXPECT_EQ(table.UlbonPlateCount[15], 10);
}

TEST(FoldUlbonGroup, CountsAWeldAtTheThickerUlbonDiameter) {
  BarGroup group = U9Group();
  group.welds = 1;
  group.weld_diameter_code = 12;
  TallyTable table;
  FoldUlbonGroup(table, group, true);
  EXPECT_EQ(table.UlbonWeldCount[16], 1);
  group.weld_diameter_code = 13;
  EXPECT_THROW(FoldUlbonGroup(table, group, true), Fault);
  group.shape = 87;
  FoldUlbonGroup(table, group, false);
  EXPECT_EQ(table.UlbonWeldCount[16], 1);
}

TEST(FoldUlbonGroup, TakesANullLengthAsNothingAndFaultsAtNoUlbonDiameter) {
  BarGroup group = U9Group();
  group.cut_length_mm = std::nullopt;
  TallyTable table;
  FoldUlbonGroup(table, group, true);
  EXPECT_EQ(table, TallyTable());
  EXPECT_THROW(FoldUlbonGroup(table, D19Group(), true), Fault);
}

}  // namespace
}  // namespace rbt
