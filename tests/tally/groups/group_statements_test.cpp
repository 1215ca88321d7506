// SPDX-License-Identifier: MIT
#include "tally/groups/group_statements.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rbt {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

SelectionData Shapes(std::int32_t first, std::int32_t last) {
  SelectionData selection;
  selection.ShapeStart = first;
  selection.ShapeEnd = last;
  return selection;
}

TEST(ShapeUlbonStatement, RangesByTheHoopMode) {
  SelectionData selection = Shapes(5, 200);
  const std::string tail = " GROUP BY 太さ,圧接太さ,形状No,伸切寸,予備5 ";
  EXPECT_THAT(ShapeUlbonStatement(selection), EndsWith(" AND 形状No Between 5 And 200" + tail));
  selection.HoopMode = ShapeFilter::left_out;
  EXPECT_THAT(ShapeUlbonStatement(selection),
              EndsWith(" AND ((形状No Between 5 AND 86) OR (形状No Between 88 AND 200))" + tail));
  selection.HoopMode = ShapeFilter::alone;
  EXPECT_THAT(ShapeUlbonStatement(selection), EndsWith(" AND 形状No=87" + tail));
}

TEST(ShapeUlbonStatement, DoesNotLookAtTheKinds) {
  SelectionData selection = Shapes(5, 200);
  const std::string all = ShapeUlbonStatement(selection);
  selection.MaterialKindMask = KindMask(4);
  EXPECT_EQ(ShapeUlbonStatement(selection), all);
}

TEST(ShapeStatements, CloseTheKindsInTheParenthesisOfTheHead) {
  const GroupStatements statements = ShapeStatements(Shapes(1, 9), false, false);
  EXPECT_THAT(statements.main, EndsWith("伸定尺 is not NULL  AND 予備2<>2 ) AND 形状No Between 1 AND 9"));
  SelectionData selection = Shapes(1, 9);
  for (int mask = 1; mask <= 15; ++mask) {
    selection.MaterialKindMask = KindMask(mask);
    const std::string& main = ShapeStatements(selection, true, true).main;
    EXPECT_EQ(std::count(main.begin(), main.end(), '('), std::count(main.begin(), main.end(), ')')) << mask;
  }
}

TEST(ShapeStatements, OfAnUnknownMaskLeaveTheParenthesisOpen) {
  SelectionData selection = Shapes(1, 9);
  selection.MaterialKindMask = KindMask(16);
  const std::string main = ShapeStatements(selection, false, false).main;
  EXPECT_EQ(std::count(main.begin(), main.end(), '('), std::count(main.begin(), main.end(), ')') + 1);
}

TEST(ShapeStatements, GiveTheCutsNoRangeWhenTheRangeHasNoHoops) {
  const GroupStatements statements = ShapeStatements(Shapes(1, 9), false, false);
  EXPECT_THAT(statements.cuts, EndsWith("AND 予備2<>2 )"));
}

TEST(ShapeStatements, GiveBothTheRangeOfTheHoopModeWhenTheRangeHasHoops) {
  SelectionData selection = Shapes(1, 99);
  const char* const ranges[] = {" AND 形状No Between 1 AND 99",
                                " AND (形状No Between 1 AND 86 OR 形状No Between 88 AND 99)",
                                " AND 形状No =87"};
  for (int mode = 0; mode < 3; ++mode) {
    selection.HoopMode = ShapeFilterOf(mode);
    const GroupStatements statements = ShapeStatements(selection, true, false);
    EXPECT_THAT(statements.main, EndsWith(ranges[mode]));
    EXPECT_THAT(statements.cuts, EndsWith(ranges[mode]));
    EXPECT_THAT(ShapeStatements(selection, false, false).main, EndsWith(ranges[0]));
  }
}

TEST(ShapeStatements, LookAtThePlateModeOnlyWhenTheRangeHasPlates) {
  SelectionData selection = Shapes(1, 9);
  selection.AnchorPlateMode = ShapeFilter::left_out;
  EXPECT_THAT(ShapeStatements(selection, false, true).cuts, HasSubstr("IsNull(形状No) OR 形状No=0"));
  EXPECT_THAT(ShapeStatements(selection, false, false).main, Not(HasSubstr("138")));
  selection.AnchorPlateMode = ShapeFilter::alone;
  EXPECT_THAT(ShapeStatements(selection, false, true).main, HasSubstr("AND (形状No=138 OR"));
}

TEST(ShapeProbeStatement, AsksForTheRangeAndTheKindsWithoutClosingParenthesis) {
  EXPECT_EQ(ShapeProbeStatement(Shapes(3, 4)),
            "SELECT 形状No FROM 加工テーブル WHERE 形状No Between 3 And 4 AND 予備2<>2 ");
}

TEST(PageShapeUlbonStatement, KnowsTheLinesAndTheHoopModeAlone) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(4);
  selection.HoopMode = ShapeFilter::left_out;
  EXPECT_THAT(PageShapeUlbonStatement(selection, {3, 40}),
              EndsWith("AND 本数>0 AND 行No Between 3AND 40  AND 形状No<>87 "
                       " GROUP BY 太さ,圧接太さ,形状No,伸切寸,予備5,伸定尺 "));
}

TEST(PageShapeStatements, TakeTheHoopModeWhetherThereAreHoopsOrNot) {
  SelectionData selection;
  selection.HoopMode = ShapeFilter::alone;
  const GroupStatements statements = PageShapeStatements(selection, {3, 40});
  EXPECT_THAT(statements.main, EndsWith("行No Between 3 AND 40  AND 形状No=87  AND 予備2<>2 "));
  EXPECT_THAT(statements.cuts, EndsWith("行No Between 3 AND 40  AND 形状No=87  AND 予備2<>2 "));
}

TEST(PageShapeStatements, ShowHighStrengthForDeformedThreadedAndSlit) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(11);
  const std::string eleven = PageShapeStatements(selection, {1, 2}).main;
  selection.MaterialKindMask = KindMask(13);
  EXPECT_EQ(PageShapeStatements(selection, {1, 2}).main, eleven);
  EXPECT_THAT(eleven, HasSubstr("予備2=3 or 予備2=5"));
}

TEST(PageShapeStatements, HaveTheirOwnWordsForTheFirstThreeKinds) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(3);
  EXPECT_THAT(PageShapeStatements(selection, {1, 2}).main,
              EndsWith("Between 1 AND 2 AND ((予備2<=1 or 予備2=4 or IsNull(予備2)) AND 予備2<>2) "));
  selection.MaterialKindMask = KindMask(4);
  EXPECT_THAT(PageShapeStatements(selection, {1, 2}).main,
              EndsWith("Between 1 AND 2  AND 予備2=3 AND 予備2<>2 "));
}

TEST(PageShapeStatements, LeavePlatesOutWithoutAskingForNoShape) {
  SelectionData selection;
  selection.AnchorPlateMode = ShapeFilter::left_out;
  EXPECT_THAT(PageShapeStatements(selection, {1, 2}).cuts, HasSubstr(" AND (形状No<138 OR"));
  EXPECT_THAT(PageShapeStatementsSoFar(selection, {1, 2}).cuts, Not(HasSubstr("138")));
}

}  // namespace
}  // namespace rbt
