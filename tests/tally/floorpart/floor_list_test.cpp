// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fault_of.h"
#include "tally/floorpart/floor_samples.h"
#include "tally/floorpart/part_list.h"

namespace rbt {
namespace {

using test::FaultOf;
using test::Kg;
using testing::ElementsAre;

std::vector<std::int16_t> Listed(std::int16_t start, std::int16_t end, std::int16_t lowest,
                                 std::int16_t mask = 0) {
  return ListedFloors({start, end, lowest, SpecialMask(mask)});
}

TEST(ListedFloors, HoldEveryFloorOfARangeOfStoreys) {
  EXPECT_THAT(Listed(1, 5, 1), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(Listed(75, 75, 1), ElementsAre(75));
}

TEST(ListedFloors, HaveNoFoundationInARangeFromABasement) {
  EXPECT_THAT(Listed(-2, 3, -2), ElementsAre(-2, -1, 1, 2, 3));
  EXPECT_THAT(Listed(-2, 0, -2), ElementsAre(-2, -1));
  EXPECT_THAT(Listed(-3, -2, -3), ElementsAre(-3, -2));
}

TEST(ListedFloors, OfTheFoundationAloneAreTheFoundation) {
  EXPECT_THAT(Listed(0, 0, -2), ElementsAre(0));
  EXPECT_THAT(Listed(0, 0, 3), ElementsAre(0));
}

TEST(ListedFloors, FromTheFoundationOnBeginWithItAndGoOnAtTheLowestFloor) {
  EXPECT_THAT(Listed(0, 3, -2), ElementsAre(0, -2, -1, 1, 2, 3));
  EXPECT_THAT(Listed(0, 3, 0), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(Listed(0, 5, 3), ElementsAre(0, 3, 4, 5));
  EXPECT_THAT(Listed(0, -3, -3), ElementsAre(0, -3));
}

TEST(ListedFloors, FromASpecialFloorOnAreTheSpecialFloorsToTheEnd) {
  EXPECT_THAT(Listed(76, 76, 1, 7), ElementsAre(76));
  EXPECT_THAT(Listed(76, 78, 1), ElementsAre(76, 77, 78));
  EXPECT_THAT(Listed(77, 78, 1, 7), ElementsAre(77, 78));
  EXPECT_THAT(Listed(78, 78, 1), ElementsAre(78));
}

TEST(ListedFloors, EndWithTheSpecialFloorsTaken) {
  EXPECT_THAT(Listed(1, 2, 1, 1), ElementsAre(1, 2, 76));
  EXPECT_THAT(Listed(1, 2, 1, 6), ElementsAre(1, 2, 77, 78));
  EXPECT_THAT(Listed(0, 0, -2, 7), ElementsAre(0, 76, 77, 78));
  EXPECT_THAT(Listed(-1, 1, -1, 5), ElementsAre(-1, 1, 76, 78));
}

TEST(ListedFloors, NameNoSpecialFloorTwice) {
  EXPECT_THAT(Listed(74, 77, 1, 7), ElementsAre(74, 75, 76, 77, 78));
  EXPECT_THAT(Listed(0, 78, 77, 3), ElementsAre(0, 77, 78, 76));
}

TEST(FloorListLabel, NamesBasementsStoreysAndTheNamedFloors) {
  EXPECT_EQ(FloorListLabel(-5), "5Ｂ階");
  EXPECT_EQ(FloorListLabel(-2), "2Ｂ階");
  EXPECT_EQ(FloorListLabel(0), "基礎階");
  EXPECT_EQ(FloorListLabel(1), "1階");
  EXPECT_EQ(FloorListLabel(12), "12階");
  EXPECT_EQ(FloorListLabel(76), "Ｒ　階");
  EXPECT_EQ(FloorListLabel(77), "ＰＨ階");
  EXPECT_EQ(FloorListLabel(78), "階なし");
}

TEST(Trim_FloorName, GivesTheFloorOfEveryLabel) {
  for (std::int16_t floor = -5; floor <= 78; ++floor) {
    EXPECT_EQ(Trim_FloorName(FloorListLabel(floor)), floor);
  }
}

TEST(Trim_FloorName, ReadsAMinusBeforeAndBehindTheNumber) {
  EXPECT_EQ(Trim_FloorName("3Ｂ階"), -3);
  EXPECT_EQ(Trim_FloorName("3-"), -3);
  EXPECT_EQ(Trim_FloorName("-3"), -3);
  EXPECT_EQ(Trim_FloorName("Ｂ3階"), -3);
  EXPECT_EQ(Trim_FloorName("12"), 12);
}

TEST(Trim_FloorName, FaultsAtATextThatIsNoFloor) {
  for (const char* text : {"", "階", "合　計", "-", "屋上"}) {
    EXPECT_EQ(FaultOf([&] { (void)Trim_FloorName(text); }), FaultKind::type_mismatch) << text;
  }
}

TEST(FloorList, ShowsFloorsWithoutDataWithZerosAndTheTotalsLast) {
  FloorTables tables;
  tables.KaiBuiGoukei[FloorIndex(-1)][2] = Kg(5);
  tables.KaiGoukei[FloorIndex(-1)] = Kg(7);
  tables.BuiGoukei[11] = Kg(9);
  tables.SouGoukei = Kg(11);
  ListFloors(tables, {-1, 1});
  ASSERT_EQ(tables.KaiGyouSuu(), 3);
  EXPECT_THAT(tables.KaiGyouKai, ElementsAre(-1, 1, 0));
  EXPECT_EQ(tables.KaiGyou[0].label, "1Ｂ階");
  EXPECT_EQ(tables.KaiGyou[0].parts[2], Kg(5));
  EXPECT_EQ(tables.KaiGyou[0].total, Kg(7));
  EXPECT_EQ(tables.KaiGyou[1], (ListRow{"1階", {}, {}}));
  EXPECT_EQ(tables.KaiGyou[2].label, "合　計");
  EXPECT_EQ(tables.KaiGyou[2].parts[11], Kg(9));
  EXPECT_EQ(tables.KaiGyou[2].total, Kg(11));
}

TEST(FloorList, ReplacesTheListBefore) {
  FloorTables tables;
  ListFloors(tables, {1, 2, 3});
  ListFloors(tables, {1});
  EXPECT_EQ(tables.KaiGyouSuu(), 2);
  EXPECT_EQ(tables.KaiGyouKai.size(), 2U);
}

std::vector<std::string> Labels(const PartTables& tables) {
  std::vector<std::string> labels;
  for (const ListRow& row : tables.BuiGyou) labels.push_back(row.label);
  return labels;
}

TEST(PartList, HasTheTwelveDeformedDiametersAndTheTotal) {
  PartTables tables;
  tables.BuiTaisaGoukei[11][3] = Kg(5);
  tables.TaisaGoukei[11] = Kg(7);
  tables.BuiGoukei[3] = Kg(9);
  tables.SouGoukei = Kg(11);
  ListParts(tables, false);
  EXPECT_THAT(Labels(tables), ElementsAre("D10", "D13", "D16", "D19", "D22", "D25", "D29", "D32", "D35",
                                          "D38", "D41", "D51", "合計"));
  EXPECT_EQ(tables.BuiGyou[11].parts[3], Kg(5));
  EXPECT_EQ(tables.BuiGyou[11].total, Kg(7));
  EXPECT_EQ(tables.BuiGyou[12].parts[3], Kg(9));
  EXPECT_EQ(tables.BuiGyou[12].total, Kg(11));
  EXPECT_EQ(tables.BuiGyouTaisa[11], 11);
  EXPECT_EQ(tables.BuiGyouTaisa[12], std::nullopt);
}

TEST(PartList, PutsTheThinRowsAndAGapOfThreeBlanksBeforeTheDeformedOnes) {
  PartTables tables;
  tables.TaisaGoukei[17] = Kg(7);
  ListParts(tables, true);
  EXPECT_THAT(Labels(tables),
              ElementsAre("U 6", "U 7", "U 9", "U11", "U12", "U16", "   ", "D10", "D13", "D16", "D19", "D22",
                          "D25", "D29", "D32", "D35", "D38", "D41", "D51", "合計"));
  EXPECT_EQ(tables.BuiGyou[5].total, Kg(7));
  EXPECT_EQ(tables.BuiGyou[6], (ListRow{"   ", {}, {}}));
  EXPECT_EQ(tables.BuiGyouTaisa[0], 12);
  EXPECT_EQ(tables.BuiGyouTaisa[6], std::nullopt);
  EXPECT_EQ(tables.BuiGyouTaisa[7], 0);
}

}  // namespace
}  // namespace rbt
