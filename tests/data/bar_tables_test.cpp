// SPDX-License-Identifier: MIT
#include "data/bar_tables.h"

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

/// The three-figure decimal of a product of thousandths and tenths, halves to the even figure, worked out in
/// whole numbers and read back by the library's own decimal reader: no binary fraction has a part in it.
double ThreeFigureDecimal(std::int64_t thousandths_per_metre, std::int64_t tenths_of_metres) {
  const std::int64_t product = thousandths_per_metre * tenths_of_metres;  // ten-thousandths of a kilogram
  std::int64_t unit = 1;
  while (product / unit >= 1000) unit *= 10;
  std::int64_t figures = product / unit;
  const std::int64_t rest = product % unit;
  if (rest * 2 > unit || (rest * 2 == unit && figures % 2 != 0)) ++figures;
  return std::strtod((std::to_string(figures * unit) + "e-4").c_str(), nullptr);
}

constexpr std::int64_t kThousandths[] = {560,  995,   1560,  2250, 3040, 3980, 5040, 6230, 7510,
                                         8950, 10500, 15900, 235,  315,  500,  710,  980,  1560};

TEST(BarWeight, AgreesToTheBitWithExactDecimalArithmeticForEveryDiameterAndStock) {
  for (int d = 0; d < 18; ++d) {
    for (int l = 0; l < 19; ++l) {
      const std::int64_t tenths = l == 18 ? 130 : 35 + 5 * l;
      EXPECT_EQ(BarWeight(d, l), ThreeFigureDecimal(kThousandths[d], tenths)) << "d " << d << " l " << l;
    }
  }
}

TEST(BarWeight, OfD10At3p5MetresHasThreeFiguresAlready) { EXPECT_EQ(BarWeight(0, 0), 1.96); }

TEST(BarWeight, RoundsAnExactHalfToTheEvenFigure) {
  EXPECT_EQ(BarWeight(3, 0), 7.88);    // D19, 3.5 m: 7.875
  EXPECT_EQ(BarWeight(10, 2), 47.2);   // D41, 4.5 m: 47.25
  EXPECT_EQ(BarWeight(9, 16), 103.0);  // D38, 11.5 m: 102.925
  EXPECT_EQ(BarWeight(12, 0), 0.822);  // U 6, 3.5 m: 0.8225
}

TEST(BarWeight, IsTheDoubleNearestToItsDecimal) {
  EXPECT_EQ(BarWeight(1, 17), 11.9);  // D13, 12.0 m: 11.94; 10 x 1.19 would be 11.899999999999999
}

TEST(BarWeight, FaultsOutsideTheTable) {
  for (const auto& [d, l] : {std::pair{-1, 0}, {18, 0}, {0, -1}, {0, 19}}) {
    try {
      BarWeight(d, l);
      FAIL() << d << ' ' << l;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::subscript_out_of_range);
    }
  }
}

TEST(Get_BarWeightTbl, AgreesWithTheBarWeightsTo12Metres) {
  for (std::int16_t d = 0; d < 12; ++d) {
    for (std::int16_t l = 0; l < 18; ++l) EXPECT_EQ(Get_BarWeightTbl(d, l), BarWeight(d, l));
  }
  EXPECT_EQ(Get_BarWeightTbl(3, 0), 7.88);
  EXPECT_EQ(Get_BarWeightTbl(10, 2), 47.2);
  EXPECT_EQ(Get_BarWeightTbl(9, 16), 103.0);
}

TEST(Get_BarWeightTbl, ReadsTheNextDiameterAt13MetresAndFaultsBehindTheLast) {
  for (std::int16_t d = 0; d < 11; ++d) EXPECT_EQ(Get_BarWeightTbl(d, 18), BarWeight(d + 1, 0));
  EXPECT_THROW(Get_BarWeightTbl(11, 18), Fault);
  EXPECT_THROW(Get_BarWeightTbl(0, -1), Fault);
}

TEST(StockIndex, FindsAColumnForEveryHalfMetreTo12AndFor13) {
  for (int l = 0; l < 18; ++l) EXPECT_EQ(StockIndex(3.5 + 0.5 * l), l);
  EXPECT_EQ(StockIndex(13.0), 18);
}

TEST(StockIndex, FindsNoColumnFor12p5) { EXPECT_EQ(StockIndex(12.5), -1); }

TEST(StockIndex, ComparesTheDoubleExactly) {
  for (const double metres : {0.0, -3.5, 3.0, 3.6, 3.5000000000000004, 5.4999999999999991, 13.5, 1e300,
                              std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(StockIndex(metres), -1) << metres;
  }
}

TEST(StockMetres, IsTheInverseOfTheColumnAndMinusOneOutside) {
  for (int l = 0; l < 19; ++l) EXPECT_EQ(StockIndex(StockMetres(l)), l);
  EXPECT_EQ(StockMetres(-1), -1.0);
  EXPECT_EQ(StockMetres(19), -1.0);
}

}  // namespace
}  // namespace rbt
