// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_marginals.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

constexpr int kD19 = 3;
constexpr int kAt6m = 5;
constexpr int kAt7m = 7;

/// Two parts of floor 1 and one of floor 2; stock and shown weight differ by their hundreds.
FloorTables Tables() {
  FloorTables tables;
  const int f1 = FloorIndex(1);
  const int f2 = FloorIndex(2);
  const auto put = [&tables](int f, int p, int c, std::int64_t kilograms) {
    tables.KaiBuiTeiJyuuryo[f][p][kD19][c] = Currency::FromInteger(kilograms + 100);
    tables.KaiBuiJyuuryo[f][p][kD19][c] = Currency::FromInteger(kilograms);
  };
  put(f1, 1, kAt6m, 1);
  put(f1, 1, kAt7m, 2);
  put(f1, 11, kAt6m, 4);
  put(f2, 1, kAt6m, 8);
  put(f2, 1, 0, 16);  // of 3.5 m
  tables.KaiTaisaGoukei[f1][kD19] = Currency::FromInteger(7);
  tables.KaiTaisaGoukei[f2][kD19] = Currency::FromInteger(24);
  return tables;
}

TEST(StockOfFloor, IsThatOfItsPartsTogether) {
  const FloorTables tables = Tables();
  EXPECT_EQ(StockOfFloor(tables, FloorIndex(1), kD19, kAt6m), Currency::FromInteger(205));
  EXPECT_EQ(StockOfFloor(tables, FloorIndex(1), kD19, ColumnsInUse(false)), Currency::FromInteger(307));
  EXPECT_EQ(StockOfFloor(tables, FloorIndex(3), kD19, ColumnsInUse(false)), Currency());
}

TEST(WeightOfFloorPart, IsTheShownWeightOfTheColumnsInUse) {
  const FloorTables tables = Tables();
  EXPECT_EQ(WeightOfFloorPart(tables, FloorIndex(1), 1, kD19, ColumnsInUse(false)), Currency::FromInteger(3));
  EXPECT_EQ(WeightOfFloorPart(tables, FloorIndex(2), 1, kD19, ColumnsInUse(false)),
            Currency::FromInteger(24));
  EXPECT_EQ(WeightOfFloorPart(tables, FloorIndex(2), 1, kD19, ColumnsInUse(true)), Currency::FromInteger(8));
}

TEST(WeightOfPart, IsThatOfAllFloors) {
  EXPECT_EQ(WeightOfPart(Tables(), 1, kD19, ColumnsInUse(false)), Currency::FromInteger(27));
  EXPECT_EQ(WeightOfPart(Tables(), 11, kD19, ColumnsInUse(false)), Currency::FromInteger(4));
}

TEST(WeightOfDiameter, IsTheSumOfTheFloors) {
  EXPECT_EQ(WeightOfDiameter(Tables(), kD19), Currency::FromInteger(31));
}

}  // namespace
}  // namespace rbt
