// SPDX-License-Identifier: MIT
#include "reports/frame/head_layout.h"

#include <array>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/frame/draw_head.h"
#include "support/drawn_page.h"
#include "support/sheet_samples.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

using ::testing::ElementsAre;

// Another family of heads than that of the comparison reports: the rows stand still, whether there is a
// client or not, a row is as high as the title, and long names start larger than their label.

constexpr RuleEnd kByName{RuleBy::name_size, 20.1, 960 + 100};
constexpr ProjectPart kProject{
    .x = 500,
    .long_name_width = 6000 - 960,
    .short_form = {"工事名  ", 12, 1567, 12, {RuleBy::characters, 264, 1600, 11000}},
    .long_form = {"工事名　", 12, 1460, 13, kByName},
    .broken_form = {"工事名　", 12, 1460, 13, kByName},
    .short_row = {3.5},
    .short_rule_row = std::nullopt,
    .long_row = {3.5},
    .long_row_over_sub_project = {3.5},
    .first_row = {2.5},
    .second_row = {3.5},
    .rule_width = 3,
    .rule_width_without_client = 3};
constexpr std::array<HeadPart, 9> kParts{
    PagePart{9600, {0, 120}},
    ClientPart{.place = {500, 500, EndsBehindText(0, 6000)},
               .row = {1.5},
               .size = 14,
               .rule_width = 3,
               .behind = "　御中",
               .text_end = 10500},
    kProject,
    TextPart{&ReportHead::scope, 3900, {5}},
    WeightPart{.kilograms = &ReportHead::total_weight, .place = {600, 500, EndsAt(3800)}, .row = {5}},
    WeightPart{.kilograms = &ReportHead::installed_weight,
               .place = {7000, 6800, EndsAt(10700)},
               .row = {5},
               .label = "取付総重量"},
    SubProjectPart{.x = 6700,
                   .before = "",
                   .behind = "",
                   .under_short = RowPlace{2.5},
                   .under_long = {},
                   .under_broken = {},
                   .size = 13},
    DatePart{{7050, 6750, EndsAt(9550)}, {7050, 6750, EndsAt(9550)}, {4.25}},
    OwnCompanyPart{11200, 1000, "ＭＳ Ｐゴシック"}};
constexpr HeadLayout kLayout{{5900, 5700, EndsBehindText()}, 500, {18, 30}, kParts};

/// Y of a row: 18 points are 360 twips.
constexpr float Row(double row) { return static_cast<float>(500 + row * 390); }

class HeadOfFixedRows : public ::testing::Test {
 protected:
  HeadOfFixedRows() { head_.scope = "【1階～8階】"; }

  RowGrid Draw(const HeadLayout& layout = kLayout) {
    const RowGrid grid = DrawHead(pen_, layout, head_);
    page_.Printer.EndDoc();
    return grid;
  }

  test::SiteFixture root_;
  ReportHead head_ = HeadOf("階 別 合 計", test::SampleSite(), test::SampleArguments());
  test::DrawnPage page_;
  ReportPen pen_{page_.Printer};
};

TEST_F(HeadOfFixedRows, TheRowsStandStillWithAndWithoutAClient) {
  for (const char* client : {"見本建設", ""}) {
    head_.client = client;
    const RowGrid grid = Draw();
    EXPECT_EQ(grid.LineUnit, 390);
    EXPECT_EQ(grid.BaseY, 500);
    EXPECT_EQ(page_.TextOf("見本町住宅").y, Row(3.5));
    EXPECT_EQ(page_.RuleAt(Row(3.5) + 240, 500).draw_width, 3);
  }
}

// Four characters of 360 twips and three blanks of 180.
TEST_F(HeadOfFixedRows, TheRuleUnderTheTitleEndsWithIt) {
  Draw();
  EXPECT_EQ(page_.RuleAt(860, 5700).x2, 5900 + 4 * 360 + 3 * 180);
}

