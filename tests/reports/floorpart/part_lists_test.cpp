// SPDX-License-Identifier: MIT
#include "reports/floorpart/part_lists.h"

#include <gmock/gmock.h>

#include "reports/floorpart/floorpart_paper.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kLine = 390;

class FloorTotalsSheet : public FloorPartPaper {
 protected:
  void Draw(const TallyResult& result) { cut_ = DrawFloorTotals(page_.Printer, site_, arguments_, result); }
  /// Floors 1 to `last`, each with a D19 in part 1.
  void DrawStoreys(std::int16_t last) {
    FloorBars bars;
    for (int floor = 1; floor <= last; ++floor) bars.Add(floor, 1, kD19, 10);
    Draw(bars.Result(1, last));
  }
  /// Line 0 is the first below the head of the table.
  std::string Line(int line, std::size_t page = 0) const {
    return Row(kTableTop + kLine * static_cast<float>(line + 1), kLine, page);
  }
};

TEST_F(FloorTotalsSheet, HasALineForEachFloorWithWeightOrNot) {
  Draw(FloorBars().Add(1, 1, kD19, 10).Add(3, 2, kD10, 100).Add(3, 11, kD19, 20).Result(1, 3));
  EXPECT_EQ(Row(kTableTop, kLine), "階|基礎|柱|大梁|小梁|スラブ|壁|階段|雑|杭|外構|その他|合    計");
  EXPECT_EQ(Line(0), "1階|135|135");
  EXPECT_EQ(Line(1), "2階");
  EXPECT_EQ(Line(2), "3階|336|270|606");
  EXPECT_EQ(Line(3), "合　計|135|336|270|741");
  EXPECT_EQ(Pages(), 1U);
}

TEST_F(FloorTotalsSheet, CallsTheFloorsAsTheListOfTheScreenDoes) {
  FloorBars bars;
  for (const int floor : {-2, -1, 0, 1, 76, 77, 78}) bars.Add(floor, 1, kD19, 10);
  TallyResult result = bars.Result(0, 1, 7);
  result.selection.KaiMin = -2;
  ListFloors(bars.tables, ListedFloors(FloorScopeOf(result.selection)));
  result.tables = bars.tables;
  Draw(result);
  std::vector<std::string> labels;
  labels.reserve(8);
  for (int line = 0; line < 8; ++line) labels.push_back(Line(line).substr(0, Line(line).find('|')));
  EXPECT_THAT(labels, ElementsAre("基礎階", "2Ｂ階", "1Ｂ階", "1階", "Ｒ　階", "ＰＨ階", "階なし", "合　計"));
}

TEST_F(FloorTotalsSheet, FiguresStandInTheirColumns) {
  Draw(FloorBars().Add(12, 1, kD19, 10).Add(12, 10, kD19, 10).Add(12, 11, kD19, 10).Result(12, 12));
  const float y = kTableTop + kLine + 100;
  EXPECT_EQ(page_.TextAt(600, y), "12階");
  EXPECT_EQ(page_.TextAt(1400, y), "      135");
  EXPECT_EQ(page_.TextAt(11750, y), "      135");
  EXPECT_EQ(page_.TextAt(12900, y), "      135");
  EXPECT_EQ(page_.TextAt(14150, y), "        405");
  EXPECT_EQ(page_.TextAt(600, y).size(), std::string("12階").size());
  EXPECT_EQ(page_.TextOf("12階").font_size, 10.0F);
}

TEST_F(FloorTotalsSheet, APageHolds19FloorsAndTheTotalBelowThem) {
  DrawStoreys(19);
  EXPECT_EQ(Pages(), 1U);
  EXPECT_EQ(Line(18), "19階|135|135");
  EXPECT_EQ(Line(19), "合　計|2,565|2,565");
}

TEST_F(FloorTotalsSheet, TheTwentiethFloorStartsPage2WithTheHeadAgain) {
  DrawStoreys(20);
  ASSERT_EQ(Pages(), 2U);
  EXPECT_EQ(Count("階 別 合 計 数 量 表", 1), 1);
  EXPECT_EQ(Count("page:1", 0), 1);
  EXPECT_EQ(Count("page:2", 1), 1);
  EXPECT_EQ(Row(kTableTop, kLine, 1).substr(0, 3), "階");
  EXPECT_EQ(Line(0, 1), "20階|135|135");
  EXPECT_EQ(Line(1, 1), "合　計|2,700|2,700");
  EXPECT_EQ(Line(19, 0), "");
}

TEST_F(FloorTotalsSheet, TheTotalStaysBelowTheNineteenthFloorOfPage2) {
  DrawStoreys(38);
  ASSERT_EQ(Pages(), 2U);
  EXPECT_EQ(Line(18, 1), "38階|135|135");
  EXPECT_EQ(Line(19, 1), "合　計|5,130|5,130");
  DrawStoreys(39);
  ASSERT_EQ(Pages(), 3U);
  EXPECT_EQ(Line(0, 2), "39階|135|135");
}

TEST_F(FloorTotalsSheet, AGrandWeightFromATonneOnIsToldInTonnes) {
  Draw(FloorBars().Add(1, 1, kD19, 74).Result(1, 1));  // 999 kg
  EXPECT_EQ(page_.TextThatStarts("総重量").text, "総重量          999 Kg");
  FloorBars bars;
  bars.Add(1, 1, kD19, 10);
  TallyResult result = bars.Result(1, 1);
  std::get<FloorTables>(result.tables).SouGoukei = Kilograms(1234);
  Draw(result);
  EXPECT_EQ(page_.TextThatStarts("総重量").text, "総重量      1 t 234 Kg");
}

