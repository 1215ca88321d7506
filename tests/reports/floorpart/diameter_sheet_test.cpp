// SPDX-License-Identifier: MIT
#include "reports/floorpart/diameter_sheet.h"

#include <array>

#include <gmock/gmock.h>

#include "reports/floorpart/diameter_lists.h"
#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_paper.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;

constexpr float kRowPitch = 250;

/// The sheet of floor 1 of a tally.
class DiameterPaper : public FloorPartPaper {
 protected:
  DiameterSheet SheetOf(FloorBars& bars, int floor = 1) {
    const TallyResult result = bars.Result(1, 3);
    DiameterSheet sheet{.layout = kKakukaiHead,
                        .head = HeadOf("階 別 合 計 数 量 表", site_.site, arguments_),
                        .tells_of = "1階 ",
                        .figures = FiguresOfFloor(result.Floors(), floor, ColumnsInUse(bars.with_13m)),
                        .with_13m = bars.with_13m};
    sheet.thick = HasThickBars(sheet.figures);
    return sheet;
  }
  void Draw(const DiameterSheet& sheet) { cut_ = DrawDiameters(page_.Printer, sheet); }

  /// What stands in a row of a group, from the left; row 0 is that of the names.
  std::string Cells(int row, int group, std::size_t page = 0) const {
    const float left = 500 + 2190.0F * static_cast<float>(group);
    return Row(kTableTop + kRowPitch * static_cast<float>(row), kRowPitch, page, left, left + 2190);
  }
  std::vector<std::string> Names(std::size_t page) const {
    std::vector<std::string> names;
    names.reserve(7);
    for (int group = 0; group < 7; ++group) names.push_back(Cells(0, group, page));
    return names;
  }
};

TEST_F(DiameterPaper, TheFirstPageHoldsD10ToD29WithWeightOrNot) {
  FloorBars bars;
  Draw(SheetOf(bars.Add(1, 1, kD19, 10)));
  ASSERT_EQ(Pages(), 1U);
  EXPECT_THAT(Names(0), ElementsAre("D 10", "D 13", "D 16", "D 19", "D 22", "D 25", "D 29"));
  EXPECT_EQ(Cells(1, 0), "ｍ|本 数|重 量");
  EXPECT_EQ(Cells(7, 3), "6.0|10|135");
  EXPECT_EQ(Cells(7, 0), "6.0");
  EXPECT_EQ(Cells(20, 3), "重量|135");
}

TEST_F(DiameterPaper, RowsStandInTheirOrder) {
  FloorBars bars;
  bars.installed = true;
  bars.Add(1, 2, kD19, 10);
  const int f = FloorIndex(1);
  bars.tables.Assetu.Kai[f][kD19] = 11;
  bars.tables.Neji.Kai[f][kD19] = 12;
  bars.tables.Teichaku.Kai[f][kD19] = 13;
  bars.tables.Setsudan.Kai[f][kD19] = 1234;
  Draw(SheetOf(bars));
  std::vector<std::string> below;
  below.reserve(6);
  for (int row = 20; row < 26; ++row) below.push_back(Cells(row, 3));
  EXPECT_THAT(below, ElementsAre("重量|135", "圧接|11", "ｶﾌﾟﾗ|12", "ＤＢ|13", "切断|1,234", "取重|134"));
}

TEST_F(DiameterPaper, InstalledWeightIsEmptyWhereTheTallyShowsStock) {
  FloorBars bars;
  Draw(SheetOf(bars.Add(1, 1, kD19, 10)));
  EXPECT_EQ(Cells(25, 3), "取重");
}

TEST_F(DiameterPaper, ThickBarsGetASecondPage) {
  FloorBars bars;
  Draw(SheetOf(bars.Add(1, 1, kD32, 10)));
  ASSERT_EQ(Pages(), 2U);
  EXPECT_THAT(Names(1), ElementsAre("D 32", "D 35", "D 38", "D 41", "D 51", "", ""));
  EXPECT_EQ(Cells(7, 0, 1), "6.0|10|374");
  EXPECT_EQ(Cells(7, 5, 1), "");
  EXPECT_EQ(Count("page:2", 1), 1);
  EXPECT_EQ(Count("階 別 合 計 数 量 表", 1), 1);
  EXPECT_EQ(OnPage<PrintedRule>(1).size(), OnPage<PrintedRule>(0).size());
}

