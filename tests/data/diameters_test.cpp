// SPDX-License-Identifier: MIT
#include "data/diameters.h"

#include <iterator>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

struct Standard {
  int code;
  std::string_view label;
  double kilograms_per_metre;
};

/// Deformed bars, then Ulbon, as the bar standard has them.
constexpr Standard kStandard[] = {
    {10, "D10", 0.56}, {13, "D13", 0.995}, {16, "D16", 1.56}, {19, "D19", 2.25}, {22, "D22", 3.04},
    {25, "D25", 3.98}, {29, "D29", 5.04},  {32, "D32", 6.23}, {35, "D35", 7.51}, {38, "D38", 8.95},
    {41, "D41", 10.5}, {51, "D51", 15.9},  {6, "U 6", 0.235}, {7, "U 7", 0.315}, {9, "U 9", 0.5},
    {11, "U11", 0.71}, {12, "U12", 0.98},  {16, "U16", 1.56},
};

TEST(Diameters, FollowTheBarStandardRowByRow) {
  ASSERT_EQ(std::size(kStandard), kDiameters.size());
  for (int row = 0; row < kDiameterRows; ++row) {
    const Standard& standard = kStandard[row];
    EXPECT_EQ(DiameterCode(row), standard.code) << row;
    EXPECT_EQ(DiameterLabel(row), standard.label) << row;
    EXPECT_EQ(UnitWeight(row), standard.kilograms_per_metre) << row;
    EXPECT_EQ(kDiameters[static_cast<std::size_t>(row)].is_ulbon, row >= 12) << row;
  }
}

TEST(Diameters, FaultOutsideTheirRows) {
  for (const int row : {-1, 18}) {
    EXPECT_THROW(DiameterCode(row), Fault) << row;
    EXPECT_THROW(DiameterLabel(row), Fault) << row;
    EXPECT_THROW(UnitWeight(row), Fault) << row;
  }
}

TEST(Diameters, OnlySixteenIsBothDeformedAndUlbon) {
  EXPECT_THAT(kUlbonOnlyCodes, testing::ElementsAre(6, 7, 9, 11, 12));
  EXPECT_EQ(DiameterIndex(16), 2);
  EXPECT_EQ(UlbonIndex(16), 17);
}

TEST(DiameterIndex, KnowsTheTwelveDeformedDiametersAndNoOther) {
  const int codes[] = {10, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51};
  for (int d = 0; d < 12; ++d) EXPECT_EQ(DiameterIndex(codes[d]), d);
  for (const int code : {0, -10, 6, 7, 9, 11, 12, 14, 50, 52}) EXPECT_EQ(DiameterIndex(code), -1) << code;
}

TEST(UlbonIndex, KnowsTheSixUlbonDiametersAndNoOther) {
  const int codes[] = {6, 7, 9, 11, 12, 16};
  for (int u = 0; u < 6; ++u) EXPECT_EQ(UlbonIndex(codes[u]), 12 + u);
  for (const int code : {0, -6, 8, 10, 13, 51}) EXPECT_EQ(UlbonIndex(code), -1) << code;
}

}  // namespace
}  // namespace rbt
