// SPDX-License-Identifier: MIT
#include "platform/print/paper.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(Paper, B5IsTheJapaneseOneOf182By257Millimetres) {
  const PaperRow* paper = FindPaper(13);
  ASSERT_NE(paper, nullptr);
  EXPECT_EQ(paper->width_mm, 182);
  EXPECT_EQ(paper->height_mm, 257);
}

TEST(Paper, A4AndA3HaveTheirPrinterCodes) {
  EXPECT_EQ(FindPaper(9)->height_mm, 297);
  EXPECT_EQ(FindPaper(8)->height_mm, 420);
  EXPECT_EQ(FindPaper(1), nullptr);
}

// 257 mm x 1440 / 25.4 = 14570.08 twips, 297 mm = 16837.80 twips.
TEST(Paper, LandscapeLiesOnItsLongSide) {
  EXPECT_NEAR(SheetOf(kPaperB5, kLandscape).width, 14570.08, 0.01);
  EXPECT_NEAR(SheetOf(kPaperB5, kLandscape).height, 10318.11, 0.01);
  EXPECT_NEAR(SheetOf(kPaperA4, kPortrait).height, 16837.80, 0.01);
  EXPECT_NEAR(SheetOf(kPaperA4, kLandscape).width, 16837.80, 0.01);
}

TEST(Paper, AnUnknownCodeIsTakenAsA4) {
  EXPECT_EQ(SheetOf(kCustomPaper, kPortrait).width, SheetOf(kPaperA4, kPortrait).width);
}

// Print systems reckon in whole points: 518 x 727 of them for B5.
TEST(Paper, ASheetOfRoundedSidesHasItsCode) {
  EXPECT_EQ(PaperCodeOfSheet(182, 257), kPaperB5);
  EXPECT_EQ(PaperCodeOfSheet(518 * 25.4 / 72, 727 * 25.4 / 72), kPaperB5);
  EXPECT_EQ(PaperCodeOfSheet(209.9, 297.04), kPaperA4);
}

TEST(Paper, TheB5OfOtherCountriesAndASheetOnItsSideAreCustomPaper) {
  EXPECT_EQ(PaperCodeOfSheet(176, 250), kCustomPaper);
  EXPECT_EQ(PaperCodeOfSheet(297, 210), kCustomPaper);
}

}  // namespace
}  // namespace rbt