TEST_F(DiameterPaper, ThickBarsOfAnotherFloorNeedNoSecondPage) {
  FloorBars bars;
  Draw(SheetOf(bars.Add(1, 1, kD19, 10).Add(2, 1, kD32, 10)));
  EXPECT_EQ(Pages(), 1U);
}

TEST_F(DiameterPaper, ThinBarsAloneTakeTheGroupsFromTheLeftWithoutGradeAndMaker) {
  FloorBars bars;
  DiameterSheet sheet = SheetOf(bars.Add(1, 1, kU6, 10, kAt3m5));
  sheet.thin = true;
  sheet.origins.grades.fill("SD295A");
  sheet.origins.makers.fill("見本製鋼");
  Draw(sheet);
  ASSERT_EQ(Pages(), 1U);
  EXPECT_THAT(Names(0), ElementsAre("U  6", "U  7", "U  9", "U 11", "U 12", "U 16", ""));
  EXPECT_EQ(Cells(2, 0).substr(0, 7), "3.5|10|");
}

TEST_F(DiameterPaper, GradeAndMakerStandBehindTheDiameterAndShrinkIntoTheGroup) {
  FloorBars bars;
  DiameterSheet sheet = SheetOf(bars.Add(1, 1, kD19, 10));
  sheet.origins.grades = {"SD295A", "", "SD295A特殊", "SD345"};
  sheet.origins.makers = {"見本", "見本製鋼", "見本製鋼関東工場", ""};
  Draw(sheet);
  EXPECT_THAT(Names(0), ElementsAre("D 10|SD295A 見本", "D 13|見本製鋼", "D 16|SD295A特殊 見本製鋼関東工場",
                                    "D 19|SD345", "D 22", "D 25", "D 29"));
  EXPECT_EQ(page_.TextOf("SD345").font_size, 12);
  EXPECT_EQ(page_.TextOf("SD345").x, 500 + 3 * 2190 + 660);
  const PrintedText origin = page_.TextThatStarts("SD295A特殊");
  EXPECT_LE(origin.x + TextWidthAt(origin.font_size, origin.text), 500 + 3 * 2190);
}

TEST_F(DiameterPaper, WithoutThe13MetreBarsTheRowOf3m5PrintsAndThatOf13mDoesNot) {
  FloorBars bars;
  Draw(SheetOf(bars.Add(1, 1, kD19, 10, kAt3m5)));
  EXPECT_EQ(Cells(2, 3), "3.5|10|79");
  EXPECT_EQ(Cells(19, 3), "12.0");
  EXPECT_FALSE(page_.Has("13.0"));
}

TEST_F(DiameterPaper, WithThe13MetreBarsTheRowOf3m5PrintsAndIsEmpty) {
  FloorBars bars;
  bars.with_13m = true;
  Draw(SheetOf(bars.Add(1, 1, kD19, 10, kAt3m5).Add(1, 1, kD19, 10, kColumn13m)));
  EXPECT_EQ(Cells(2, 3), "3.5");
  EXPECT_EQ(Cells(20, 3), "13.0|10|292");
  EXPECT_EQ(Cells(21, 3), "重量|292");
}

TEST_F(DiameterPaper, CountsAloneLeaveOutAColumnAndNoRow) {
  FloorBars bars;
  bars.installed = true;
  DiameterSheet sheet = SheetOf(bars.Add(1, 1, kD19, 10));
  sheet.with_weights = false;
  Draw(sheet);
  EXPECT_EQ(Cells(1, 3), "ｍ|本 数");
  EXPECT_EQ(Cells(7, 3), "6.0|10");
  EXPECT_EQ(Cells(20, 3), "重量|135");
  EXPECT_EQ(Cells(25, 3), "取重|134");
  for (const PrintedRule& rule : page_.Rules()) EXPECT_NE(rule.x1, 1700) << "a column of weights";
}

