// SPDX-License-Identifier: MIT
#include "reports/frame/report_head.h"

#include <string>

#include <gtest/gtest.h>

#include "reports/comparison/comparison_layout.h"
#include "reports/frame/draw_head.h"
#include "shell/config/settings.h"
#include "support/drawn_page.h"
#include "support/sheet_samples.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

class ComparisonHead : public ::testing::Test {
 protected:
  RowGrid Draw(const HeadLayout& layout) {
    ReportPen pen(page_.Printer);
    const RowGrid grid = DrawHead(pen, layout, HeadOf(kComparisonTitle, site_, arguments_));
    page_.Printer.EndDoc();
    return grid;
  }
  RowGrid Draw() { return Draw(kHeadA4T); }

  ReportSite site_ = test::SampleSite();
  ReportArguments arguments_ = test::SampleArguments();
  test::DrawnPage page_;
};

TEST_F(ComparisonHead, TheTitleStandsBoldInSize18OverItsRule) {
  Draw();
  const PrintedText title = page_.TextOf("重  量  対  比  表");
  EXPECT_EQ(title.x, 3800);
  EXPECT_EQ(title.y, 1000);
  EXPECT_EQ(title.font_size, 18);
  EXPECT_TRUE(title.font_bold);
  EXPECT_EQ(title.font_name, "ＭＳ ゴシック");
  EXPECT_EQ(page_.RuleAt(1360, 3600).x2, 7400);
  EXPECT_EQ(page_.RuleAt(1360, 3600).draw_width, 4);
}

TEST_F(ComparisonHead, NamesTheDocumentAfterTheReportAndTheSite) {
  Draw();
  EXPECT_EQ(page_.documents.back().title, "重量対比表 見本町住宅");
  site_.short_name.clear();
  Draw();
  EXPECT_EQ(page_.documents.back().title, "重量対比表");
}

// Title at 1000, two lines of 360 below, two rows of 13 points (260) and 100.
TEST_F(ComparisonHead, AClientMovesTheRowsDownByTwo) {
  const RowGrid grid = Draw();
  EXPECT_EQ(grid.LineUnit, 360);
  EXPECT_EQ(grid.BaseY, 1000 + 2 * 360 + 2 * 360);
  const PrintedText client = page_.TextOf("取引先  見本建設");
  EXPECT_EQ(client.x, 500);
  EXPECT_EQ(client.y, grid.BaseY);
  EXPECT_EQ(client.font_size, 13);
}

// 見本建設 and the 御中 that is not printed have 14 bytes: 14 x 283 / 2 + 100 = 2081.
TEST_F(ComparisonHead, TheRuleUnderTheClientLeavesRoomForAnAddressThatIsNotPrinted) {
  Draw();
  EXPECT_EQ(page_.RuleAt(2440 + 260, 500).x2, 500 + 2081);
  EXPECT_EQ(page_.RuleAt(2440 + 260, 500).draw_width, 2);
  EXPECT_FALSE(page_.Has("御中"));
}

TEST_F(ComparisonHead, WithoutAClientTheRowsStayAndTheProjectRuleKeepsTheTitlesWidth) {
  site_.client = "";
  const RowGrid grid = Draw();
  EXPECT_EQ(grid.BaseY, 1720);
  EXPECT_EQ(page_.RuleAt(grid.Y(2.7), 500).draw_width, 4);
}

TEST_F(ComparisonHead, LandscapeHeadsStandHigherAndB5IsTighter) {
  const RowGrid a4 = Draw(kHeadA4Y);
  EXPECT_EQ(a4.LineUnit, 360);
  EXPECT_EQ(a4.BaseY, 500 + 2 * 360 + 2 * 360);
  const RowGrid b5 = Draw(kHeadB5Y);
  EXPECT_EQ(b5.LineUnit, 295);
  EXPECT_EQ(b5.BaseY, 500 + 2 * 360 + 2 * 295);
  EXPECT_EQ(page_.TextOf("重  量  対  比  表").x, 5200);
}

// Five characters: 5 x 264 + 1600.
TEST_F(ComparisonHead, AShortNameStandsBehindItsLabelOverARuleByItsCharacters) {
  const RowGrid grid = Draw();
  EXPECT_EQ(page_.TextOf("工事名  ").x, 500);
  EXPECT_EQ(page_.TextOf("見本町住宅").x, 1567);
  EXPECT_EQ(page_.TextOf("見本町住宅").y, grid.Y(2));
  EXPECT_EQ(page_.TextOf("見本町住宅").font_size, 12);
  EXPECT_EQ(page_.RuleAt(grid.Y(2.7), 500).x2, 500 + 5 * 264 + 1600);
}

TEST_F(ComparisonHead, ASubProjectTextStandsInBracketsUnderAShortName) {
  arguments_.SubProject = "二期工事";
  const RowGrid grid = Draw();
  const PrintedText text = page_.TextOf("　　　（二期工事）");
  EXPECT_EQ(text.x, 500);
  EXPECT_EQ(text.y, grid.Y(3.3));
  EXPECT_EQ(text.font_size, 12);
}

