// SPDX-License-Identifier: MIT
#include "tally/rows/bulk_statement.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "tally/clauses.h"

namespace rbt {
namespace {

constexpr const char* kHead =
    "SELECT * FROM 加工テーブル WHERE 太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL";

SelectionData Masks(std::int32_t kinds, std::int16_t forms) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(kinds);
  selection.MaterialFormMask = FormMask(forms);
  return selection;
}

TEST(BulkStatement, OfAllKindsAndFormsHasNoClauseAtAll) {
  EXPECT_EQ(BulkStatement(Masks(15, 15), true), kHead);
  EXPECT_EQ(BulkStatement(Masks(0, 0), true), kHead);
}

TEST(BulkStatement, TakesTheFormBeforeTheKind) {
  EXPECT_EQ(BulkStatement(Masks(1, 9), false),
            std::string(kHead) + " AND (予備3 = 1 OR 予備3 = 4) AND (予備2<=1 or IsNull(予備2) or 予備2=2)");
}

TEST(BulkStatement, LetsTheUlbonRowsOfTheSlitMaskLeaveEveryOtherCondition) {
  EXPECT_EQ(BulkStatement(Masks(8, 1), false),
            std::string(kHead) + " AND 予備3 = 1 AND (予備2=5) or 予備2=2");
}

TEST(BulkStatement, LimitsToHoopsOnlyWhenTheSiteHasHoops) {
  SelectionData selection;
  selection.HoopMode = ShapeFilter::alone;
  EXPECT_EQ(BulkStatement(selection, true), std::string(kHead) + " AND 形状No=87 ");
  EXPECT_EQ(BulkStatement(selection, false), kHead);
  selection.HoopMode =
      ShapeFilter::left_out;  // left out row by row, so that their threads, plates and cuts stay
  EXPECT_EQ(BulkStatement(selection, true), kHead);
}

TEST(BulkStatement, LimitsByAnchorPlatesWhetherThereAreAnyOrNot) {
  SelectionData selection;
  selection.AnchorPlateMode = ShapeFilter::left_out;
  EXPECT_EQ(
      BulkStatement(selection, false),
      std::string(kHead) +
          " AND (IsNull(形状No) OR 形状No=0 or 形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR "
          "(形状No Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR "
          "形状No >=177)");
  selection.AnchorPlateMode = ShapeFilter::alone;
  selection.HoopMode = ShapeFilter::alone;
  EXPECT_EQ(
      BulkStatement(selection, true),
      std::string(kHead) +
          " AND 形状No=87  AND (形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR 形状No=161 OR "
          "(形状No Between 164 And 169) OR (形状No Between 175 And 176))");
}

TEST(BulkStatementSoFar, LeavesTheModesToTheStatement) {
  SelectionData selection = Masks(2, 4);
  selection.HoopMode = ShapeFilter::alone;
  selection.AnchorPlateMode = ShapeFilter::alone;
  EXPECT_EQ(BulkStatementSoFar(selection), std::string(kHead) + " AND 予備3 = 3 AND (予備2=4 or 予備2=2)");
}

TEST(Clauses, KeepUlbonInForEveryKind) {
  for (int mask = 1; mask < 15; ++mask) {
    EXPECT_NE(KindClause(KindMask(mask)).find("予備2=2"), std::string_view::npos) << mask;
  }
}

TEST(Clauses, NameExactlyTheKindsAndFormsOfTheirBits) {
  const char* const kinds[] = {"予備2<=1", "予備2=4", "予備2=3", "予備2=5"};
  const char* const forms[] = {"予備3 = 1", "予備3 = 2", "予備3 = 3", "予備3 = 4"};
  for (std::int16_t mask = 1; mask < 15; ++mask) {
    for (int bit = 0; bit < 4; ++bit) {
      const bool has_bit = (mask & (1 << bit)) != 0;
      EXPECT_EQ(KindClause(KindMask(mask)).find(kinds[bit]) != std::string_view::npos, has_bit)
          << mask << ' ' << bit;
      EXPECT_EQ(FormClause(FormMask(mask)).find(forms[bit]) != std::string_view::npos, has_bit)
          << mask << ' ' << bit;
    }
  }
}

TEST(Clauses, CloseEveryParenthesisButLeaveTheSlitMasksOrOutside) {
  for (int mask = 1; mask < 15; ++mask) {
    const std::string_view text = KindClause(KindMask(mask));
    EXPECT_EQ(std::count(text.begin(), text.end(), '('), std::count(text.begin(), text.end(), ')')) << mask;
    EXPECT_EQ(text.ends_with(')'), mask != 8) << mask;
  }
}

TEST(ResetMeaninglessModes, TakesPlatesAloneBackWhenTheKindsBecomeOnesWithoutPlates) {
  for (int mask = 1; mask <= 15; ++mask) {
    SelectionData selection = Masks(mask, 15);
    selection.PrevMaterialKindMask = KindMask(0);
    selection.AnchorPlateMode = ShapeFilter::alone;
    ResetMeaninglessModes(selection);
    EXPECT_EQ(selection.AnchorPlateMode,
              mask == 4 || mask == 8 || mask == 12 ? ShapeFilter::with_others : ShapeFilter::alone)
        << mask;
  }
}

TEST(ResetMeaninglessModes, TakesHoopsAloneBackWhenTheKindsBecomeOnesWithoutHoops) {
  for (int mask = 1; mask <= 15; ++mask) {
    SelectionData selection = Masks(mask, 15);
    selection.PrevMaterialKindMask = KindMask(0);
    selection.HoopMode = ShapeFilter::alone;
    ResetMeaninglessModes(selection);
    EXPECT_EQ(selection.HoopMode,
              mask == 2 || mask == 8 || mask == 10 ? ShapeFilter::with_others : ShapeFilter::alone)
        << mask;
  }
}

TEST(ResetMeaninglessModes, LeavesModesAloneThatLeaveShapesOutAndKindsThatDidNotChange) {
  SelectionData selection = Masks(8, 15);
  selection.HoopMode = ShapeFilter::left_out;
  selection.AnchorPlateMode = ShapeFilter::left_out;
  ResetMeaninglessModes(selection);
  EXPECT_EQ(selection.HoopMode, ShapeFilter::left_out);
  EXPECT_EQ(selection.AnchorPlateMode, ShapeFilter::left_out);
  selection.PrevMaterialKindMask = KindMask(8);
  selection.HoopMode = ShapeFilter::alone;
  selection.AnchorPlateMode = ShapeFilter::alone;
  ResetMeaninglessModes(selection);
  EXPECT_EQ(selection.HoopMode, ShapeFilter::alone);
  EXPECT_EQ(selection.AnchorPlateMode, ShapeFilter::alone);
}

}  // namespace
}  // namespace rbt