TEST_F(FloorTotalsSheet, AWeightOf0LeavesItsCellEmpty) {
  Draw(FloorBars().Result(1, 1));
  EXPECT_EQ(Line(0), "1階");
  EXPECT_EQ(Line(1), "合　計");
}

TEST_F(FloorTotalsSheet, TheFrameIsThickOutsideAndThinInside) {
  DrawStoreys(1);
  std::vector<std::int32_t> lefts;
  for (const PrintedRule& rule : page_.Rules()) {
    const bool vertical = rule.x1 == rule.x2;
    if (vertical && rule.x1 == 500) lefts.push_back(rule.draw_width);
    if (vertical && rule.x1 == 1300) {
      EXPECT_EQ(rule.draw_width, 2);
    } else if (rule.x2 == 15500) {
      EXPECT_EQ(rule.draw_width, 5);
    }
  }
  EXPECT_THAT(lefts, ElementsAre(2, 5, 5));  // head, floor, total
  EXPECT_THAT(page_.FrameRows(), ElementsAre(kTableTop, kTableTop + 390, kTableTop + 780, kTableTop + 1170));
}

TEST_F(FloorTotalsSheet, NamesOfPartsStandWhereTheirLengthPutsThem) {
  DrawStoreys(1);
  EXPECT_EQ(page_.TextOf("柱").x, 2450 + 450);
  EXPECT_EQ(page_.TextOf("スラブ").x, 5900 + 210);
  EXPECT_EQ(page_.TextOf("その他").x, 13010);
  EXPECT_EQ(page_.TextOf("合    計").x, 14250);
  EXPECT_TRUE(page_.TextOf("柱").font_bold);
}

TEST_F(FloorTotalsSheet, ANameWiderThanItsColumnShrinksIntoIt) {
  site_.parts[0] = "地下一階ピット床";
  site_.parts[1] = "ABCDEFGH";
  site_.parts[2] = "";
  DrawStoreys(1);
  const PrintedText name = page_.TextOf("地下一階ピット床");
  EXPECT_LT(name.font_size, 12);
  EXPECT_GE(name.x, 1300);
  EXPECT_LE(name.x + TextWidthAt(name.font_size, name.text), 2450);
  EXPECT_EQ(page_.TextOf("ABCDEFGH").x, 2450 + (1150 - 960) / 2);
  EXPECT_EQ(page_.TextOf("小梁").font_size, 12);
}

TEST_F(FloorTotalsSheet, AFigureWiderThanItsFieldIsToldByFloorAndPart) {
  FloorBars bars;
  bars.Add(2, 3, kD19, 10);
  TallyResult result = bars.Result(2, 2);
  auto& tables = std::get<FloorTables>(result.tables);
  tables.KaiBuiGoukei[FloorIndex(2)][3] = Kilograms(12345678);
  Draw(result);
  EXPECT_THAT(cut_, ElementsAre(CutFigure{1, "2階", "大梁", "12,345,678"}));
  EXPECT_EQ(Line(0), "2階|2,345,678|135");
}

TEST_F(FloorTotalsSheet, TheScopeTellsTheRangeAndThenTheSpecialFloors) {
  Draw(FloorBars().Add(1, 1, kD19, 10).Add(76, 1, kD19, 10).Result(1, 8, 1));
  const PrintedText scope = page_.TextOf("【1階～8階】Ｒ階を含む。");
  EXPECT_EQ(scope.x, 3900);
  EXPECT_EQ(scope.y, 2450);
  EXPECT_EQ(scope.font_size, 12);
}

class PartTotalsSheet : public FloorPartPaper {
 protected:
  void Draw(const TallyResult& result) { cut_ = DrawPartTotals(page_.Printer, site_, arguments_, result); }
  std::string Line(int line) const { return Row(kTableTop + kLine * static_cast<float>(line + 1), kLine); }
};

TEST_F(PartTotalsSheet, HasTwelveLinesAndTheTotalOnOnePageWhateverTheSpan) {
  Draw(PartBars().Add(1, kD19, 10).Add(2, kD19, 20).Add(11, kD32, 10).Result(-5, 75));
  EXPECT_EQ(Pages(), 1U);
  EXPECT_EQ(Row(kTableTop, kLine), "太さ|基礎|柱|大梁|小梁|スラブ|壁|階段|雑|杭|外構|その他|合    計");
  EXPECT_EQ(Line(0), "Ｄ１０");
  EXPECT_EQ(Line(3), "Ｄ１９|135|270|405");
  EXPECT_EQ(Line(7), "Ｄ３２|374|374");
  EXPECT_EQ(Line(11), "Ｄ５１");
  EXPECT_EQ(Line(12), "合　計|135|270|374|779");
  EXPECT_THAT(cut_, IsEmpty());
}

TEST_F(PartTotalsSheet, ThinBarsAloneTakeTheFirstLinesAndLeaveTheOthersEmpty) {
  PartBars bars;
  bars.thin = true;
  Draw(bars.Add(1, kU6, 5).Add(3, kU12, 7).Result());
  EXPECT_EQ(Line(0), "Ｕ　６|5|5");
  EXPECT_EQ(Line(4), "Ｕ１２|7|7");
  EXPECT_EQ(Line(5), "Ｕ１６");
  for (int line = 6; line < 12; ++line) EXPECT_EQ(Line(line), "　　　") << line;
  EXPECT_EQ(Line(12), "合　計|5|7|12");
}

TEST_F(PartTotalsSheet, HasNoPageNumberAndTellsItsRange) {
  Draw(PartBars().Add(1, kD19, 10).Result(1, 8, 5));
  EXPECT_FALSE(page_.Has("page:"));
  EXPECT_EQ(page_.TextOf("【1階～8階】(R階 を含む)").x, 3900);
}

}  // namespace
}  // namespace rbt::test
