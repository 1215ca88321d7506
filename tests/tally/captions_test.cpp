// SPDX-License-Identifier: MIT
#include "tally/captions.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(KindCaption, NamesTheKindsOfTheMaskInTheirOrder) {
  constexpr const char* kCaptions[] = {"異形のみ",
                                       "ネジのみ",
                                       "異形･ネジ",
                                       "高強度のみ",
                                       "異形･高強度",
                                       "ネジ･高強度",
                                       "異形･ネジ･高強度",
                                       "スリットのみ",
                                       "異形･スリット",
                                       "ネジ･スリット",
                                       "異形･ネジ･スリット",
                                       "高強度･スリット",
                                       "異形･高強度･スリット",
                                       "ネジ･高強度･スリット",
                                       "異形･ネジ･高強度･スリット"};
  std::int32_t mask = 0;
  for (const char* caption : kCaptions) EXPECT_EQ(KindCaption(KindMask(++mask)), caption) << mask;
  EXPECT_EQ(KindCaption(KindMask(0)), "");
  EXPECT_EQ(KindCaption(KindMask(16)), "");
}

TEST(TotalRowLabel, KeepsTheCrossedLabelsOf10To13) {
  EXPECT_EQ(TotalRowLabel(KindMask(10)), "高強度･スリット");
  EXPECT_EQ(TotalRowLabel(KindMask(11)), "異形･高強度･ｽﾘｯﾄ");
  EXPECT_EQ(TotalRowLabel(KindMask(12)), "ネジ･スリット");
  EXPECT_EQ(TotalRowLabel(KindMask(13)), "異形･ﾈｼﾞ･高強度合計");
}

TEST(TotalRowLabel, HasOneForAnUnknownMask) {
  EXPECT_EQ(TotalRowLabel(KindMask(0)), TotalRowLabel(KindMask(16)));
  EXPECT_EQ(TotalRowLabel(KindMask(16)), "合　　　　   計");
  EXPECT_EQ(TotalRowLabel(KindMask(15)), "す　 べ 　て");
}

TEST(FormCaption, NamesTheFormsOfTheMask) {
  EXPECT_EQ(FormCaption(FormMask(1)), "生材");
  EXPECT_EQ(FormCaption(FormMask(7)), "生･生加･切");
  EXPECT_EQ(FormCaption(FormMask(14)), "生加･切･切加");
  EXPECT_EQ(FormCaption(FormMask(15)), "すべて");
  EXPECT_EQ(FormCaption(FormMask(0)), "すべて");
}

TEST(ShortFormCaption, ShortensTheSingleFormsOnly) {
  EXPECT_EQ(ShortFormCaption(FormMask(1)), "生");
  EXPECT_EQ(ShortFormCaption(FormMask(2)), "生加");
  EXPECT_EQ(ShortFormCaption(FormMask(4)), "切");
  EXPECT_EQ(ShortFormCaption(FormMask(8)), "切加");
  EXPECT_EQ(ShortFormCaption(FormMask(3)), "生･生加");
  EXPECT_EQ(ShortFormCaption(FormMask(15)), "すべて");
}

TEST(ShapeFilterCaption, NamesTheThreeFilters) {
  EXPECT_EQ(ShapeFilterCaption(ShapeFilter::with_others), "含む");
  EXPECT_EQ(ShapeFilterCaption(ShapeFilter::left_out), "含まず");
  EXPECT_EQ(ShapeFilterCaption(ShapeFilter::alone), "のみ");
}

TEST(StripSlitWord, TakesTheKindWithItsDotWhicheverDotItIs) {
  EXPECT_EQ(StripSlitWord("異形･ネジ･高強度･スリット"), "異形･ネジ･高強度");
  EXPECT_EQ(StripSlitWord("異形・高強度・ネジ・スリット"), "異形・高強度・ネジ");
  EXPECT_EQ(StripSlitWord("スリット合  計"), "合  計");
}

TEST(StripSlitWord, LeavesOnlyTheEndingOfTheSlitKindAlone) {
  EXPECT_EQ(StripSlitWord("スリットのみ"), "のみ");
}

TEST(StripSlitWord, LeavesTheHalfWidthWordAlone) {
  EXPECT_EQ(StripSlitWord("異形･高強度･ｽﾘｯﾄ"), "異形･高強度･ｽﾘｯﾄ");
}

}  // namespace
}  // namespace rbt
