// SPDX-License-Identifier: MIT
#include "planning/problem/weights.h"

#include <gtest/gtest.h>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "support/fault_of.h"

namespace rbt::planning {
namespace {

TEST(UnitMilligrams, AreTheUnitWeightsOfAMm) {
  EXPECT_EQ(UnitMilligrams(10), 560);
  EXPECT_EQ(UnitMilligrams(13), 995);
  EXPECT_EQ(UnitMilligrams(51), 15900);
  EXPECT_EQ(UnitMilligrams(0), 1000);
  EXPECT_EQ(rbt::test::FaultOf([] { UnitMilligrams(14); }), FaultKind::subscript_out_of_range);
}

TEST(TableMilligrams, AreTheWeightsOfTheTallyForEveryColumn) {
  for (int d = 0; d < kDeformedRows; ++d) {
    for (int l = 0; l < kStockColumns; ++l) {
      const int mm = static_cast<int>(StockMetres(l) * 1000.0);
      const double kilograms = static_cast<double>(TableMilligrams(DiameterCode(d), mm)) / 1e6;
      EXPECT_EQ(kilograms, BarWeight(d, l)) << d << " " << l;
    }
  }
}

TEST(TableMilligrams, HaveThreeFiguresForAnyLength) {
  EXPECT_EQ(TableMilligrams(16, 6500), 10'100'000);   // 10.14
  EXPECT_EQ(TableMilligrams(16, 12500), 19'500'000);  // exact
  EXPECT_EQ(TableMilligrams(16, 5250), 8'190'000);    // exact
  EXPECT_EQ(TableMilligrams(10, 1234), 691'000);      // 0.69104
  EXPECT_EQ(TableMilligrams(51, 8765), 139'000'000);  // 139.3635
}

TEST(TableMilligrams, RoundHalvesToTheEvenFigureForAnyLength) {
  EXPECT_EQ(TableMilligrams(10, 2259), 1'270'000);   // 1.26504
  EXPECT_EQ(TableMilligrams(51, 4695), 74'700'000);  // 74.6505
  EXPECT_EQ(TableMilligrams(19, 1780), 4'000'000);   // 4.005
  EXPECT_EQ(TableMilligrams(19, 1820), 4'100'000);   // 4.095
  EXPECT_EQ(TableMilligrams(19, 4444), 10'000'000);  // 9.999
}

TEST(TableMilligrams, AreNotRoundedWithoutADiameter) { EXPECT_EQ(TableMilligrams(0, 12345), 12'345'000); }

}  // namespace
}  // namespace rbt::planning
