// SPDX-License-Identifier: MIT
#include "tally/ulbon_totals.h"

#include <limits>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

TallyTable Sample() {
  TallyTable table;
  table.UlbonWeight[12] = 10.4;
  table.UlbonWeight[13] = 10.0;
  table.SpiralUlbonByDia[13] = Currency::FromDouble(0.4);
  table.UlbonWeldCount[12] = 2;
  table.UlbonWeldCount[17] = 3;
  return table;
}

TEST(UlbonTotals, ARowHoldsItsSpiralsAndIsRaisedBeforeItIsRounded) {
  EXPECT_EQ(UpliftedUlbonWeight(Sample(), 13, 0), 10);
  EXPECT_EQ(UpliftedUlbonWeight(Sample(), 13, 10), 11);  // 11.44
  EXPECT_EQ(UpliftedUlbonWeight(Sample(), 13, 15), 12);  // 11.96
}

TEST(UlbonTotals, TheTotalIsTheSumOfTheRoundedRows) {
  EXPECT_EQ(UlbonWeightSum(Sample(), 0), 20);
  EXPECT_EQ(UlbonWeightSum(Sample(), 10), 22);  // 11.44 each
}

TEST(UlbonTotals, DeformedRowsDoNotCount) {
  TallyTable table = Sample();
  table.UlbonWeight[11] = 1000;
  table.UlbonWeldCount[11] = 100;
  EXPECT_EQ(UlbonWeightSum(table, 0), 20);
  EXPECT_EQ(UlbonWeldSum(table), 5);
}

TEST(UlbonTotals, WeldsBeyond32BitsOverflow) {
  TallyTable table = Sample();
  table.UlbonWeldCount[13] = std::numeric_limits<std::int32_t>::max();
  EXPECT_THROW(UlbonWeldSum(table), Fault);
}

}  // namespace
}  // namespace rbt