TEST_F(HeadOfFixedRows, TheRuleUnderTheClientIsAsLongAsTheLine) {
  Draw();
  const PrintedText client = page_.TextOf("見本建設　御中");
  EXPECT_EQ(client.y, Row(1.5));
  EXPECT_EQ(client.font_size, 14);
  EXPECT_EQ(page_.RuleAt(Row(1.5) + 280, 500).x2, 500 + 7 * 280);
}

// 10000 twips are left: 35 characters of 280 fit, 38 take 13 points.
TEST_F(HeadOfFixedRows, AClientTooLongForTheSpaceShrinksAndItsRuleStops) {
  head_.client = test::Repeated("見", 32);
  Draw();
  EXPECT_EQ(page_.TextThatStarts("見見").font_size, 14);
  EXPECT_EQ(page_.RuleAt(Row(1.5) + 280, 500).x2, 6000);
  head_.client = test::Repeated("見", 35);
  Draw();
  EXPECT_EQ(page_.TextThatStarts("見見").font_size, 13);
}

TEST_F(HeadOfFixedRows, TheRuleUnderAShortNameEndsBeforeTheBlock) {
  Draw();
  EXPECT_EQ(page_.RuleAt(Row(3.5) + 240, 500).x2, 500 + 5 * 264 + 1600);
  head_.project = ShortName{test::Repeated("見", 40)};
  Draw();
  EXPECT_EQ(page_.RuleAt(Row(3.5) + 240, 500).x2, 11000);
}

TEST_F(HeadOfFixedRows, TheRuleUnderALongNameClearsTheNameAndItsLabel) {
  head_.project = OneLineName{"見本町"};
  Draw();
  EXPECT_EQ(page_.TextOf("見本町").font_size, 13);
  EXPECT_FLOAT_EQ(page_.RuleAt(Row(3.5) + 260, 500).x2, 500 + 960 + 3 * 13 * 20.1F + 100);
  head_.project = OneLineName{test::Repeated("見", 30)};
  Draw();
  EXPECT_LT(page_.TextThatStarts("見見").font_size, 12);
  EXPECT_NO_THROW(page_.RuleAt(Row(3.5) + 240, 500));
}

TEST_F(HeadOfFixedRows, ANameOnTwoLinesStandsBelowItsRows) {
  head_.project = BrokenName{"見本町再開発", "業務棟"};
  Draw();
  EXPECT_EQ(page_.TextOf("見本町再開発").y, Row(2.5));
  EXPECT_EQ(page_.TextOf("業務棟").y, Row(3.5));
  EXPECT_EQ(page_.TextOf("工事名　").y, Row(3.5));
  EXPECT_FLOAT_EQ(page_.RuleAt(Row(3.5) + 260, 500).x2, 500 + 960 + 6 * 13 * 20.1F + 100);
}

TEST_F(HeadOfFixedRows, TheLabelOfANameOnTwoLinesMayStandBeforeBoth) {
  ProjectPart part = kProject;
  part.rest_label = "　　　  ";
  const std::array<HeadPart, 1> parts{part};
  head_.project = BrokenName{"見本町再開発", "業務棟"};
  Draw({.title = kLayout.title, .title_y = 500, .rows = kLayout.rows, .parts = parts});
  EXPECT_EQ(page_.TextOf("工事名　").y, page_.TextOf("見本町再開発").y);
  EXPECT_EQ(page_.TextOf("　　　  ").y, page_.TextOf("業務棟").y);
}

TEST_F(HeadOfFixedRows, AShortNameMayHaveToShrinkAndItsRuleClearsTheLabel) {
  ProjectPart part = kProject;
  part.short_name_width = 1000;  // five characters of 10 points
  const std::array<HeadPart, 1> parts{part};
  head_.project = ShortName{"見本町住宅"};
  Draw({.title = kLayout.title, .title_y = 500, .rows = kLayout.rows, .parts = parts});
  const PrintedText name = page_.TextOf("見本町住宅");
  EXPECT_EQ(name.font_size, 10);
  EXPECT_EQ(page_.RuleAt(name.y + 240, 500).draw_width, 3);
}

