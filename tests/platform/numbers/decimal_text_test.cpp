// SPDX-License-Identifier: MIT
#include "platform/numbers/decimal_text.h"

#include <limits>

#include <gtest/gtest.h>

namespace rbt {
namespace {

using Numbers = std::vector<std::int32_t>;

constexpr double kLargest = std::numeric_limits<double>::max();

TEST(DecimalText, ZerosInFrontMeanNothing) {
  EXPECT_EQ(WholeNumber("05000"), 5000);
  EXPECT_EQ(WholeNumber("-010"), -10);
  EXPECT_EQ(WholeNumber("08"), 8);
  EXPECT_EQ(WholeNumber("000000000000012"), 12);
  EXPECT_EQ(WholeNumber("0"), 0);
  EXPECT_EQ(WholeNumbersIn("06000,012", 1, 9999), (Numbers{6000, 12}));
  EXPECT_EQ(DecimalIn("010.50", 0.0, kLargest), 10.5);
}

TEST(DecimalText, OnlyAPlainDecimalIsANumber) {
  for (const char* text : {"", "-", "+1", " 1", "1 ", "0x1F", "0b1", "0o7", "1F", "1e3", "1'000", "1,000",
                           "--1", "1-", "inf", "nan", "１"}) {
    EXPECT_FALSE(IsWholeNumber(text)) << text;
    EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
    EXPECT_EQ(DecimalIn(text, -kLargest, kLargest), std::nullopt) << text;
  }
  EXPECT_EQ(WholeNumber("1.0"), std::nullopt);
  EXPECT_EQ(WholeNumber("1."), std::nullopt);
}

TEST(DecimalText, AWholeNumberKeepsToItsBounds) {
  EXPECT_EQ(WholeNumberIn("15", 0, 15), 15);
  EXPECT_EQ(WholeNumberIn("16", 0, 15), std::nullopt);
  EXPECT_EQ(WholeNumberIn("-5", -5, 78), -5);
  EXPECT_EQ(WholeNumberIn("-6", -5, 78), std::nullopt);
  EXPECT_EQ(WholeNumber("2147483647"), 2147483647);
  EXPECT_EQ(WholeNumber("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(WholeNumber("2147483648"), std::nullopt);
  EXPECT_EQ(WholeNumber("99999999999999999999"), std::nullopt);
}

TEST(DecimalText, AMinusStandsOnlyWhereANumberMayBeBelowZero) {
  EXPECT_EQ(WholeNumberIn("-0", -1, 1), 0);
  EXPECT_EQ(WholeNumberIn("-0", 0, 1), std::nullopt);
  EXPECT_EQ(DecimalIn("-0.0", 0.0, 1.0), std::nullopt);
  EXPECT_EQ(DecimalIn("-2.5", -kLargest, kLargest), -2.5);
}

TEST(DecimalText, AWholeNumberOfAnySizeIsOne) {
  EXPECT_TRUE(IsWholeNumber("99999999999999999999"));
  EXPECT_TRUE(IsWholeNumber("-007"));
}

TEST(DecimalText, OneThatIsNoNumberSpoilsAList) {
  EXPECT_EQ(WholeNumbersIn("3,1,12", 1, 12), (Numbers{3, 1, 12}));
  EXPECT_EQ(WholeNumbersIn("7", 1, 12), Numbers{7});
  for (const char* text : {"", ",", "3,", ",3", "3,,1", "3, 1", "3,13", "3;1", "3,0x1"}) {
    EXPECT_EQ(WholeNumbersIn(text, 1, 12), std::nullopt) << text;
  }
}

TEST(DecimalText, ADecimalHasOnePointAtMost) {
  EXPECT_EQ(DecimalIn("0.01", 0.0, 1.0), 0.01);
  EXPECT_EQ(DecimalIn(".5", 0.0, 1.0), 0.5);
  EXPECT_EQ(DecimalIn("10", 0.0, 10.0), 10.0);
  EXPECT_EQ(DecimalIn("10.1", 0.0, 10.0), std::nullopt);
  for (const char* text : {".", "-.", "1.2.3", "1..2"}) {
    EXPECT_EQ(DecimalIn(text, -kLargest, kLargest), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace rbt
