// SPDX-License-Identifier: MIT
#include "reports/frame/number_field.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

constexpr NumberField kKilograms{.characters = 9, .suffix = " Kg"};

TEST(NumberField, NumbersOfEachKindStandRightAlignedBeforeTheSuffix) {
  EXPECT_EQ(FieldText(kKilograms, Currency::FromDouble(12345.5)), "   12,346 Kg");
  EXPECT_EQ(FieldText(kKilograms, 12345.4), "   12,345 Kg");
  EXPECT_EQ(FieldText(kKilograms, std::int64_t{-7}), "       -7 Kg");
}

TEST(NumberField, ZeroIsAFigureOrBlanksByItsMask) {
  EXPECT_EQ(FieldText({.characters = 3}, std::int64_t{0}), "  0");
  EXPECT_EQ(FieldText({.characters = 3, .mask = kBlankZeroMask}, std::int64_t{0}), "   ");
}

TEST(NumberField, ATextStandsAsItIsAndNothingIsNothing) {
  EXPECT_EQ(FieldText(kKilograms, std::string("SD295A、長い鋼種名")), "SD295A、長い鋼種名");
  EXPECT_EQ(FieldText(kKilograms, {}), "");
  EXPECT_FALSE(IsTooWide(kKilograms, std::string("SD295A、長い鋼種名")));
  EXPECT_FALSE(IsTooWide(kKilograms, {}));
}

TEST(NumberField, ANumberThatFillsItsFieldIsWhole) {
  EXPECT_EQ(FieldText(kKilograms, std::int64_t{1234567}), "1,234,567 Kg");
  EXPECT_FALSE(IsTooWide(kKilograms, std::int64_t{1234567}));
}

TEST(NumberField, ANumberOfOneCharacterMoreIsTooWideAndLosesItsFirst) {
  EXPECT_TRUE(IsTooWide(kKilograms, std::int64_t{12345678}));
  EXPECT_EQ(FieldText(kKilograms, std::int64_t{12345678}), "2,345,678 Kg");
  EXPECT_EQ(WholeText(kKilograms, std::int64_t{12345678}), "12,345,678");
  EXPECT_TRUE(IsTooWide(kKilograms, std::int64_t{-1234567}));
}

std::string TotalText(double kilograms) { return FieldText(TotalWeightField(kilograms), kilograms); }

TEST(TotalWeight, ATotalOf999KilogramsIsPrintedInKilograms) {
  EXPECT_EQ(TotalWeightField(999).mask, "##0 Kg");
  EXPECT_EQ(TotalText(999), "        999 Kg");
}

TEST(TotalWeight, ATotalOf1000KilogramsIsPrintedInTonnes) {
  EXPECT_EQ(TotalWeightField(1000).mask, "##### t ##0 Kg");
  EXPECT_EQ(TotalText(1000), "    1 t 000 Kg");
  EXPECT_EQ(TotalText(12345), "   12 t 345 Kg");
}

TEST(TotalWeight, ATotalOfSevenDigitsFillsItsFourteenCharacters) {
  EXPECT_EQ(TotalText(9999999), " 9999 t 999 Kg");
  EXPECT_EQ(TotalText(0), "          0 Kg");
  EXPECT_FALSE(IsTooWide(TotalWeightField(99999999), 99999999.0));
  EXPECT_TRUE(IsTooWide(TotalWeightField(100000000), 100000000.0));
}

TEST(TotalWeight, AFormMayWriteItsTonnesInAnotherWay) {
  EXPECT_EQ(FieldText(TotalWeightField(12345, "# t ##0 Kg"), 12345.0), "   12 t 345 Kg");
  EXPECT_EQ(TotalWeightField(999, "# t ##0 Kg").mask, "##0 Kg");
}

}  // namespace
}  // namespace rbt