TEST_F(HeadOfFixedRows, ATitleMayBeSpreadOverTheWidthOfTheLayout) {
  head_.title = "数量表";
  head_.spreads_title = true;
  Draw({.title = {6500, 6300, EndsBehindText(200)},
        .title_y = 500,
        .rows = kLayout.rows,
        .parts = {},
        .title_width = 3500});
  // 3 letters of 360 leave 2420, 1210 for each gap.
  EXPECT_EQ(page_.TextAt(6500, 500), "数");
  EXPECT_EQ(page_.TextAt(6500 + 1570, 500), "量");
  EXPECT_EQ(page_.TextAt(6500 + 3140, 500), "表");
  EXPECT_EQ(page_.RuleAt(860, 6300).x2, 10200);
}

TEST_F(HeadOfFixedRows, EachWeightHasItsLineAndOneThatIsNotThereHasNone) {
  Draw();
  EXPECT_FALSE(page_.Has("総重量"));
  head_.total_weight = 12345;
  head_.installed_weight = 999;
  Draw();
  EXPECT_EQ(page_.TextOf("総重量     12 t 345 Kg").y, Row(5));
  EXPECT_EQ(page_.TextOf("取付総重量          999 Kg").x, 7000);
  EXPECT_EQ(page_.RuleAt(Row(5) + 280, 6800).x2, 10700);
}

TEST_F(HeadOfFixedRows, AWeightTooWideForItsFieldIsNamedByItsLabel) {
  head_.installed_weight = 123456789;
  Draw();
  EXPECT_THAT(pen_.cut_figures, ElementsAre(CutFigure{1, "取付総重量", "", "123456 t 789 Kg"}));
}

TEST_F(HeadOfFixedRows, ScopeAndDateStandInTheirRows) {
  Draw();
  EXPECT_EQ(page_.TextOf("【1階～8階】").x, 3900);
  EXPECT_EQ(page_.TextOf("【1階～8階】").y, Row(5));
  EXPECT_EQ(page_.TextThatStarts("2026").y, Row(4.25));
  head_.scope.clear();
  Draw();
  EXPECT_FALSE(page_.Has("階～"));
  for (const PrintedText& text : page_.Texts()) EXPECT_FALSE(text.text.empty());
}

TEST_F(HeadOfFixedRows, TheSubProjectTextStandsUnderTheFormsThatHaveRoomForIt) {
  head_.sub_project = "二期工事";
  Draw();
  EXPECT_EQ(page_.TextOf("二期工事").x, 6700);
  EXPECT_EQ(page_.TextOf("二期工事").font_size, 13);
  head_.project = OneLineName{"見本町"};
  Draw();
  EXPECT_FALSE(page_.Has("二期工事"));
}

TEST_F(HeadOfFixedRows, ThePageNumberIsThatOfThePen) {
  pen_.page = 12;
  Draw();
  const PrintedText page = page_.TextOf("page:12");
  EXPECT_EQ(page.y, 500 + 120);
  EXPECT_EQ(page.font_size, 11);
  EXPECT_FALSE(page.font_bold);
}

TEST_F(HeadOfFixedRows, TheBlockMayHaveItsLabelsInAnotherFont) {
  root_.SetIni(test::kSteelFile, "自社名", "名称1", "本社");
  root_.SetIni(test::kSteelFile, "自社名", "住所1", "見本町一丁目");
  Draw();
  EXPECT_EQ(page_.TextOf("本社").font_name, "ＭＳ Ｐゴシック");
  EXPECT_EQ(page_.TextOf("丁").font_name, "ＭＳ ゴシック");
}

}  // namespace
}  // namespace rbt