TEST_F(ComparisonHead, ASubProjectTextNeverRunsIntoTheOwnCompanyBlock) {
  arguments_.SubProject = test::Repeated("期", 22);  // 500 + 27 x 240 = 6980
  Draw();
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 12);
  arguments_.SubProject = test::Repeated("期", 23);
  Draw();
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 7);
  Draw(kHeadA4Y);
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 12);
}

// 20 characters fit: 960 + 40 x 120 = 5760.
TEST_F(ComparisonHead, ALongNameThatFitsStandsAtItsLabelsHeightInSize12) {
  site_.long_name = test::Repeated("見", 20);
  const RowGrid grid = Draw();
  const float y = grid.Y(2) - 240 + 400;
  EXPECT_EQ(page_.TextOf("工事名").y, y);
  EXPECT_EQ(page_.TextOf(site_.long_name).x, 1460);
  EXPECT_EQ(page_.TextOf(site_.long_name).y, y);
  EXPECT_EQ(page_.TextOf(site_.long_name).font_size, 12);
  // 20 x 12 x 20.1 = 4824.
  EXPECT_FLOAT_EQ(page_.RuleAt(y + 240, 500).x2, 500 + 960 + 4824 + 100);
}

// 5040 twips are left: 24 characters take 48 x 105 at 10.5 points, 25 need 50 x 100 at 10.
TEST_F(ComparisonHead, ALongNameShrinksInStepsOfHalfAPoint) {
  site_.long_name = test::Repeated("見", 24);
  Draw();
  EXPECT_EQ(page_.TextOf(site_.long_name).font_size, 10.5F);
  site_.long_name = test::Repeated("見", 25);
  Draw();
  EXPECT_EQ(page_.TextOf(site_.long_name).font_size, 10);
}

TEST_F(ComparisonHead, TheRuleUnderAShrunkNameClearsItsLabel) {
  site_.long_name = test::Repeated("見", 40);
  const RowGrid grid = Draw();
  const float y = grid.Y(2) + 160;
  EXPECT_LT(page_.TextOf(site_.long_name).font_size, 12);
  EXPECT_NO_THROW(page_.RuleAt(y + 240, 500));
}

TEST_F(ComparisonHead, ALongNameWithASubProjectTextStandsHigher) {
  site_.long_name = test::Repeated("見", 20);
  arguments_.SubProject = test::Repeated("期", 22);
  const RowGrid grid = Draw();
  const float y = grid.Y(1.3) + 160;
  EXPECT_EQ(page_.TextOf("工事名").y, y);
  EXPECT_EQ(page_.TextThatStarts("　　　（").y, y + 240);
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 12);
}

TEST_F(ComparisonHead, ASubProjectTextOver22CharactersStandsInSize7UnderALongName) {
  site_.long_name = "見本町";
  arguments_.SubProject = test::Repeated("a", 23);
  Draw(kHeadB5Y);
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 7);
}

TEST_F(ComparisonHead, ANameWithABreakStandsOnTwoLinesOverARuleByTheLonger) {
  site_.long_name = "見本町再開発ビルabc";
  site_.koji_break = 8;
  const RowGrid grid = Draw();
  EXPECT_EQ(page_.TextOf("工事名　").y, grid.Y(3.5) - 240);
  EXPECT_EQ(page_.TextOf("見本町再開発ビル").y, grid.Y(2.5) - 260);
  EXPECT_EQ(page_.TextOf("見本町再開発ビル").x, 1460);
  EXPECT_EQ(page_.TextOf("abc").y, grid.Y(3.5) - 260);
  EXPECT_EQ(page_.TextOf("abc").font_size, 13);
  // 8 x 13 x 20.1 = 2090.4.
  EXPECT_FLOAT_EQ(page_.RuleAt(grid.Y(3.5), 500).x2, 500 + 960 + 2090.4F + 100);
}

TEST_F(ComparisonHead, ASubProjectTextStandsOnTheLineBelowANameOfTwoLines) {
  site_.long_name = "見本町再開発ビル";
  site_.koji_break = 4;
  arguments_.SubProject = "二期工事";
  for (const HeadLayout* layout : {&kHeadA4T, &kHeadA4Y, &kHeadB5Y}) {
    const RowGrid grid = Draw(*layout);
    const PrintedText text = page_.TextOf("　　　（二期工事）");
    EXPECT_EQ(text.x, page_.TextOf("工事名　").x);
    EXPECT_EQ(text.y, grid.Y(3.5) + 50);  // clear of the rule
    EXPECT_EQ(text.font_size, 12);
    EXPECT_LT(text.y + 240, grid.Y(5.8));  // and clear of the total
  }
}

// 5900 twips are left before the block: with 8 bytes of label 18 characters take 44 x 130 at 13 points, 19
// need 46 x 125 at 12.5. The rule of 19 would end at 500 + 44 x 141.5 + 100 = 6826.
TEST_F(ComparisonHead, AClientShrinksByHalfPointsBeforeTheOwnCompanyBlockAndItsRuleEndsThere) {
  site_.client = test::Repeated("見", 18);
  Draw();
  EXPECT_EQ(page_.TextThatStarts("取引先").font_size, 13);
  site_.client = test::Repeated("見", 19);
  Draw();
  EXPECT_EQ(page_.TextThatStarts("取引先").font_size, 12.5F);
  EXPECT_EQ(page_.RuleAt(2440 + 250, 500).x2, 6400);
  Draw(kHeadA4Y);  // no block there
  EXPECT_EQ(page_.TextThatStarts("取引先").font_size, 13);
}

