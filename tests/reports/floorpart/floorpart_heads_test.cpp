// SPDX-License-Identifier: MIT
#include "reports/floorpart/floorpart_heads.h"

#include <gmock/gmock.h>

#include "reports/floorpart/floorpart_paper.h"
#include "reports/frame/draw_head.h"

namespace rbt::test {
namespace {

/// The head of the list of floors, on a page of its own.
class FloorPartHeads : public FloorPartPaper {
 protected:
  void Draw(const HeadLayout& layout = kKaiGoukeiHead) {
    ReportPen pen(page_.Printer);
    ReportHead head = HeadOf("階 別 合 計 数 量 表", site_.site, arguments_);
    head.total_weight = 999;
    head.scope = "【1階～8階】";
    rows_ = DrawHead(pen, layout, head);
    page_.Printer.EndDoc();
  }
  RowGrid rows_;
};

TEST_F(FloorPartHeads, RowsAreAsHighAsALineOfTheTitleAnd30) {
  Draw();
  EXPECT_EQ(rows_.Y(0), 500);
  EXPECT_EQ(rows_.Y(1), 890);
  EXPECT_EQ(rows_.Y(kFloorPartTableRow), kTableTop);
}

TEST_F(FloorPartHeads, TheTitlesRuleEndsWithTheTitleAndTheNumberStandsBehindIt) {
  Draw();
  const PrintedText title = page_.TextOf("階 別 合 計 数 量 表");
  EXPECT_EQ(title.x, 5900);
  EXPECT_EQ(title.y, 500);
  EXPECT_EQ(title.font_size, 18);
  EXPECT_TRUE(title.font_bold);
  EXPECT_EQ(page_.RuleAt(860, 5700).x2, 9500);
  EXPECT_EQ(page_.RuleAt(860, 5700).draw_width, 4);
  const PrintedText number = page_.TextOf("page:1");
  EXPECT_EQ(number.x, 9600);
  EXPECT_EQ(number.y, 620);
  EXPECT_EQ(number.font_size, 11);
  EXPECT_FALSE(number.font_bold);
}

TEST_F(FloorPartHeads, TheClientIsRuledAsLongAsItsTextTo6000AtMost) {
  Draw();
  const PrintedText client = page_.TextOf("見本建設　御中");
  EXPECT_EQ(client.y, 500 + 1.5F * 390);
  EXPECT_EQ(client.font_size, 14);
  EXPECT_EQ(page_.RuleAt(client.y + 280, 500).x2, 500 + 7 * 280);
  EXPECT_EQ(page_.RuleAt(client.y + 280, 500).draw_width, 3);
  site_.site.client = "株式会社見本建設雛形支店例示営業所関東第二工務部";
  Draw();
  EXPECT_EQ(page_.RuleAt(client.y + 280, 500).x2, 6000);
  site_.site.client += site_.site.client;
  Draw();
  const PrintedText longest = page_.TextThatStarts("株式会社見本建設");
  EXPECT_LT(longest.font_size, 14);
  EXPECT_LE(longest.x + TextWidthAt(longest.font_size, longest.text), 11000);
}

TEST_F(FloorPartHeads, AShortNameIsRuledByItsCharacters) {
  Draw();
  EXPECT_EQ(page_.TextOf("工事名  ").x, 500);
  const PrintedText name = page_.TextOf("見本町住宅");
  EXPECT_EQ(name.x, 1567);
  EXPECT_EQ(name.y, 1865);
  EXPECT_EQ(name.font_size, 12);
  EXPECT_EQ(page_.RuleAt(1865 + 240, 500).x2, 500 + 5 * 264 + 1600);
  site_.site.short_name =
      std::string("見本町再開発業務棟及び駐車場新築工事第一工区南側地下躯体および外構擁壁");
  Draw();
  EXPECT_EQ(page_.RuleAt(1865 + 240, 500).x2, 11000);
}

TEST_F(FloorPartHeads, ALongNameShrinksFrom13UntilItEndsBelowItsLimit) {
  site_.site.long_name = "見本町再開発業務棟及び駐車場新築工事";  // 18 characters: 4680 at 13
  Draw();
  PrintedText name = page_.TextOf(site_.site.long_name);
  EXPECT_EQ(name.x, 1460);
  EXPECT_EQ(name.y, 1865);
  EXPECT_EQ(name.font_size, 13);
  EXPECT_EQ(page_.RuleAt(1865 + 260, 500).draw_width, 3);
  EXPECT_NEAR(page_.RuleAt(1865 + 260, 500).x2, 500 + 960 + 18 * 13 * 20.1 + 100, 0.01);
  site_.site.long_name =
      "見本町再開発業務棟及び駐車場新築第一期工事";  // 21: 5040 at 12 is not below the limit
  Draw();
  name = page_.TextOf(site_.site.long_name);
  EXPECT_EQ(name.font_size, 11.5F);
  EXPECT_EQ(page_.RuleAt(1865 + 240, 500).y1, 2105) << "the rule is below the label, which is higher";
}

TEST_F(FloorPartHeads, ANameOfTwoLinesIsRuledByTheLonger) {
  site_.site.long_name = "見本町再開発業務棟新築工事";
  site_.site.koji_break = 6;
  Draw();
  EXPECT_EQ(page_.TextOf("見本町再開発").y, 500 + 2.5F * 390);
  EXPECT_EQ(page_.TextOf("業務棟新築工事").y, 1865);
  EXPECT_EQ(page_.TextOf("工事名　").y, 1865);
  EXPECT_NEAR(page_.RuleAt(1865 + 260, 500).x2, 500 + 960 + 7 * 13 * 20.1 + 100, 0.01);
}

TEST_F(FloorPartHeads, WeightScopeAndDateStandInTheirRows) {
  Draw();
  const PrintedText weight = page_.TextThatStarts("総重量");
  EXPECT_EQ(weight.x, 600);
  EXPECT_EQ(weight.y, 2450);
  EXPECT_EQ(weight.font_size, 14);
  EXPECT_EQ(page_.RuleAt(2450 + 280, 500).x2, 3800);
  EXPECT_EQ(page_.RuleAt(2450 + 280, 500).draw_width, 3);
  const PrintedText date = page_.TextOf("2026 年  1 月  2 日");
  EXPECT_EQ(date.x, 7050);
  EXPECT_EQ(date.y, 2157.5F);
  EXPECT_EQ(page_.RuleAt(2157.5F + 240, 6750).x2, 9550);
  EXPECT_EQ(page_.RuleAt(2157.5F + 240, 6750).draw_width, 2);
}

TEST_F(FloorPartHeads, AnEraDateStandsAtTheSamePlace) {
  site_.site.western_dates = false;
  arguments_.Year = "8";
  Draw();
  EXPECT_EQ(page_.TextOf("令和  8 年  1 月  2 日").x, 7050);
}

TEST_F(FloorPartHeads, ADiameterSheetHasItsPlaces) {
  Draw(kKakukaiHead);
  EXPECT_EQ(page_.TextOf("階 別 合 計 数 量 表").x, 6500);
  EXPECT_EQ(page_.RuleAt(860, 6300).x2, 10100);
  EXPECT_EQ(page_.TextOf("page:1").x, 10200);
  EXPECT_EQ(page_.TextThatStarts("階重量").x, 600);
  EXPECT_EQ(page_.RuleAt(2450 + 280, 500).x2, 4400);
  EXPECT_EQ(page_.TextOf("【1階～8階】").x, 500);
  EXPECT_EQ(page_.TextOf("【1階～8階】").y, 2157.5F);
  EXPECT_EQ(page_.TextThatStarts("2026").x, 7000);
  EXPECT_EQ(page_.RuleAt(2157.5F + 240, 6700).x2, 9500);
}

TEST_F(FloorPartHeads, TheNumberOfAPartsSheetStandsAboveTheOwnCompany) {
  Draw(kKakubuiHead);
  EXPECT_EQ(page_.TextOf("page:1").x, 10860);
  EXPECT_EQ(page_.TextOf("page:1").y, 460);
}

TEST_F(FloorPartHeads, LabelsOfTheOwnCompanyAreProportionalInTheListsAlone) {
  root_.SetIni(kSteelFile, "自社名", "名称1", "本社");
  root_.SetIni(kSteelFile, "自社名", "住所1", "見本県例示市");
  for (const HeadLayout* layout : {&kKaiGoukeiHead, &kBuiGoukeiHead, &kZenbuiHead}) {
    Draw(*layout);
    EXPECT_EQ(page_.TextOf("本社").font_name, "ＭＳ Ｐゴシック");
  }
  for (const HeadLayout* layout : {&kKakukaiHead, &kMeisaiHead, &kKakubuiHead, &kFutoHead}) {
    Draw(*layout);
    EXPECT_EQ(page_.TextOf("本社").font_name, "ＭＳ ゴシック");
  }
}

}  // namespace
}  // namespace rbt::test
