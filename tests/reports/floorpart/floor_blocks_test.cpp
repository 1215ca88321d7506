// SPDX-License-Identifier: MIT
#include "reports/floorpart/floor_blocks.h"

#include <gmock/gmock.h>

#include "reports/floorpart/floorpart_paper.h"
#include "tally/floorpart/hand_correction.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;

constexpr float kBlocksTop = kTableTop + 300;
constexpr float kLinePitch = 230;

class FloorBlocksSheet : public FloorPartPaper {
 protected:
  void Draw(const TallyResult& result) { cut_ = DrawFloorBlocks(page_.Printer, site_, arguments_, result); }
  std::string Line(int line, std::size_t page = 0) const {
    return Row(kBlocksTop + kLinePitch * static_cast<float>(line), kLinePitch, page);
  }
  /// Lines of a page before the first empty one.
  int Lines(std::size_t page) const {
    int lines = 0;
    while (!Line(lines, page).empty()) ++lines;
    return lines;
  }
  /// So many floors from the first on, each with a D19 in the parts 1 to `parts`.
  static FloorBars Blocks(int floors, int parts) {
    FloorBars bars;
    for (int floor = 1; floor <= floors; ++floor) {
      for (int part = 1; part <= parts; ++part) bars.Add(floor, part, kD19, 10);
    }
    return bars;
  }
};

TEST_F(FloorBlocksSheet, HasABlockForEachFloorWithWeightAndOneForAll) {
  FloorBars bars;
  Draw(bars.Add(1, 1, kD19, 10).Add(1, 11, kD10, 100).Add(3, 1, kD19, 20).Result(1, 3));
  EXPECT_EQ(Row(kTableTop, 300), "階|部位|D10|D13|D16|D19|D22|D25|D29|D32|D35|D38|D41|D51|合 計");
  EXPECT_EQ(Line(0), "1Ｆ|基礎|135|135");
  EXPECT_EQ(Line(1), "その他|336|336");
  EXPECT_EQ(Line(2), "合計|336|135|471");
  EXPECT_EQ(Line(3), "3Ｆ|基礎|270|270");
  EXPECT_EQ(Line(4), "合計|270|270");
  EXPECT_EQ(Line(5), "合  計|基礎|405|405");
  EXPECT_EQ(Line(6), "その他|336|336");
  EXPECT_EQ(Line(7), "合計|336|405|741");
  EXPECT_EQ(Line(8), "");
}

TEST_F(FloorBlocksSheet, FiguresStand200BehindTheirColumnAndTheTotalAt14650) {
  Draw(Blocks(1, 1).Result(1, 1));
  const float y = kBlocksTop + (kLinePitch - 160) / 2;
  EXPECT_EQ(page_.TextAt(5150 + 200, y), "      135");
  EXPECT_EQ(page_.TextAt(14650, y), "        135");
  EXPECT_EQ(page_.TextOf("1Ｆ").x, 550);
  EXPECT_EQ(page_.TextOf("合計").x, 600);
  EXPECT_EQ(Count("基礎"), 2);
}

TEST_F(FloorBlocksSheet, ABlockStartsOnAPageBefore24LinesAreTaken) {
  Draw(Blocks(3, 11).Result(1, 3));  // three blocks of 12 lines, and that of all floors
  ASSERT_EQ(Pages(), 2U);
  EXPECT_EQ(Lines(0), 24);
  EXPECT_EQ(Lines(1), 24);
  EXPECT_EQ(Line(0, 1).substr(0, 4), "3Ｆ");
  EXPECT_EQ(Count("階・部位・径別 合 計 数 量 表", 1), 1);
  EXPECT_EQ(Count("page:2", 1), 1);
  EXPECT_EQ(Count("み", 1), 1);  // the first letter of the company
}

TEST_F(FloorBlocksSheet, ABlockIsNeverDivided) {
  FloorBars bars = Blocks(11, 1);  // eleven of 2 lines
  for (int part = 1; part <= 11; ++part) bars.Add(12, part, kD19, 10);
  Draw(bars.Result(1, 12));
  ASSERT_EQ(Pages(), 2U);
  EXPECT_EQ(Lines(0), 34);  // 22 and 12
  EXPECT_EQ(Lines(1), 12);
  EXPECT_EQ(Line(0, 1).substr(0, 9), "合  計|");
  const float bottom = kBlocksTop + 35 * kLinePitch;
  EXPECT_LT(bottom, 11906);  // of A4 landscape: the most lines that a page takes
}

