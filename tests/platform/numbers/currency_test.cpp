// SPDX-License-Identifier: MIT
#include "platform/numbers/currency.h"

#include <limits>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

Currency Units(std::int64_t units) { return Currency::FromTenThousandths(units); }

TEST(Currency, TakesADoubleWithHalvesToTheEvenTenThousandth) {
  // 0.00005, 0.00025 and 0.00035 times 10,000 are 0.5, 2.5 and 3.5 as doubles; 0.00015 comes out below 1.5.
  EXPECT_EQ(Currency::FromDouble(0.00005), Units(0));
  EXPECT_EQ(Currency::FromDouble(0.00035), Units(4));
  EXPECT_EQ(Currency::FromDouble(0.00015), Units(1));
  EXPECT_EQ(Currency::FromDouble(0.00025), Units(2));
  EXPECT_EQ(Currency::FromDouble(-0.00035), Units(-4));
}

TEST(Currency, ReachesItsLimitsAndOverflowsBeyond) {
  EXPECT_EQ(Currency::FromDouble(-922337203685477.5808), Units(std::numeric_limits<std::int64_t>::min()));
  EXPECT_THROW(Currency::FromDouble(922337203685477.6), Fault);
  EXPECT_THROW(Currency::FromDouble(std::numeric_limits<double>::quiet_NaN()), Fault);
  EXPECT_THROW(Units(std::numeric_limits<std::int64_t>::max()) + Units(1), Fault);
  EXPECT_THROW(Units(std::numeric_limits<std::int64_t>::min()) - Units(1), Fault);
  EXPECT_THROW(Currency::FromInteger(std::numeric_limits<std::int64_t>::max() / 10000 + 1), Fault);
}

TEST(Currency, MultipliesToFourPlacesHalvesToEven) {
  EXPECT_EQ(Currency::FromInteger(50000) * Units(89500), Currency::FromInteger(447500));
  EXPECT_EQ(Units(1) * Units(5000), Units(0));  // half a ten-thousandth
  EXPECT_EQ(Units(3) * Units(5000), Units(2));  // one and a half
  EXPECT_EQ(Units(-3) * Units(5000), Units(-2));
  EXPECT_EQ(Units(-1) * Units(5001), Units(-1));
  EXPECT_EQ(Units(std::numeric_limits<std::int64_t>::min()) * Units(10000),
            Units(std::numeric_limits<std::int64_t>::min()));
  EXPECT_THROW(Units(std::numeric_limits<std::int64_t>::max()) * Units(10001), Fault);
}

TEST(Currency, WritesItsShortestDecimal) {
  EXPECT_EQ(Units(120000).ToText(), "12");
  EXPECT_EQ(Units(-5000).ToText(), "-0.5");
  EXPECT_EQ(Units(31416).ToText(), "3.1416");
  EXPECT_EQ(Units(0).ToText(), "0");
  EXPECT_EQ(Units(1000000).ToText(), "100");
}

TEST(Currency, AWholeKilogramIsFixOfAHalfMore) {
  EXPECT_EQ(WholeKilograms(Units(14999)), Units(10000));
  EXPECT_EQ(WholeKilograms(Units(15000)), Units(20000));
  EXPECT_EQ(WholeKilograms(Units(-16000)), Units(-10000));  // Fix(-1.1)
  EXPECT_EQ(WholeKilograms(Units(-4000)), Units(0));
}

}  // namespace
}  // namespace rbt
