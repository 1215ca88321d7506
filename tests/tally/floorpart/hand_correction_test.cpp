// SPDX-License-Identifier: MIT
#include "tally/floorpart/hand_correction.h"

#include <gtest/gtest.h>

#include "support/fault_of.h"
#include "tally/floorpart/floor_samples.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_tally.h"

namespace rbt {
namespace {

using test::AtPart;
using test::D19Row;
using test::FaultOf;
using test::Kg;

/// 27 kg in part 1 of the floors -1 and 1, 27 kg in part 3 of floor 1.
FloorTables TwoFloors() {
  FloorTables tables;
  FoldFloorRow(tables, D19Row(), -1, {});
  FoldFloorRow(tables, D19Row(), 1, {});
  FoldFloorRow(tables, AtPart(D19Row(), 3), 1, {});
  CloseFloorTally(tables, {});
  ListFloors(tables, {-1, 1});
  return tables;
}

PartTables TwoParts(bool thin_rows = false) {
  PartTables tables;
  FoldPartRow(tables, D19Row(), {});
  FoldPartRow(tables, AtPart(D19Row(), 3), {});
  ClosePartTally(tables, {});
  ListParts(tables, thin_rows);
  return tables;
}

TEST(HandCorrection, OfAFloorSumsItsRowItsColumnAndTheTotalAfresh) {
  FloorTables tables = TwoFloors();
  CorrectCell(tables, 1, 1, Kg(100));
  EXPECT_EQ(tables.KaiGyou[1].parts[1], Kg(100));
  EXPECT_EQ(tables.KaiGyou[1].total, Kg(127));
  EXPECT_EQ(tables.KaiGyou[0].total, Kg(27));
  EXPECT_EQ(tables.KaiGyou[2].parts[1], Kg(127));
  EXPECT_EQ(tables.KaiGyou[2].parts[3], Kg(27));
  EXPECT_EQ(tables.KaiGyou[2].total, Kg(154));
}

TEST(HandCorrection, OfAFloorReachesTheTablesThatTheReportsRead) {
  FloorTables tables = TwoFloors();
  CorrectCell(tables, 0, 11, Kg(3));
  EXPECT_EQ(tables.KaiBuiGoukei[FloorIndex(-1)][11], Kg(3));
  EXPECT_EQ(tables.KaiGoukei[FloorIndex(-1)], Kg(30));
  EXPECT_EQ(tables.BuiGoukei[11], Kg(3));
  EXPECT_EQ(tables.SouGoukei, Kg(84));
}

TEST(HandCorrection, OfAFloorLeavesCountsAndDiametersAsTallied) {
  const FloorTables before = TwoFloors();
  FloorTables tables = before;
  CorrectCell(tables, 1, 1, Kg(100));
  EXPECT_EQ(tables.KaiBuiHonsu, before.KaiBuiHonsu);
  EXPECT_EQ(tables.SouHonsu, before.SouHonsu);
  EXPECT_EQ(tables.KaiBuiJyuuryo, before.KaiBuiJyuuryo);
  EXPECT_EQ(tables.KaiTaisaGoukei, before.KaiTaisaGoukei);
  EXPECT_EQ(tables.TaisaGoukei, before.TaisaGoukei);
  EXPECT_EQ(tables.SouTeiGoukei, before.SouTeiGoukei);
}

TEST(HandCorrection, BackToTheOldWeightIsAsIfNothingHappened) {
  const FloorTables before = TwoFloors();
  FloorTables tables = before;
  CorrectCell(tables, 0, 1, Kg(5));
  EXPECT_NE(tables, before);
  CorrectCell(tables, 0, 1, Kg(27));
  EXPECT_EQ(tables, before);
}

TEST(HandCorrection, RefusesTheTotalRowAndCellsThatAreNoPart) {
  FloorTables tables = TwoFloors();
  const FloorTables before = tables;
  struct Cell {
    int row;
    int part;
  };
  for (const Cell cell : {Cell{2, 1}, {-1, 1}, {3, 1}, {0, 0}, {0, 12}}) {
    EXPECT_FALSE(MayCorrect(tables, cell.row, cell.part)) << cell.row << ' ' << cell.part;
    EXPECT_EQ(FaultOf([&] { CorrectCell(tables, cell.row, cell.part, Kg(1)); }),
              FaultKind::subscript_out_of_range);
  }
  EXPECT_TRUE(MayCorrect(tables, 1, 11));
  EXPECT_EQ(tables, before);
  FloorTables empty;
  EXPECT_FALSE(MayCorrect(empty, 0, 1));
}

TEST(HandCorrection, BeyondWhatASumHoldsIsAFaultAndLeavesTheTables) {
  const Currency most = Kg(900'000'000'000'000);  // a Currency holds some 922 billion tonnes
  FloorTables floors = TwoFloors();
  CorrectCell(floors, 0, 1, most);
  const FloorTables floors_before = floors;
  EXPECT_EQ(FaultOf([&] { CorrectCell(floors, 0, 2, most); }), FaultKind::overflow) << "of its row";
  EXPECT_EQ(FaultOf([&] { CorrectCell(floors, 1, 1, most); }), FaultKind::overflow) << "of its column";
  EXPECT_EQ(FaultOf([&] { CorrectCell(floors, 1, 2, most); }), FaultKind::overflow) << "of the whole";
  EXPECT_EQ(floors, floors_before);
  PartTables parts = TwoParts();
  CorrectCell(parts, 0, 1, most);
  const PartTables parts_before = parts;
  EXPECT_EQ(FaultOf([&] { CorrectCell(parts, 3, 2, most); }), FaultKind::overflow);
  EXPECT_EQ(parts, parts_before);
}

TEST(HandCorrection, OfADiameterSumsItsRowItsColumnAndTheTotalAfresh) {
  PartTables tables = TwoParts();
  CorrectCell(tables, 3, 3, Kg(100));
  EXPECT_EQ(tables.BuiGyou[3].total, Kg(127));
  EXPECT_EQ(tables.BuiGyou[12].parts[3], Kg(100));
  EXPECT_EQ(tables.BuiGyou[12].total, Kg(127));
  EXPECT_EQ(tables.BuiTaisaGoukei[3][3], Kg(100));
  EXPECT_EQ(tables.TaisaGoukei[3], Kg(127));
  EXPECT_EQ(tables.BuiGoukei[3], Kg(100));
  EXPECT_EQ(tables.SouGoukei, Kg(127));
  EXPECT_EQ(tables.BuiHonsu, TwoParts().BuiHonsu);
  EXPECT_EQ(tables.BuiJyuuryo, TwoParts().BuiJyuuryo);
}

TEST(HandCorrection, OfADiameterFindsItBehindTheThinRowsAndRefusesTheGap) {
  PartTables tables = TwoParts(true);
  CorrectCell(tables, 10, 3, Kg(100));
  EXPECT_EQ(tables.BuiTaisaGoukei[3][3], Kg(100));
  CorrectCell(tables, 0, 3, Kg(8));
  EXPECT_EQ(tables.BuiTaisaGoukei[12][3], Kg(8));
  EXPECT_FALSE(MayCorrect(tables, 6, 3));
  EXPECT_FALSE(MayCorrect(tables, 19, 3));
  EXPECT_EQ(FaultOf([&] { CorrectCell(tables, 6, 3, Kg(1)); }), FaultKind::subscript_out_of_range);
}

}  // namespace
}  // namespace rbt
