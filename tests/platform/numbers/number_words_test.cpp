// SPDX-License-Identifier: MIT
#include "platform/numbers/number_words.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/numbers/value.h"

namespace rbt {
namespace {

TEST(NumberWords, FixGoesTowardsZeroIntDownAndRoundToEven) {
  EXPECT_EQ(Fix(-2.7), -2.0);
  EXPECT_EQ(Int(-2.1), -3.0);
  EXPECT_EQ(Round(2.5), 2.0);
  EXPECT_EQ(Round(3.5), 4.0);
  EXPECT_EQ(Round(-0.5), 0.0);
}

TEST(NumberWords, IntegersOutsideTheirWidthOverflow) {
  EXPECT_EQ(ToInt16(32767.5 - 0.1, "x"), 32767);
  EXPECT_EQ(ToInt16(-32768.5, "x"), -32768);
  EXPECT_THROW(ToInt16(32767.5, "x"), Fault);
  EXPECT_EQ(ToInt32(2147483647.4, "x"), 2147483647);
  EXPECT_THROW(ToInt32(2147483648.0, "x"), Fault);
  EXPECT_THROW(AddInt32(2147483647, 1, "x"), Fault);
  EXPECT_THROW(MultiplyInt32(65536, 32768, "x"), Fault);
  EXPECT_EQ(MultiplyInt32(-65536, 32768, "x"), -2147483647 - 1);
}

TEST(NumberWords, TheLeadingNumberOfATextIsItsValue) {
  EXPECT_EQ(LeadingNumber(" 12 3x"), 123.0);
  EXPECT_EQ(LeadingNumber("-.5"), -0.5);
  EXPECT_EQ(LeadingNumber("+7"), 7.0);
  EXPECT_EQ(LeadingNumber("1e3"), 1000.0);
  EXPECT_EQ(LeadingNumber("1d2"), 100.0);
  EXPECT_EQ(LeadingNumber("1e"), 1.0);
  EXPECT_EQ(LeadingNumber("&HFF"), 255.0);
  EXPECT_EQ(LeadingNumber("&HFFFF"), -1.0);
  EXPECT_EQ(LeadingNumber("&O17"), 15.0);
  EXPECT_EQ(LeadingNumber("R40"), 0.0);
  EXPECT_EQ(LeadingNumber(""), 0.0);
  EXPECT_EQ(LeadingNumber("."), 0.0);
  EXPECT_EQ(LeadingNumber("1,200"), 1.0);
}

TEST(NumberWords, ATextThatIsNoNumberIsATypeMismatch) {
  EXPECT_EQ(NumberOfText(" 1,200.5 ", "x"), 1200.5);
  EXPECT_EQ(NumberOfText("True", "x"), -1.0);
  EXPECT_EQ(NumberOfText("false", "x"), 0.0);
  for (const char* text : {"", " ", "abc", "12x", "1 2", ",5", "-"}) {
    try {
      NumberOfText(text, "Kakou\\定尺\\テーブル有無");
      FAIL() << text;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::type_mismatch);
      EXPECT_NE(std::string(fault.what()).find("テーブル有無"), std::string::npos);
    }
  }
}

TEST(NumberWords, TheShortestDecimalHasFifteenDigits) {
  EXPECT_EQ(ShortestDecimal(1200.0), "1200");
  EXPECT_EQ(ShortestDecimal(0.1), "0.1");
  EXPECT_EQ(ShortestDecimal(0.1 + 0.2), "0.3");
  EXPECT_EQ(ShortestDecimal(-12.5), "-12.5");
  EXPECT_EQ(ShortestDecimal(0.0), "0");
  EXPECT_EQ(ShortestDecimal(123456789012345.0), "123456789012345");
  EXPECT_EQ(ShortestDecimal(1e15), "1E+15");
  EXPECT_EQ(ShortestDecimal(1.0 / 3.0), "0.333333333333333");
  EXPECT_EQ(ShortestDecimal(0.00015), "0.00015");
}

TEST(Value, NumbersAndTextsOfValues) {
  EXPECT_EQ(NumberOf(Value(std::string("3.5")), "x"), 3.5);
  EXPECT_EQ(NumberOf(Value(Currency::FromTenThousandths(5000)), "x"), 0.5);
  EXPECT_EQ(Int32Of(Value(2.5), "x"), 2);
  EXPECT_EQ(TextOf(Value()), "");
  EXPECT_EQ(TextOf(Value(6.0)), "6");
  EXPECT_EQ(TextOf(Value(std::int64_t{-3})), "-3");
  try {
    NumberOf(Value(), "頁");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::invalid_use_of_null);
  }
}

}  // namespace
}  // namespace rbt