TEST_F(ComparisonHead, OnA4PortraitTheRuleOfTheProjectEndsBeforeTheOwnCompanyBlock) {
  site_.short_name = test::Repeated("見", 20);  // 500 + 20 x 264 + 1600 = 7380
  const RowGrid grid = Draw();
  EXPECT_EQ(page_.RuleAt(grid.Y(2.7), 500).x2, 6400);
  site_.long_name = test::Repeated("見", 21);  // 500 + 960 + 21 x 12 x 20.1 + 100 = 6625.2
  Draw();
  EXPECT_EQ(page_.RuleAt(grid.Y(2) + 400, 500).x2, 6400);
  site_.koji_break = 20;
  Draw();
  EXPECT_EQ(page_.RuleAt(grid.Y(3.5), 500).x2, 6400);
  Draw(kHeadA4Y);
  EXPECT_GT(page_.RuleAt(1940 + 360 * 3.5F, 1800).x2, 6400 + 1300);
}

TEST_F(ComparisonHead, OnB5TheRuleOfAShortNameStandsRightUnderIt) {
  const RowGrid grid = Draw(kHeadB5Y);
  EXPECT_EQ(page_.TextOf("見本町住宅").y, grid.Y(2));
  EXPECT_EQ(page_.RuleAt(grid.Y(2) + 240, 700).x2, 700 + 5 * 264 + 1600);
}

TEST_F(ComparisonHead, OnB5ALongNameAndItsRuleReckonFrom1067) {
  site_.long_name = test::Repeated("見", 20);
  Draw(kHeadB5Y);
  EXPECT_EQ(page_.TextOf(site_.long_name).x, 1767);
  const float y = page_.TextOf(site_.long_name).y + 240;
  EXPECT_FLOAT_EQ(page_.RuleAt(y, 700).x2, 700 + 1067 + 4824 + 100);
}

// Year to the right of 4 characters, month and day of 2.
TEST_F(ComparisonHead, AWesternDateStandsRightAlignedOverItsRule) {
  const RowGrid grid = Draw();
  const PrintedText date = page_.TextOf("2026 年  1 月  2 日");
  EXPECT_EQ(date.x, 8500);
  EXPECT_EQ(date.y, grid.Y(1) - 1500);
  EXPECT_EQ(date.font_size, 12);
  EXPECT_EQ(page_.RuleAt(date.y + 240, 8400).x2, 10800);
  EXPECT_EQ(page_.RuleAt(date.y + 240, 8400).draw_width, 2);
}

TEST_F(ComparisonHead, AnEraDateStartsWithTheEraOfTheTypedYear) {
  site_.western_dates = false;
  arguments_.Year = "08";
  Draw();
  EXPECT_EQ(page_.TextOf("令和 08 年  1 月  2 日").x, 8300);
  arguments_ = {"", "31", "4", "30", 1, 0};
  const RowGrid grid = Draw();
  EXPECT_EQ(page_.TextOf("平成 31 年  4 月 30 日").y, grid.Y(1) - 1500);
  EXPECT_EQ(page_.RuleAt(grid.Y(1) - 1500 + 240, 8200).x2, 11000);
  arguments_.Month = "5";
  arguments_.Day = "1";
  Draw();
  EXPECT_TRUE(page_.Has("令和 31 年  5 月  1 日"));
}

TEST_F(ComparisonHead, LandscapeDatesHaveTheirOwnPlaces) {
  RowGrid grid = Draw(kHeadA4Y);
  EXPECT_EQ(page_.TextThatStarts("2026").x, 11800);
  EXPECT_EQ(page_.RuleAt(grid.Y(1) - 1300 + 240, 11700).x2, 14100);
  site_.western_dates = false;
  grid = Draw(kHeadB5Y);
  EXPECT_EQ(page_.TextThatStarts("令和").x, 10500);
  EXPECT_EQ(page_.RuleAt(grid.Y(1) - 1300 + 240, 10400).x2, 13200);
}

class ReportDates : public ::testing::Test {
 protected:
  test::SiteFixture site_;
};

TEST_F(ReportDates, EmptyDateBoxesTakeTheWesternYear) {
  const DateTexts date = DefaultDateTexts({2026, 3, 4});
  EXPECT_EQ(date.year, "2026");
  EXPECT_EQ(date.month, "03");
  EXPECT_EQ(date.day, "04");
}

TEST_F(ReportDates, EmptyDateBoxesTakeTheYearOfTheEraWithTwoDigits) {
  SaveSetting(kDateStyleKey, 2);
  EXPECT_EQ(DefaultDateTexts({2026, 11, 21}).year, "08");
  EXPECT_EQ(DefaultDateTexts({2019, 4, 30}).year, "31");
}

}  // namespace
}  // namespace rbt
