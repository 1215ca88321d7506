// SPDX-License-Identifier: MIT
#include "platform/numbers/number_mask.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

struct Case {
  double value;
  const char* mask;
  const char* text;
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
