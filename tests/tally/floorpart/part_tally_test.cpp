// SPDX-License-Identifier: MIT
#include "tally/floorpart/part_tally.h"

#include <gtest/gtest.h>

#include "shell/config/settings.h"
#include "support/fault_of.h"
#include "tally/floorpart/floor_samples.h"
#include "tally/selection.h"

namespace rbt {
namespace {

using test::FaultOf;
using test::Fields;
using test::FloorSite;
using test::Kg;
using test::Number;
using test::ScheduleSite;

/// One row on each floor, with as many bars as tells the floors apart.
constexpr int kOneOfEach[] = {-2, -1, 0, 1, 2, 76, 77, 78};

void AddOneRowAFloor(FloorSite& site) {
  for (int i = 0; i < 8; ++i) site.Add(kOneOfEach[i], {{"伸総計", Number(1 << i)}});
}

std::int32_t FloorsTallied() { return PartTally.TaisaHonsu[3][5]; }

void TallyParts(std::int16_t box, std::int16_t start, std::int16_t end, bool ph = false, bool r = false,
                bool none = false) {
  Selection.KaiStart = box;
  Bui_Jyuuryo_Syukei(start, end, ph ? 1 : 0, r ? -1 : 0, none ? 1 : 0);
}

TEST(Bui_Jyuuryo_Syukei, TakesTheStoreysOfARangeWithoutTheFoundation) {
  FloorSite site;
  AddOneRowAFloor(site);
  TallyParts(-1, -1, 1);
  EXPECT_EQ(FloorsTallied(), 2 + 8);
  TallyParts(1, 1, 2);
  EXPECT_EQ(FloorsTallied(), 8 + 16);
}

TEST(Bui_Jyuuryo_Syukei, TakesTheFoundationWhereTheBoxHolds0) {
  FloorSite site;
  AddOneRowAFloor(site);
  TallyParts(0, -2, 1);
  EXPECT_EQ(FloorsTallied(), 1 + 2 + 4 + 8);
  TallyParts(0, 0, 0);
  EXPECT_EQ(FloorsTallied(), 4);
  TallyParts(0, 1, 2);
  EXPECT_EQ(FloorsTallied(), 4 + 8 + 16);
}

TEST(Bui_Jyuuryo_Syukei, TakesSpecialFloorsByTheirFlags) {
  FloorSite site;
  AddOneRowAFloor(site);
  TallyParts(1, 1, 1, true, false, false);
  EXPECT_EQ(FloorsTallied(), 8 + 64);
  TallyParts(1, 1, 1, false, true, false);
  EXPECT_EQ(FloorsTallied(), 8 + 32);
  TallyParts(1, 1, 1, false, false, true);
  EXPECT_EQ(FloorsTallied(), 8 + 128);
  TallyParts(0, -2, 2, true, true, true);
  EXPECT_EQ(FloorsTallied(), 255);
  TallyParts(-1, -1, 2, true, true, true);
  EXPECT_EQ(FloorsTallied(), 255 - 1 - 4);
}

TEST(Bui_Jyuuryo_Syukei, TakesASpecialStartAlone) {
  FloorSite site;
  AddOneRowAFloor(site);
  for (std::int16_t start = 76; start <= 78; ++start) {
    TallyParts(start, start, 78, true, true, true);
    EXPECT_EQ(FloorsTallied(), 32 << (start - 76)) << start;
  }
}

TEST(Bui_Jyuuryo_Syukei, ShowsStockWeightWhateverTheSettingOfTheFloorTally) {
  FloorSite site;
  site.Add(1, {{"合計", Number(3)}});
  for (const char* setting : {"0", "1"}) {
    SaveSetting("Kakou", "重量集計", "階別集計定取", setting);
    TallyParts(1, 1, 1);
    EXPECT_EQ(PartTally.SouGoukei, Kg(27)) << setting;
  }
}

TEST(Bui_Jyuuryo_Syukei, ListsThinRowsWhereThinBarsStandAlone) {
  FloorSite site;
  site.Add(1, {{"太さ", Number(9)},
               {"予備2", Number(2)},
               {"合計", Number(10)},
               {"伸切寸", Number(1500)},
               {"伸定尺", Value{0.0}}});
  site.Add(1);
  TallyParts(1, 1, 1);
  EXPECT_EQ(PartTally.BuiGyou.size(), 13U);
  EXPECT_EQ(PartTally.SouGoukei, Kg(27));
  Selection.MaterialKindMask = KindMask(0);
  Selection.UlbonOnly = true;
  TallyParts(1, 1, 1);
  ASSERT_EQ(PartTally.BuiGyou.size(), 20U);
  EXPECT_EQ(PartTally.BuiGyou[2].label, "U 9");
  EXPECT_EQ(PartTally.BuiGyou[2].parts[1], Kg(8));
  EXPECT_EQ(PartTally.BuiGyou[19].total, Kg(8));
}

TEST(Bui_Jyuuryo_Syukei, FiltersHoopsAndPlates) {
  FloorSite site;
  site.Add(1);
  site.Add(1, {{"形状No", Number(87)}, {"圧接", Number(4)}, {"切断", Number(5)}});
  site.Add(1, {{"形状No", Number(140)}});
  TallyParts(1, 1, 1);
  EXPECT_TRUE(PartTally.HoopAri);
  EXPECT_TRUE(PartTally.TeiAri);
  EXPECT_EQ(FloorsTallied(), 6);
  Selection.HoopMode = ShapeFilter::left_out;
  TallyParts(1, 1, 1);
  EXPECT_EQ(FloorsTallied(), 4);
  EXPECT_EQ(PartTally.Assetu.Taisa[3], 0);
  EXPECT_EQ(PartTally.Setsudan.Taisa[3], 5);
  Selection.HoopMode = ShapeFilter::alone;
  TallyParts(1, 1, 1);
  EXPECT_EQ(FloorsTallied(), 2);
  EXPECT_FALSE(PartTally.TeiAri);
  Selection.HoopMode = ShapeFilter::with_others;
  Selection.AnchorPlateMode = ShapeFilter::left_out;
  TallyParts(1, 1, 1);
  EXPECT_EQ(FloorsTallied(), 4);
  Selection.AnchorPlateMode = ShapeFilter::alone;
  TallyParts(1, 1, 1);
  EXPECT_EQ(FloorsTallied(), 2);
}

TEST(Bui_Jyuuryo_Syukei, CountsThreadsOfThreadedBarsAndCutsOfPart2AtTheWeld) {
  FloorSite site;
  site.Add(1, {{"予備2", Number(1)}, {"ネジ数", Number(4)}});
  site.Add(1, {{"予備2", Number(4)}, {"ネジ数", Number(7)}});
  site.Add(1, {{"部位", Number(2)}, {"圧接太さ", Number(25)}, {"切断", Number(3)}});
  TallyParts(1, 1, 1);
  EXPECT_EQ(PartTally.Neji.Taisa[3], 7);
  EXPECT_EQ(PartTally.Setsudan.Bui[2][5], 3);
}

TEST(Bui_Jyuuryo_Syukei, RaisesByItsOwnRatioAlone) {
  FloorSite site;
  site.Add(1, {{"伸総計", Number(5)}, {"圧接", Number(5)}});
  Selection.UwanoseRitu = 0.5;
  TallyParts(1, 1, 1);
  EXPECT_EQ(FloorsTallied(), 5);
  Selection.BuiUwanoseRitu = 0.1;
  TallyParts(1, 1, 1);
  EXPECT_EQ(FloorsTallied(), 6);
  EXPECT_EQ(PartTally.Assetu.Taisa[3], 6);
  EXPECT_EQ(PartTally.SouGoukei, Kg(81));
}

TEST(Bui_Jyuuryo_Syukei, AsksForNoFloorOnceTheRowsAreChosen) {
  FloorSite site;
  site.Add(1, {{"部位", Number(0)}});
  site.Add(2, {{"部位", Number(12)}});
  TallyParts(1, 1, 2);
  EXPECT_EQ(PartTally.BuiGoukei[11], Kg(54));
}

TEST(Bui_Jyuuryo_Syukei, LeavesNothingBehindAFault) {
  FloorSite site;
  site.Add(1);
  TallyParts(1, 1, 1);
  site.Add(1, {{"部位", Number(-1)}});
  EXPECT_EQ(FaultOf([] { TallyParts(1, 1, 1); }), FaultKind::subscript_out_of_range);
  EXPECT_EQ(PartTally, PartTables());
}

TEST(Bui_Jyuuryo_Syukei_Load, WorksOutWhatWasTalliedFromItsCounts) {
  FloorSite site;
  site.Add(1, {{"圧接", Number(3)}});
  site.Add(1, {{"部位", Number(4)}, {"太さ", Number(25)}});
  TallyParts(1, 1, 1);
  const PartTables tallied = PartTally;
  PartTally = PartTables();
  PartTally.BuiHonsu = tallied.BuiHonsu;
  PartTally.Assetu = tallied.Assetu;
  Bui_Jyuuryo_Syukei_Load();
  EXPECT_EQ(PartTally, tallied);
}

TEST(Bui_Jyuuryo_Syukei_Load, KeepsTheWeightOfThinBarsAndRaisesNothing) {
  ScheduleSite site;
  PartTally.BuiHonsu[1][14][4] = 4;
  PartTally.BuiJyuuryo[1][14][4] = Kg(8);
  PartTally.HoopAri = PartTally.TeiAri = true;
  Selection.BuiUwanoseRitu = 0.5;
  Bui_Jyuuryo_Syukei_Load();
  EXPECT_EQ(PartTally.TaisaGoukei[14], Kg(8));
  EXPECT_EQ(PartTally.TaisaHonsu[14][4], 4);
  EXPECT_FALSE(PartTally.HoopAri);
  EXPECT_FALSE(PartTally.TeiAri);
}

}  // namespace
}  // namespace rbt
