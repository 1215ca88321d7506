// SPDX-License-Identifier: MIT
#include "tally/tally_result.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(WithUlbonRaised, KeepsTheTablesAndTellsThePercentage) {
  TallyTable table;
  table.UlbonWeight[12] = 100.0;
  const TallyResult raised = WithUlbonRaised({.tables = table}, 10);
  EXPECT_EQ(raised.origin, ResultOrigin::raised);
  EXPECT_EQ(raised.ulbon_percent, 10);
  EXPECT_EQ(raised.Grid(), table);
}

TEST(WithUlbonRaised, ByNothingIsTheResultAsCountedAgain) {
  const TallyResult counted;
  EXPECT_EQ(WithUlbonRaised(WithUlbonRaised(counted, 10), 0), counted);
}

TEST(WithUlbonRaised, OfAnotherOriginKeepsIt) {
  TallyResult accumulated;
  accumulated.origin = ResultOrigin::accumulated;
  EXPECT_EQ(WithUlbonRaised(accumulated, 5).origin, ResultOrigin::accumulated);
  EXPECT_EQ(WithUlbonRaised(accumulated, 5).ulbon_percent, 5);
}

}  // namespace
}  // namespace rbt
