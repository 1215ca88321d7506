// SPDX-License-Identifier: MIT
#include "platform/numbers/number_mask.h"

#include <cmath>
#include <limits>
#include <ostream>

#include <gtest/gtest.h>

namespace rbt {
namespace {

struct Case {
  double value;
  const char* mask;
  const char* text;

  friend void PrintTo(const Case& c, std::ostream* out) { *out << c.value << " by " << c.mask; }
};

class NumberMask : public testing::TestWithParam<Case> {};

TEST_P(NumberMask, Formats) { EXPECT_EQ(FormatNumber(GetParam().value, GetParam().mask), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Cases, NumberMask,
    testing::Values(Case{0, "#,##0", "0"}, Case{1234567, "#,##0", "1,234,567"}, Case{999.5, "#,##0", "1,000"},
                    Case{0.5, "#,##0", "1"}, Case{1.5, "#,##0", "2"}, Case{2.5, "#,##0", "3"},
                    Case{-0.4, "#,##0", "0"}, Case{-0.5, "#,##0", "-1"}, Case{-1234, "#,##0", "-1,234"},
                    Case{0, "#,###", ""}, Case{1234, "#,###", "1,234"}, Case{2.675, "0.00", "2.68"},
                    Case{1.005, "0.00", "1.01"}, Case{3.25, "#,##0.00", "3.25"},
                    Case{12345.678, "#,##0.00", "12,345.68"}, Case{-0.004, "0.00", "0.00"},
                    Case{7, "00", "07"}, Case{123, "00", "123"}, Case{7, "000", "007"}, Case{0, "#.0", ".0"},
                    Case{12.34, "#.0", "12.3"}, Case{12345, "##### t ##0 Kg", "12 t 345 Kg"},
                    Case{1000, "##### t ##0 Kg", "1 t 000 Kg"}, Case{345, "##0 Kg", "345 Kg"},
                    Case{0, "##0 Kg", "0 Kg"}, Case{99999999, "##### t ##0 Kg", "99999 t 999 Kg"},
                    Case{123456789, "##### t ##0 Kg", "123456 t 789 Kg"}, Case{5, "0", "5"},
                    Case{1e14, "0", "100000000000000"}, Case{0.95, "0.#", "1."}, Case{1.25, "0.##", "1.25"}));

INSTANTIATE_TEST_SUITE_P(
    TotalWeights, NumberMask,
    testing::Values(Case{999, "##0 Kg", "999 Kg"}, Case{999.5, "##0 Kg", "1000 Kg"},
                    Case{1234, "##### t ##0 Kg", "1 t 234 Kg"}, Case{1999.5, "##### t ##0 Kg", "2 t 000 Kg"},
                    Case{-1234, "##### t ##0 Kg", "-1 t 234 Kg"}, Case{12345, "# t ##0 Kg", "12 t 345 Kg"},
                    Case{7, "##### t ##0 Kg",
                         " t 7 Kg"}));  // the literal text stays without digits before it

INSTANTIATE_TEST_SUITE_P(StockLengths, NumberMask,
                         testing::Values(Case{3.5, "#.0", "3.5"}, Case{12.0, "#.0", "12.0"},
                                         Case{0.5, "#.0", ".5"}));

// A double counts as its 15-digit decimal text: 0.285 lies below and 1.115 above its half, both go away from
// zero.
INSTANTIATE_TEST_SUITE_P(HalvesAwayFromZero, NumberMask,
                         testing::Values(Case{0.285, "0.00", "0.29"}, Case{1.115, "0.00", "1.12"},
                                         Case{-2.675, "0.00", "-2.68"}, Case{0.005, "0.00", "0.01"},
                                         Case{0.00499, "0.00", "0.00"}, Case{9.995, "0.00", "10.00"},
                                         Case{999999.5, "#,##0", "1,000,000"},
                                         Case{0.1 + 0.2, "0.0000000000000000", "0.3000000000000000"}));

INSTANTIATE_TEST_SUITE_P(NoSignOnZero, NumberMask,
                         testing::Values(Case{-0.0, "0", "0"}, Case{-0.0049, "#,##0.00", "0.00"},
                                         Case{-0.4, "#,###", ""}, Case{-0.005, "0.00", "-0.01"}));

INSTANTIATE_TEST_SUITE_P(Literals, NumberMask,
                         testing::Values(Case{12, "約0本", "約12本"}, Case{-12, "約0本", "-約12本"},
                                         Case{1234, "00-00", "12-34"}, Case{5, "\\#0", "#5"},
                                         Case{1.5, "0.0 %", "1.5 %"}, Case{12, "本", "本"},
                                         Case{1.25, "0.0m0", "1.2m5"}));

TEST(NumberMask, ShowsEveryDigitOfALargeDouble) {
  EXPECT_EQ(FormatNumber(1e22, "#,##0"), "10,000,000,000,000,000,000,000");
  EXPECT_EQ(FormatNumber(1e300, "0"), "1" + std::string(300, '0'));
  EXPECT_EQ(FormatNumber(1e-300, "0.00"), "0.00");
}

TEST(NumberMask, OfALimitIsExact) {
  EXPECT_EQ(
      FormatNumber(Currency::FromTenThousandths(std::numeric_limits<std::int64_t>::min()), "#,##0.0000"),
      "-922,337,203,685,477.5808");
  EXPECT_EQ(FormatNumber(std::numeric_limits<std::int64_t>::min(), "0"), "-9223372036854775808");
}

TEST(NumberMask, OfCurrencyIsExact) {
  EXPECT_EQ(FormatNumber(Currency::FromTenThousandths(25000), "#,##0"), "3");
  EXPECT_EQ(FormatNumber(Currency::FromTenThousandths(24999), "#,##0"), "2");
  EXPECT_EQ(FormatNumber(Currency::FromTenThousandths(-4999), "#,##0"), "0");
  EXPECT_EQ(FormatNumber(Currency::FromTenThousandths(123456789), "#,##0.00"), "12,345.68");
}

TEST(NumberMask, OfIntegers) {
  EXPECT_EQ(FormatNumber(std::int64_t{-2147483648}, "#,##0"), "-2,147,483,648");
}

}  // namespace
}  // namespace rbt