TEST_F(DiameterPaper, WithoutInstalledWeightItsRowIsNotThere) {
  PartBars bars;
  const TallyResult result = bars.Add(4, kD19, 10).Result();
  DiameterSheet sheet{
      .layout = kKakubuiHead, .figures = FiguresOfPart(result.Parts(), 4), .with_installed = false};
  Draw(sheet);
  EXPECT_EQ(Cells(20, 3), "重量|135");
  EXPECT_EQ(Cells(24, 3), "切断");
  EXPECT_FALSE(page_.Has("取重"));
}

TEST_F(DiameterPaper, VerticalRulesHaveTheirWidths) {
  FloorBars bars;
  Draw(SheetOf(bars.Add(1, 1, kD19, 10)));
  for (int group = 0; group < 7; ++group) {
    const float left = 500 + 2190.0F * static_cast<float>(group);
    for (const auto& [offset, width] : {std::pair(0.0F, 3), std::pair(450.0F, 2), std::pair(1200.0F, 1)}) {
      std::vector<std::int32_t> widths;
      for (const PrintedRule& rule : page_.Rules()) {
        if (rule.x1 == left + offset && rule.x2 == rule.x1) widths.push_back(rule.draw_width);
      }
      EXPECT_THAT(widths, ElementsAre(width)) << left + offset;
    }
  }
}

TEST_F(DiameterPaper, AFigureWiderThanItsFieldIsToldByFloorDiameterAndRow) {
  FloorBars bars;
  DiameterSheet sheet = SheetOf(bars.Add(1, 1, kD19, 10));
  sheet.figures[kD19].bars[kAt6m] = 1234567;
  sheet.figures[kD19].welds = 7654321;
  Draw(sheet);
  EXPECT_THAT(cut_, ElementsAre(CutFigure{1, "1階 D 19  6.0", "本 数", "1,234,567"},
                                CutFigure{1, "1階 D 19 圧接", "", "7,654,321"}));
}

TEST(FiguresOfFloor, AreThePartsOfThatFloorTogether) {
  FloorBars bars;
  const TallyResult result = bars.Add(1, 1, kD19, 10).Add(1, 11, kD19, 20).Add(2, 1, kD19, 40).Result(1, 2);
  const FiguresByDiameter figures = FiguresOfFloor(result.Floors(), 1, {});
  EXPECT_EQ(figures[kD19].bars[kAt6m], 30);
  EXPECT_EQ(figures[kD19].weights[kAt6m], Kilograms(405));
  EXPECT_EQ(figures[kD19].stock, Kilograms(405));
}

TEST(FiguresOfRange, AreThoseOfAllFloorsTogether) {
  FloorBars bars;
  bars.installed = true;
  const TallyResult result = bars.Add(1, 1, kD19, 10).Add(2, 1, kD19, 40).Result(1, 2);
  const FiguresByDiameter figures = FiguresOfRange(result.Floors());
  EXPECT_EQ(figures[kD19].bars[kAt6m], 50);
  EXPECT_EQ(figures[kD19].stock, Kilograms(675));
  EXPECT_EQ(figures[kD19].installed, Kilograms(673));
}

TEST(HasThickBars, WhereD32OrAThickerDiameterHasWeight) {
  FiguresByDiameter figures;
  figures[kD29].stock = Kilograms(1);
  figures[kU6].stock = Kilograms(1);
  EXPECT_FALSE(HasThickBars(figures));
  figures[kD32].installed = Kilograms(1);
  EXPECT_TRUE(HasThickBars(figures));
  figures[kD32].installed = {};
  figures[11].stock = Kilograms(1);
  EXPECT_TRUE(HasThickBars(figures));
}

}  // namespace
}  // namespace rbt::test
