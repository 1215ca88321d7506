// SPDX-License-Identifier: MIT
#include "reports/ulbon/ulbon_report.h"

#include <vector>

#include <gtest/gtest.h>

#include "support/drawn_page.h"
#include "support/sheet_samples.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

/// With a client, rows are 360 twips and row 0 stands at 1940.
class UlbonReport : public ::testing::Test {
 protected:
  void Draw() { DrawUlbonReport(page_.Printer, site_, arguments_, table_); }
  static constexpr float Y(int row) { return static_cast<float>(1940 + row * 360); }

  test::SiteFixture root_;
  TallyTable table_ = test::SampleTable();
  ReportSite site_ = test::SampleSite();
  ReportArguments arguments_ = test::SampleArguments();
  test::DrawnPage page_;
};

TEST_F(UlbonReport, AtPercent0ARowIsItsWeightRoundedToKilograms) {
  EXPECT_EQ(UlbonRowWeight(table_, 12, 0), Currency::FromInteger(11));  // 10.4 + 0.2
  table_.UlbonWeight[13] = 20.4999;
  EXPECT_EQ(UlbonRowWeight(table_, 13, 0), Currency::FromInteger(20));
  table_.UlbonWeight[13] = 20.5;
  EXPECT_EQ(UlbonRowWeight(table_, 13, 0), Currency::FromInteger(21));
}

// 10.6 and 10 % are 11.66; 120 % are 23.32.
TEST_F(UlbonReport, ThePercentageRaisesARow) {
  EXPECT_EQ(UlbonRowWeight(table_, 12, 10), Currency::FromInteger(12));
  EXPECT_EQ(UlbonRowWeight(table_, 12, 120), Currency::FromInteger(23));
}

TEST_F(UlbonReport, TheTotalRowIsTheTalliedSumWhateverThePercentage) {
  table_.UlbonWeight[17] = 100;
  arguments_.Percent = 50;
  Draw();
  EXPECT_EQ(page_.TextBeside(page_.TextOf("U  6"), 7900), "         16 Kg");
  EXPECT_EQ(page_.TextBeside(page_.TextOf("U 16"), 7900), "        150 Kg");
  EXPECT_EQ(page_.TextBeside(page_.TextOf("合　　　計"), 7900), "        111 Kg");
  EXPECT_TRUE(page_.Has("総重量          111 Kg"));
}

TEST_F(UlbonReport, RowsStandUnderTheHeadingAndTheTotalInRow14) {
  table_.UlbonWeldCount[17] = 3;
  Draw();
  EXPECT_EQ(page_.TextOf("取   付   重   量").x, 7250);
  EXPECT_EQ(page_.TextOf("取   付   重   量").y, Y(7) + 50);
  EXPECT_EQ(page_.TextOf("U  6").x, 2000);
  EXPECT_EQ(page_.TextOf("U  6").y, Y(8) + 50);
  EXPECT_EQ(page_.TextOf("U 16").y, Y(13) + 50);
  EXPECT_EQ(page_.TextOf("合　　　計").y, Y(14) + 50);
  EXPECT_EQ(page_.TextBeside(page_.TextOf("U  6"), 13100), "      7");
  EXPECT_EQ(page_.TextBeside(page_.TextOf("合　　　計"), 13100), "     10");
}

TEST_F(UlbonReport, TheFrameKeepsFourteenRowsAndTheEmptyColumns) {
  Draw();
  EXPECT_EQ(page_.FrameColumns(), (std::vector<float>{1800, 3800, 6800, 9800, 12800, 14300}));
  ASSERT_EQ(page_.FrameRows().size(), 15U);
  EXPECT_EQ(page_.FrameRows().front(), Y(7));
  EXPECT_EQ(page_.FrameRows().back(), Y(21));
  for (const PrintedText& text : page_.Texts()) {
    if (text.y < Y(8)) continue;
    EXPECT_TRUE(text.x == 2000 || text.x == 7900 || text.x == 13100) << text.text;
  }
}

