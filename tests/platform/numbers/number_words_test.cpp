// SPDX-License-Identifier: MIT
#include "platform/numbers/number_words.h"

#include <limits>
#include <string>

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

TEST(NumberWords, BlanksTabsAndLineFeedsInsideALeadingNumberAreSkipped) {
  EXPECT_EQ(LeadingNumber("\t1 6 1 5\r\n198th"), 1615198.0);
  EXPECT_EQ(LeadingNumber("- 2 . 5"), -2.5);
  EXPECT_EQ(LeadingNumber("1 e 2"), 100.0);
  EXPECT_EQ(LeadingNumber("\u30001"), 0.0);  // an ideographic blank is no blank
}

TEST(NumberWords, ALeadingNumberEndsWhereItStopsBeingOne) {
  EXPECT_EQ(LeadingNumber("1.2.3"), 1.2);
  EXPECT_EQ(LeadingNumber("1-2"), 1.0);
  EXPECT_EQ(LeadingNumber("--1"), 0.0);
  EXPECT_EQ(LeadingNumber("1E+"), 1.0);
  EXPECT_EQ(LeadingNumber("2E-3x"), 0.002);
  EXPECT_EQ(LeadingNumber("-1D-1"), -0.1);
  EXPECT_EQ(LeadingNumber("5."), 5.0);
  EXPECT_EQ(LeadingNumber("&H"), 0.0);
  EXPECT_EQ(LeadingNumber("&H1G"), 1.0);
  EXPECT_EQ(LeadingNumber("&o8"), 0.0);
  EXPECT_EQ(LeadingNumber("&hffffffff"), -1.0);
  EXPECT_EQ(LeadingNumber("nan"), 0.0);
  EXPECT_EQ(LeadingNumber("inf"), 0.0);
  EXPECT_EQ(LeadingNumber("0x10"), 0.0);
}

TEST(NumberWords, ALeadingNumberBeyondADoubleIsInfiniteOrZero) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(LeadingNumber("1e999"), kInfinity);
  EXPECT_EQ(LeadingNumber("-1e999"), -kInfinity);
  EXPECT_EQ(LeadingNumber("1e-999"), 0.0);
  EXPECT_EQ(LeadingNumber(std::string(400, '9')), kInfinity);
  EXPECT_THROW(ToInt32(LeadingNumber("1e999"), "x"), Fault);
}

TEST(NumberWords, ATextBeyondADoubleOverflows) {
  for (const char* text : {"1e999", "-1e999"}) {
    try {
      NumberOfText(text, "x");
      FAIL() << text;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::overflow);
    }
  }
  EXPECT_EQ(NumberOfText("1e-999", "x"), 0.0);
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
  EXPECT_EQ(ShortestDecimal(-0.0), "0");
  EXPECT_EQ(ShortestDecimal(100000.0 * 1.1), "110000");  // 110000.00000000001 as a double
  EXPECT_EQ(ShortestDecimal(11.9), "11.9");
  EXPECT_EQ(ShortestDecimal(999999999999999.9), "1E+15");
}

TEST(NumberWords, TheShortestDecimalTakesAnExponentWhereFifteenPlacesDoNotDo) {
  EXPECT_EQ(ShortestDecimal(999999999999999.0), "999999999999999");
  EXPECT_EQ(ShortestDecimal(1e15), "1E+15");
  EXPECT_EQ(ShortestDecimal(1e16), "1E+16");
  EXPECT_EQ(ShortestDecimal(-1.25e100), "-1.25E+100");
  EXPECT_EQ(ShortestDecimal(1.5e-7), "0.00000015");
  EXPECT_EQ(ShortestDecimal(1e-15), "0.000000000000001");
  EXPECT_EQ(ShortestDecimal(1e-16), "1E-16");
  EXPECT_EQ(ShortestDecimal(1.0 / 30.0), "3.33333333333333E-02");
}

TEST(NumberWords, TheShortestDecimalReadsBackToFifteenDigits) {
  for (const double x : {11.9, 0.56, 1e-9, 123456.789, 7.85e-6, -42.0, 1e20, 2.5e-20}) {
    EXPECT_EQ(LeadingNumber(ShortestDecimal(x)), x);
    EXPECT_EQ(NumberOfText(ShortestDecimal(x), "x"), x);
  }
}

TEST(Value, NumbersAndTextsOfValues) {
  EXPECT_EQ(NumberOf(Value(std::string("3.5")), "x"), 3.5);
  EXPECT_EQ(NumberOf(Value(Currency::FromTenThousandths(5000)), "x"), 0.5);
  EXPECT_EQ(Int32Of(Value(2.5), "x"), 2);
  EXPECT_EQ(TextOf(Value()), "");
  EXPECT_EQ(TextOf(Value(6.0)), "6");
  EXPECT_EQ(TextOf(Value(std::int64_t{-3})), "-3");
  EXPECT_EQ(TextOf(Value(Currency::FromTenThousandths(-12500))), "-1.25");
  EXPECT_EQ(TextOf(Value(std::string("鉄筋"))), "鉄筋");
  try {
    NumberOf(Value(), "頁");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::invalid_use_of_null);
  }
}

TEST(Value, BytesAndWordsAreNoNumbers) {
  for (const Value& value : {Value(Bytes{1, 2}), Value(std::string("柱"))}) {
    try {
      NumberOf(value, "太さ");
      FAIL();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::type_mismatch);
      EXPECT_NE(std::string(fault.what()).find("太さ"), std::string::npos);
    }
  }
}

TEST(Value, AWholeNumberOfAValueStaysInItsRange) {
  EXPECT_EQ(Int32Of(Value(std::string("3.5")), "x"), 4);
  EXPECT_EQ(Int32Of(Value(std::int64_t{-2147483648}), "x"), -2147483647 - 1);
  EXPECT_THROW(Int32Of(Value(std::int64_t{2147483648}), "x"), Fault);
}

}  // namespace
}  // namespace rbt
