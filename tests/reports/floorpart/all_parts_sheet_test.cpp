// SPDX-License-Identifier: MIT
#include "reports/floorpart/all_parts_sheet.h"

#include <set>

#include <gmock/gmock.h>

#include "reports/floorpart/floorpart_paper.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;

constexpr float kPartPitch = 205;
constexpr int kBandRows = 14;

class AllPartsSheet : public FloorPartPaper {
 protected:
  void Draw(const TallyResult& result) { cut_ = DrawAllParts(page_.Printer, site_, arguments_, result); }
  /// Row 0 of a band is that of the diameters, 2 that of the first part, 13 that of the sums.
  std::string Cells(int band, int row, int group) const {
    const float left = 500 + 2600.0F * static_cast<float>(group);
    return Row(kTableTop + kPartPitch * static_cast<float>(band * kBandRows + row), kPartPitch, 0, left,
               left + 2600);
  }
  std::vector<std::string> Heads(int band) const {
    return {Cells(band, 0, 0), Cells(band, 0, 1), Cells(band, 0, 2), Cells(band, 0, 3)};
  }
};

TEST_F(AllPartsSheet, HasThreeBandsOfFourDiameters) {
  Draw(PartBars().Add(1, kD19, 10).Result());
  EXPECT_EQ(Pages(), 1U);
  EXPECT_THAT(Heads(0), ElementsAre("D 10", "D 13", "D 16", "D 19"));
  EXPECT_THAT(Heads(1), ElementsAre("D 22", "D 25", "D 29", "D 32"));
  EXPECT_THAT(Heads(2), ElementsAre("D 35", "D 38", "D 41", "D 51"));
  for (int band = 0; band < 3; ++band) {
    for (int group = 0; group < 4; ++group) {
      EXPECT_EQ(Cells(band, 1, group), "部　位|重 量|圧　接");
      EXPECT_EQ(Cells(band, 3, group).substr(0, 3), "柱");
      EXPECT_EQ(Cells(band, 12, group).substr(0, 9), "その他");
      EXPECT_EQ(Cells(band, 13, group).substr(0, 9), "合　計");
    }
  }
}

TEST_F(AllPartsSheet, ShowsWeightAndWeldsOfEachPartAndTheirSums) {
  PartBars bars;
  bars.Add(1, kD19, 10).Add(11, kD19, 20);
  bars.tables.Assetu.Bui[1][kD19] = 12;
  bars.tables.Assetu.Bui[2][kD19] = 1234;
  bars.tables.Assetu.Taisa[kD19] = 1246;
  Draw(bars.Result());
  EXPECT_EQ(Cells(0, 2, 3), "基礎|135|12");
  EXPECT_EQ(Cells(0, 3, 3), "柱|1,234");
  EXPECT_EQ(Cells(0, 4, 3), "大梁");
  EXPECT_EQ(Cells(0, 12, 3), "その他|270");
  EXPECT_EQ(Cells(0, 13, 3), "合　計|405|1,246");
}

TEST_F(AllPartsSheet, FiguresShareTheRightColumn) {
  PartBars bars;
  bars.Add(1, kD10, 100);
  bars.tables.Assetu.Bui[1][kD10] = 7;
  Draw(bars.Result());
  const float y = kTableTop + 2 * kPartPitch + 2.5F;
  EXPECT_EQ(page_.TextAt(500 + 1110, y), "      336");
  EXPECT_EQ(page_.TextAt(500 + 2090, y), "    7");
}

TEST_F(AllPartsSheet, ThinBarsAloneLeaveABlankHeadWhereNoneStands) {
  PartBars bars;
  bars.thin = true;
  Draw(bars.Add(2, kU6, 5).Result());
  EXPECT_THAT(Heads(0), ElementsAre("U  6", "U  7", "U  9", "U 11"));
  EXPECT_THAT(Heads(1), ElementsAre("U 12", "U 16", "", ""));
  EXPECT_THAT(Heads(2), ElementsAre("", "", "", ""));
  EXPECT_EQ(Count("    "), 6);
  EXPECT_EQ(Cells(0, 3, 0), "柱|5");
  EXPECT_EQ(Cells(2, 3, 0), "");
}

TEST_F(AllPartsSheet, RulesStandAtTheGroupsAndBehindTheNames) {
  Draw(PartBars().Add(1, kD19, 10).Result());
  std::set<float> verticals;
  for (const PrintedRule& rule : page_.Rules()) {
    if (rule.x1 == rule.x2) verticals.insert(rule.x1);
  }
  EXPECT_THAT(verticals, ElementsAre(500, 1600, 3100, 4200, 5700, 6800, 8300, 9400, 10900));
}

TEST_F(AllPartsSheet, TheHeadHasItsOwnRulesAndNoPageNumber) {
  Draw(PartBars().Add(1, kD19, 10).Result());
  EXPECT_EQ(page_.TextOf("部位別合計数量表").x, 5900);
  EXPECT_EQ(page_.RuleAt(2450 + 280, 500).x2, 4200);
  EXPECT_EQ(page_.TextThatStarts("2026 年").x, 8500);
  EXPECT_EQ(page_.RuleAt(2157.5F + 240, 8400).x2, 10800);
  EXPECT_FALSE(page_.Has("page:"));
  site_.site.western_dates = false;
  arguments_.Year = "08";
  Draw(PartBars().Add(1, kD19, 10).Result());
  EXPECT_EQ(page_.TextThatStarts("令和").x, 8300);
  EXPECT_EQ(page_.RuleAt(2157.5F + 240, 8200).x2, 11000);
}

TEST_F(AllPartsSheet, ALongNameOfAPartShrinksIntoItsColumn) {
  site_.parts[0] = "地下一階ピット床";
  Draw(PartBars().Add(1, kD19, 10).Result());
  const PrintedText name = page_.TextOf("地下一階ピット床");
  EXPECT_LE(name.x + TextWidthAt(name.font_size, name.text), 1600);
}

TEST_F(AllPartsSheet, AFigureWiderThanItsFieldIsToldByDiameterAndPart) {
  PartBars bars;
  bars.Add(1, kD19, 10);
  bars.tables.Assetu.Bui[2][kD19] = 12345;
  Draw(bars.Result());
  EXPECT_THAT(cut_, ElementsAre(CutFigure{1, "D 19 柱", "圧　接", "12,345"}));
}

}  // namespace
}  // namespace rbt::test