TEST_F(FloorBlocksSheet, TheBlockOfAllFloorsStartsAPageOfItsOwnBehindAFullOne) {
  Draw(Blocks(2, 11).Result(1, 2));
  ASSERT_EQ(Pages(), 2U);
  EXPECT_EQ(Lines(0), 24);
  EXPECT_EQ(Lines(1), 12);
}

TEST_F(FloorBlocksSheet, WithoutWeightThereIsTheSumAlone) {
  Draw(FloorBars().Result(1, 3));
  EXPECT_EQ(Pages(), 1U);
  EXPECT_EQ(Line(0), "合計");
  EXPECT_EQ(Line(1), "");
}

TEST_F(FloorBlocksSheet, ThinBarsAloneTakeTheFirstSixColumns) {
  FloorBars bars;
  TallyResult result = bars.Add(1, 1, kU6, 100).Result(1, 1);
  result.selection.UlbonOnly = true;
  Draw(result);
  EXPECT_EQ(Row(kTableTop, 300), "階|部位|U 6|U 7|U 9|U11|U12|U16|||||||合 計");
  EXPECT_EQ(Line(0), "1Ｆ|基礎|141|141");
  EXPECT_EQ(page_.TextThatStarts("      141").x, 2000 + 200);
}

TEST_F(FloorBlocksSheet, FloorsAreCalledByTheirShortNames) {
  FloorBars bars;
  bars.Add(-2, 1, kD19, 10).Add(76, 1, kD19, 10).Add(77, 1, kD19, 10).Add(78, 1, kD19, 10);
  Draw(bars.Result(-2, -1, 7));
  EXPECT_EQ(Line(0).substr(0, 5), "B2Ｆ");
  EXPECT_EQ(Line(2), "Ｒ階|基礎|135|135");
  EXPECT_EQ(Line(4), "Ｐ階|基礎|135|135");
  EXPECT_EQ(Line(6), "階無|基礎|135|135");
}

TEST_F(FloorBlocksSheet, ACorrectionShowsInTotalsAndNotByDiameter) {
  FloorBars bars;
  TallyResult result = bars.Add(1, 1, kD19, 10).Result(1, 1);
  CorrectCell(std::get<FloorTables>(result.tables), 0, 1, Kilograms(200));
  Draw(result);
  EXPECT_EQ(Line(0), "1Ｆ|基礎|135|200");
  EXPECT_EQ(Line(1), "合計|135|200");
  EXPECT_EQ(Line(3), "合計|135|200");
}

TEST_F(FloorBlocksSheet, InstalledWeightIsShownWhereTheTallyShowsIt) {
  FloorBars bars;
  bars.installed = true;
  Draw(bars.Add(1, 1, kD19, 10).Result(1, 1));
  EXPECT_EQ(Line(0), "1Ｆ|基礎|134|134");
}

TEST_F(FloorBlocksSheet, TheGrandWeightIsToldInTonnes) {
  FloorBars bars;
  bars.Add(1, 1, kD19, 10);
  TallyResult result = bars.Result(1, 1);
  std::get<FloorTables>(result.tables).SouGoukei = Kilograms(1234);
  Draw(result);
  EXPECT_EQ(page_.TextThatStarts("総重量").text, "総重量      1 t 234 Kg");
}

TEST_F(FloorBlocksSheet, RulesPartTheLinesAndCloseTheBlocks) {
  Draw(Blocks(1, 2).Result(1, 1));
  EXPECT_EQ(page_.RuleAt(kBlocksTop, 500).x2, 15700);
  EXPECT_EQ(page_.RuleAt(kBlocksTop + kLinePitch, 1100).x2, 15700);
  EXPECT_EQ(page_.RuleAt(kBlocksTop + 2 * kLinePitch, 1100).x2, 15700);
  EXPECT_EQ(page_.RuleAt(kBlocksTop + 3 * kLinePitch, 500).x2, 15700);
}

TEST_F(FloorBlocksSheet, AFigureWiderThanItsFieldIsToldByFloorPartAndDiameter) {
  FloorBars bars;
  TallyResult result = bars.Add(1, 2, kD19, 10).Result(1, 1);
  std::get<FloorTables>(result.tables).KaiTaisaGoukei[FloorIndex(1)][kD19] = Kilograms(12345678);
  Draw(result);
  EXPECT_THAT(cut_, ElementsAre(CutFigure{1, "1Ｆ 合計", "D19", "12,345,678"},
                                CutFigure{1, "合  計 合計", "D19", "12,345,678"}));
}

}  // namespace
}  // namespace rbt::test
