// SPDX-License-Identifier: MIT
#include "reports/frame/report_text.h"

#include <gtest/gtest.h>

#include "shell/context/reference_names.h"
#include "shell/context/site_context.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

TEST(ReportText, ByteLengthCountsFullWidthTwice) {
  EXPECT_EQ(Get_ByteLen("工事A1ｱ"), 7);
  EXPECT_EQ(Get_ByteLen(""), 0);
}

class HalfLonger : public ::testing::Test {
 protected:
  ~HalfLonger() override { test::SiteFixture::ResetGlobalState(); }
};

TEST_F(HalfLonger, TheLongerPieceOfANameWinsByBytes) {
  SiteContext.LongSiteNameWidth = 4;
  EXPECT_EQ(Get_HalfLonger("abcd工事名"), "工事名");  // 4 bytes and 6
  EXPECT_EQ(Get_HalfLonger("見本町Ａab"), "見本町Ａ");
}

TEST_F(HalfLonger, OfTwoEquallyLongPiecesTheFirstWins) {
  SiteContext.LongSiteNameWidth = 2;
  EXPECT_EQ(Get_HalfLonger("見本abcd"), "見本");
}

TEST_F(HalfLonger, ANameShorterThanItsBreakHasOnePiece) {
  SiteContext.LongSiteNameWidth = 20;
  EXPECT_EQ(Get_HalfLonger("見本町"), "見本町");
  SiteContext.LongSiteNameWidth = -1;
  EXPECT_EQ(Get_HalfLonger("見本町"), "見本町");
}

// 450 - (characters - 1) x 120.
TEST(ReportText, TheRightXMovesALabelLeftByItsCharacters) {
  EXPECT_EQ(Get_RightX("柱"), 450);
  EXPECT_EQ(Get_RightX("大梁"), 330);
  EXPECT_EQ(Get_RightX("スラブ"), 210);
}

TEST(ReportText, GradeNamesOfCodesOutsideTheListAreEmpty) {
  SiteContext.GradeNames = {};
  SiteContext.GradeNames[1] = "SD295A";
  SiteContext.GradeNames[10] = "SD785";
  EXPECT_EQ(Get_SDName(0), "");
  EXPECT_EQ(Get_SDName(1), "SD295A");
  EXPECT_EQ(Get_SDName(10), "SD785");
  EXPECT_EQ(Get_SDName(11), "");
  test::SiteFixture::ResetGlobalState();
}

TEST(ReportText, SlitWordingGoesAndOfSlitAloneOnlyIsLeft) {
  EXPECT_EQ(Trim_SlitText("スリットのみ"), "のみ");
  EXPECT_EQ(Trim_SlitText("異形･スリット"), "異形");
  EXPECT_EQ(Trim_SlitText("異形・ネジ・高強度・スリット"), "異形・ネジ・高強度");
}

TEST(ReportText, NumbersStandToTheRightAndLoseTheirFirstDigitsWhenTooLong) {
  EXPECT_EQ(RightAligned("12,345", 9), "   12,345");
  EXPECT_EQ(RightAligned("1,234,567", 7), "234,567");
  EXPECT_EQ(RightAligned("", 3), "   ");
}

}  // namespace
}  // namespace rbt