TEST_F(UlbonReport, TheHeadHasItsOwnTitleLabelAndRules) {
  Draw();
  EXPECT_EQ(page_.TextOf("ウ ル ボ ン 重 量 表").x, 5900);
  EXPECT_EQ(page_.RuleAt(500 + 360, 5700).x2, 9700);
  EXPECT_EQ(page_.TextOf("工事名　").x, 1800);
  EXPECT_EQ(page_.TextOf("見本町住宅").x, 2760);
  EXPECT_EQ(page_.RuleAt(static_cast<float>(1940 + 360 * 2.7), 1800).x2, 9300);
  EXPECT_EQ(page_.TextThatStarts("総重量").x, 1900);
  EXPECT_EQ(page_.TextThatStarts("総重量").y, Y(6));
  EXPECT_EQ(page_.RuleAt(Y(6) + 280, 1800).x2, 5100);
  EXPECT_EQ(page_.TextThatStarts("2026").x, 11800);
}

TEST_F(UlbonReport, TheRuleUnderTheProjectIsOfWidth2WithoutAClientToo) {
  site_.client = "";
  Draw();
  EXPECT_EQ(page_.RuleAt(static_cast<float>(1220 + 360 * 2.7), 1800).draw_width, 2);
}

TEST_F(UlbonReport, ASubProjectTextStandsInSize12ForAsLongAsItStaysClearOfTheBlock) {
  site_.long_name = "見本町再開発ビル新築工事";
  arguments_.SubProject = "第一工区南側地下躯体および外構擁壁一式工事分";
  Draw();
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 12);
  arguments_.SubProject += arguments_.SubProject;
  Draw();
  EXPECT_EQ(page_.TextThatStarts("　　　（").font_size, 7);
}

TEST_F(UlbonReport, ASubProjectTextStandsUnderANameOfTwoLinesToo) {
  site_.long_name = "見本町再開発ビル";
  site_.koji_break = 4;
  arguments_.SubProject = "二期工事";
  Draw();
  EXPECT_EQ(page_.TextOf("　　　（二期工事）").x, 1800);
  EXPECT_EQ(page_.TextOf("　　　（二期工事）").y, Y(0) + 360 * 3.5F + 50);
  EXPECT_EQ(page_.TextOf("　　　（二期工事）").font_size, 12);
}

// 8100 twips are left before the block: with 8 bytes of label 27 characters take 62 x 130 at 13 points.
TEST_F(UlbonReport, AClientShrinksBeforeTheOwnCompanyBlock) {
  for (int i = 0; i < 23; ++i) site_.client += "見";
  Draw();
  EXPECT_EQ(page_.TextThatStarts("取引先").font_size, 13);
  site_.client += "見";
  Draw();
  EXPECT_EQ(page_.TextThatStarts("取引先").font_size, 12.5F);
  EXPECT_EQ(page_.RuleAt(Y(0) + 250, 1800).x2, 9900);
}

// 19 characters take 960 + 38 x 120 = 5520; 13 points would fit too.
TEST_F(UlbonReport, ALongNameShrinksFrom12OnTwoLinesToo) {
  site_.long_name = "見本町三丁目地区市街地再開発事業業務棟駐車場棟";
  site_.koji_break = 19;
  Draw();
  EXPECT_EQ(page_.TextOf("見本町三丁目地区市街地再開発事業業務棟").font_size, 12);
  EXPECT_EQ(page_.TextOf("駐車場棟").y, Y(0) + 360 * 3.5F - 240);
}

TEST_F(UlbonReport, TheOwnCompanyStandsAt10000And2300) {
  root_.SetIni(test::kSteelFile, "自社名", "会社名", "鉄筋");
  Draw();
  EXPECT_EQ(page_.TextOf("鉄").x, 10000 + 960);
  EXPECT_EQ(page_.TextOf("鉄").y, 2300 + 700);
}

TEST_F(UlbonReport, ABlockOfManyLinesNeverRunsIntoTheTable) {
  for (const char* key : {"会社名", "住所1", "住所2", "住所3", "TEL1", "TEL2", "TEL3", "FAX1", "FAX2",
                          "MAIL1", "MAIL2", "名称1", "名称2"}) {
    root_.SetIni(test::kSteelFile, "自社名", key, "鉄筋工場");
  }
  for (const char* client : {"見本建設", ""}) {
    site_.client = client;
    Draw();
    const float table = page_.FrameRows().front();
    for (const PrintedText& text : page_.Texts()) {
      // What stands right of 9900 is the date, the block, or a figure or heading of the table.
      if (text.x < 9900 || text.x == 10350 || text.x >= 13050) continue;
      EXPECT_LE(text.y + LineHeight(text.font_size), table) << client << " " << text.text;
    }
  }
}

}  // namespace
}  // namespace rbt
