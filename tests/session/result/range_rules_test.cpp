// SPDX-License-Identifier: MIT
#include "session/result/range_rules.h"

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

/// Pages 1 and 2 with lines 1 to 5 each, page 4 with line 1.
const ScheduleRows kRows{
    [](std::int32_t page) { return page == 1 || page == 2 || page == 4; },
    [](const SchedulePosition& at) {
      return ((at.page == 1 || at.page == 2) && at.line >= 1 && at.line <= 5) || at == SchedulePosition{4, 1};
    }};

std::string Refused(PositionBox box, const PositionRange& entered) {
  const std::optional<RangeRefusal> refusal = PositionRefusal(box, entered, kRows);
  if (!refusal) return "";
  EXPECT_EQ(refusal->box, static_cast<std::size_t>(box));
  EXPECT_EQ(refusal->title, "");
  EXPECT_FALSE(refusal->back_to.has_value());
  return refusal->text;
}

struct ShapeCase {
  ShapeRange entered;
  std::string text;
  std::size_t box;
  std::optional<std::int32_t> back_to;
};

}  // namespace

TEST(PositionRange, APageWithoutRowsIsRefusedByItsNumber) {
  EXPECT_EQ(Refused(PositionBox::start_page, {{3, 1}, {4, 1}}), "3頁にはデーターがありません。");
  EXPECT_EQ(Refused(PositionBox::end_page, {{1, 1}, {9, 1}}), "9頁にはデーターがありません。");
  EXPECT_EQ(Refused(PositionBox::start_page, {{2, 9}, {0, 0}}), "");  // its own box alone
}

TEST(PositionRange, ALineWithoutRowsIsRefusedByPageAndLine) {
  EXPECT_EQ(Refused(PositionBox::start_line, {{2, 6}, {4, 1}}), "2頁6行にはデーターがありません。");
  EXPECT_EQ(Refused(PositionBox::end_line, {{1, 1}, {4, 2}}), "4頁2行にはデーターがありません。");
  EXPECT_EQ(Refused(PositionBox::start_line, {{2, 5}, {4, 1}}), "");
}

TEST(PositionRange, AnEndPageBelowTheStartPageIsRefusedOnceItIsKnown) {
  EXPECT_EQ(Refused(PositionBox::end_page, {{2, 1}, {1, 1}}), "開始頁より大きい頁を入力して下さい。");
  EXPECT_EQ(Refused(PositionBox::end_page, {{4, 1}, {3, 1}}), "3頁にはデーターがありません。");
  EXPECT_EQ(Refused(PositionBox::end_page, {{2, 1}, {2, 1}}), "");
}

TEST(PositionRange, AnEndLineBelowTheStartLineOfTheSamePageIsRefused) {
  EXPECT_EQ(Refused(PositionBox::end_line, {{1, 3}, {1, 2}}), "開始行より大きい行を入力して下さい。");
  EXPECT_EQ(Refused(PositionBox::end_line, {{2, 3}, {1, 2}}), "開始行より大きい行を入力して下さい。");
}

TEST(PositionRange, EndPageAboveStartPageWithEndLineBelowStartLineIsAccepted) {
  EXPECT_EQ(Refused(PositionBox::end_line, {{1, 3}, {2, 2}}), "");
}

TEST(PositionRange, ASingleLineIsAccepted) {
  EXPECT_EQ(Refused(PositionBox::end_page, {{1, 3}, {1, 3}}), "");
  EXPECT_EQ(Refused(PositionBox::end_line, {{1, 3}, {1, 3}}), "");
}

TEST(ShapeRangeInput, IsTestedFromTheSmallestShapeOn) {
  const ShapeRange whole{5, 100};
  const ShapeCase cases[] = {
      {{4, 50}, "形状Noの最小値より小さい値は、入力できません", 0, 5},
      {{4, 101}, "形状Noの最小値より小さい値は、入力できません", 0, 5},  // the start test comes first
      {{5, 101}, "形状Noの最大値より大きい値は、入力できません", 1, 100},
      {{50, 49}, "左側より小さい値は、入力できません", 1, std::nullopt},
      {{200, 100}, "左側より小さい値は、入力できません", 1, std::nullopt},
  };
  for (const ShapeCase& row : cases) {
    const std::optional<RangeRefusal> refusal = ShapeRangeRefusal(row.entered, whole);
    ASSERT_TRUE(refusal.has_value()) << row.entered.first << " " << row.entered.last;
    EXPECT_EQ(refusal->text, row.text);
    EXPECT_EQ(refusal->title, "入力エラー");
    EXPECT_EQ(refusal->box, row.box);
    EXPECT_EQ(refusal->back_to, row.back_to);
  }
}

TEST(ShapeRangeInput, ARangeWithinTheScheduleAndASingleShapePass) {
  EXPECT_FALSE(ShapeRangeRefusal({5, 100}, {5, 100}).has_value());
  EXPECT_FALSE(ShapeRangeRefusal({87, 87}, {5, 100}).has_value());
}

TEST(RangeStatements, AskForPageLineAndHighStrength) {
  EXPECT_EQ(RowsOfPage(3), "SELECT 行No, 頁, 行 FROM 加工テーブル WHERE 頁 = 3");
  EXPECT_EQ(RowsOfPosition({3, 12}), "SELECT 行No, 頁, 行 FROM 加工テーブル WHERE 頁 = 3 AND 行 = 12");
  EXPECT_EQ(HighStrengthRowsOf({1, 87}),
            "SELECT 予備2 FROM 加工テーブル WHERE 予備2=3 AND 形状No>=1 AND 形状No<=87");
}

}  // namespace rbt::test
