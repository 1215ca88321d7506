// SPDX-License-Identifier: MIT
#include "reports/frame/letter_spacing.h"

#include <vector>

#include <gtest/gtest.h>

#include "support/drawn_page.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

class LetterSpacing : public ::testing::Test {
 protected:
  test::SiteFixture site_;
  test::DrawnPage page_;
};

// Five characters of 200 twips leave 2260 - 1000 = 1260 for four gaps.
TEST_F(LetterSpacing, TheRestOfTheWidthIsSharedByTheGaps) {
  EXPECT_EQ(Get_MojiKankaku(page_.Printer, "ＭＳ ゴシック", "10", 2260, "みほん鉄筋"), 315);
  EXPECT_EQ(page_.Printer.FontSize, 10);
  EXPECT_EQ(page_.Printer.FontName, "ＭＳ ゴシック");
  EXPECT_TRUE(site_.Messages().empty());
}

// Three characters of 250 twips over 500: (500 - 750) / 2.
TEST_F(LetterSpacing, ATextWiderThanTheWidthHasANegativeGap) {
  EXPECT_EQ(Get_MojiKankaku(page_.Printer, "ＭＳ ゴシック", "12.5", 500, "工事名"), -125);
}

TEST_F(LetterSpacing, ATextOfOneCharacterIsToldOnEachCallAndHasNoGap) {
  EXPECT_EQ(Get_MojiKankaku(page_.Printer, "ＭＳ ゴシック", "10", 500, "社"), 0);
  EXPECT_EQ(Get_MojiKankaku(page_.Printer, "ＭＳ ゴシック", "10", 500, ""), 0);
  ASSERT_EQ(site_.Messages().size(), 2U);
  EXPECT_EQ(site_.Messages()[0].title, "入力エラー");
  EXPECT_EQ(site_.Messages()[0].text, "会社名・住所など自社名情報を全角で２文字以上入れてください");
}

TEST_F(LetterSpacing, EachCharacterStandsOnTheLineBehindTheOneBefore) {
  page_.Printer.FontSize = 10;
  PrintSpread(page_.Printer, 1000, 500, "工A名", 50);
  page_.Printer.EndDoc();
  const std::vector<PrintedText> texts = page_.Texts();
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0].x, 1000);
  EXPECT_EQ(texts[1].x, 1250);  // 200 wide and the gap
  EXPECT_EQ(texts[2].x, 1400);  // 100 wide and the gap
  EXPECT_EQ(texts[2].y, 500);
}

TEST_F(LetterSpacing, MeasuringALineLeavesThePenWhereItWas) {
  page_.Printer.CurrentX = 7;
  page_.Printer.CurrentY = 9;
  page_.Printer.FontSize = 12.5F;
  EXPECT_EQ(MeasureLine(page_.Printer), 250);
  EXPECT_EQ(page_.Printer.CurrentX, 7);
  EXPECT_EQ(page_.Printer.CurrentY, 9);
}

}  // namespace
}  // namespace rbt
