// SPDX-License-Identifier: MIT
// What stands in the tables, worked out by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/store/archive_site.h"
#include "archive/store/random_tallies.h"
#include "support/fault_of.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;

class SavedRows : public testing::Test {
 protected:
  ArchiveSite site_;
};

RowShare Bars(int part, int row, int column, std::int32_t bars) {
  RowShare share;
  share.part = part;
  share.row = row;
  share.column = column;
  share.bars = bars;
  share.installed_kilograms = 10.0 * bars;
  return share;
}

/// Floors -2 to 1 with the R floor: 10 bars D19 by 6.0 m (135 kg, 100 kg installed) in part 1 of floor -2,
/// with 4 welds and 2 cuts; 2 bars D25 by 4.0 m (15.9 kg each: 32 kg, 20 kg installed) with the others on the
/// R floor.
TallyResult TwoFloors(bool installed) {
  FloorTables tables;
  RowShare share = Bars(1, 3, 5, 10);
  share.welds = {3, 4};
  share.cuts = {3, 2};
  const CellWeight deformed = installed ? CellWeight::installed : CellWeight::none;
  AddShare(tables, FloorIndex(-2), share, deformed);
  AddShare(tables, FloorIndex(76), Bars(11, 5, 1, 2), deformed);
  FloorRules rules;
  rules.installed = installed;
  CloseFloorTally(tables, rules);
  TallyResult result;
  result.kind = TallyKind::floor;
  result.selection.KaiStart = -2;
  result.selection.KaiEnd = 1;
  result.selection.TokubetuMask = SpecialMask(1);
  result.selection.MaterialKindMask = KindMask(9);
  result.selection.MaterialFormMask = FormMask(3);
  ListFloors(tables, ListedFloors(FloorScopeOf(result.selection)));
  result.tables = std::move(tables);
  return result;
}

constexpr const char* kPartRows =
    "SELECT 行No,階,部位,太さ,ＳＤ,メーカー,材質,材質タイプ,材料,[6000mm],[6000mm重量],[4000mm],[4000mm重量],"
    "定尺重量,取付重量,圧接,ネジ数,定着板数,切断,作成日,作成時間 FROM 階部位重量集計 ORDER BY 行No";
constexpr const char* kFloorRows =
    "SELECT 行No,階,太さ,SD,メーカー,材質,材質タイプ,材料,部位１,部位２,部位１１,圧接,切断,定尺合計,取付合計,"
    "開始階,終了階,特別階,作成時間 FROM 階別重量集計 ORDER BY 行No";

}  // namespace

TEST_F(SavedRows, ABulkTallyHasARowForEachDiameterWithFigures) {
  TallyResult result = SmallTally();
  result.Grid().CutCount[11] = 2;
  result.selection.MaterialKindMask = KindMask(5);
  result.selection.MaterialFormMask = FormMask(7);
  ASSERT_TRUE(site_.Save(result, ArchiveSite::Order("基礎")));
  EXPECT_THAT(
      site_.Lines(
          "SELECT 列番号,階,部位,太さ,ＳＤ,メーカー,材質,材料,[6000mm],[6000mm重量],[3500mm],定尺重量,"
          "取付重量,圧接,ネジ数,定着板数,切断,作成日,作成時間 FROM 重量集計 ORDER BY 列番号"),
      ElementsAre("3|0|0|19|SD3|O'Neill 3|5|7|10|135|0|135|120.5|4|0|0|0|20261121|090000",
                  "11|0|0|51|SD11|O'Neill 11|5|7|0|0|0|0|0|0|0|0|2|20261121|090000"));
  EXPECT_THAT(site_.Lines("SELECT [13000mm] FROM 重量集計"), ElementsAre("null", "null"));
}

TEST_F(SavedRows, The13MetreFieldsAreWrittenWhereTheColumnIsOn) {
  TallyResult result = SmallTally();
  result.Grid().BarCount[3][kColumn13m] = 6;
  result.Grid().StockWeight[3][kColumn13m] = Currency::FromDouble(175.5);
  ASSERT_TRUE(site_.Save(result, ArchiveSite::Order("基礎", 0, true)));
  EXPECT_THAT(site_.Lines("SELECT [13000mm],[13000mm重量] FROM 重量集計"), ElementsAre("6|175.5"));
  EXPECT_THAT(site_.Lines("SELECT 定尺１３ｍ FROM 重量集計名称"), ElementsAre("1"));
}

TEST_F(SavedRows, TheNameRowHoldsWhatBelongsToTheWholeTally) {
  TallyResult result = SmallTally(TallyKind::page);
  result.selection.HoopMode = ShapeFilter::alone;
  SaveOrder order = ArchiveSite::Order("Ａ 'x' \"y\"");
  order.memos = {"一\"二'三", "", "四"};
  ASSERT_TRUE(site_.Save(result, order));
  EXPECT_THAT(site_.Lines("SELECT * FROM 重量集計名称"),
              ElementsAre("20261121|090000|Ａ 'x' \"y\"|2|2|0|一\"二'三|null|四|0"));
}

TEST_F(SavedRows, ACorrectionByHandIsKeptAndAnUpliftIsNone) {
  const auto saved_as = [&](TallyResult result, ResultOrigin origin, int second) {
    result.origin = origin;
    EXPECT_TRUE(site_.Save(result, ArchiveSite::Order("名前", second)));
    return site_.Lines("SELECT 合計値変更 FROM 重量集計名称 WHERE 作成時間='09000" + std::to_string(second) +
                       "'");
  };
  EXPECT_THAT(saved_as(SmallTally(), ResultOrigin::counted, 0), ElementsAre("0"));
  EXPECT_THAT(saved_as(SmallTally(), ResultOrigin::raised, 1), ElementsAre("0"));
  EXPECT_THAT(saved_as(SmallTally(), ResultOrigin::corrected, 2), ElementsAre("1"));
  EXPECT_THAT(saved_as(TwoFloors(false), ResultOrigin::corrected, 3), ElementsAre("0"));
  const LoadedTally corrected = site_.Load(TallyKind::bulk, "名前");
  EXPECT_TRUE(corrected.result.saved_as_corrected);
  EXPECT_THAT(saved_as(corrected.result, ResultOrigin::loaded, 4), ElementsAre("1"));
}

TEST_F(SavedRows, AFloorTallyHasARowForEachFloorPartAndDiameterWithFigures) {
  ASSERT_TRUE(site_.Save(TwoFloors(false), ArchiveSite::Order("全階")));
  EXPECT_THAT(site_.Lines(kPartRows),
              ElementsAre("1|2-|1|19|SD3|O'Neill 3|9|1|3|10|135|0|0|135|0|4|0|0|2|20261121|090000",
                          "2|Ｒ　階|11|25|SD5|O'Neill 5|9|1|3|0|0|2|32|32|0|0|0|0|0|20261121|090000"));
}

TEST_F(SavedRows, AFloorTallyHasARowForEachListedFloorAndNoneForTheTotal) {
  ASSERT_TRUE(site_.Save(TwoFloors(false), ArchiveSite::Order("全階")));
  EXPECT_THAT(site_.Lines(kFloorRows), ElementsAre("1|2-|0|||9|1|3|135|0|0|4|2|135|0|-2|1|1|090000",
                                                   "2|1-|0|||9|1|3|0|0|0|0|0|0|0|-2|1|1|090000",
                                                   "3|1|0|||9|1|3|0|0|0|0|0|0|0|-2|1|1|090000",
                                                   "4|Ｒ　階|0|||9|1|3|0|0|32|0|0|32|0|-2|1|1|090000"));
}

TEST_F(SavedRows, InstalledWeightsStandBesideTheStockWeights) {
  ASSERT_TRUE(site_.Save(TwoFloors(true), ArchiveSite::Order("全階")));
  EXPECT_THAT(
      site_.Lines("SELECT [6000mm重量],[4000mm重量],定尺重量,取付重量 FROM 階部位重量集計 ORDER BY 行No"),
      ElementsAre("100|0|135|100", "0|20|32|20"));
  EXPECT_THAT(site_.Lines("SELECT 定尺合計,取付合計 FROM 階別重量集計 ORDER BY 行No"),
              ElementsAre("100|100", "0|0", "0|0", "20|20"));
}

TEST_F(SavedRows, TheFoundationAndTheSpecialFloorsKeepTheirNames) {
  FloorTables tables;
  for (const int floor : {0, 3, 76, 77, 78}) {
    AddShare(tables, FloorIndex(floor), Bars(1, 3, 5, 1), CellWeight::none);
  }
  CloseFloorTally(tables, {});
  TallyResult result;
  result.kind = TallyKind::floor;
  result.selection.KaiMin = 3;
  result.selection.KaiEnd = 3;
  result.selection.TokubetuMask = SpecialMask(7);
  ListFloors(tables, ListedFloors(FloorScopeOf(result.selection)));
  result.tables = tables;
  ASSERT_TRUE(site_.Save(result, ArchiveSite::Order("全階")));
  EXPECT_THAT(site_.Lines("SELECT 階 FROM 階別重量集計 ORDER BY 行No"),
              ElementsAre("基礎階", "3", "Ｒ　階", "ＰＨ階", "階なし"));
  const LoadedTally loaded = site_.Load(TallyKind::floor, "全階");
  EXPECT_EQ(loaded.result.Floors().KaiGyou, tables.KaiGyou) << "floors 1 and 2 are no part of it";
}

TEST_F(SavedRows, APartTallyHasItsCellsAndTheDiametersWithWeight) {
  PartTables tables;
  RowShare share = Bars(2, 3, 5, 10);
  share.welds = {5, 4};
  share.plates = {3, 1};
  AddShare(tables, share, CellWeight::stock);
  ClosePartTally(tables, {});
  TallyResult result;
  result.kind = TallyKind::part;
  result.selection.KaiEnd = 7;
  result.selection.TokubetuMask = SpecialMask(4);
  result.tables = tables;
  ASSERT_TRUE(site_.Save(result, ArchiveSite::Order("全階")));
  EXPECT_THAT(
      site_.Lines(
          "SELECT 行No,部位,太さ,SD,メーカー,材質,材質タイプ,材料,[6000mm],[6000mm重量],定尺重量,取付重量,"
          "圧接,ネジ数,定着板数,切断,作成時間 FROM 部位別本重集計 ORDER BY 行No"),
      ElementsAre("1|2|19|SD3|O'Neill 3|15|1|15|10|135|135|0|0|0|1|0|090000",
                  "2|2|25|SD5|O'Neill 5|15|1|15|0|0|0|0|4|0|0|0|090000"));
  EXPECT_THAT(
      site_.Lines(
          "SELECT 太さ,SD,メーカー,材質,材質タイプ,材料,部位１,部位２,部位１１,圧接,定尺合計,取付合計,"
          "作成時間,開始階,終了階,特別階 FROM 部位別重量集計"),
      ElementsAre("19|SD3|O'Neill 3|15|1|15|0|135|0|0|135|0|090000|0|7|4"));
}

TEST_F(SavedRows, ThinBarsAreOfTypeTwoWithoutGradeAndMaker) {
  PartTables tables;
  AddShare(tables, Bars(1, 17, 0, 3), CellWeight::stock);  // U16, installed 30 kg
  ClosePartTally(tables, {});
  TallyResult result;
  result.kind = TallyKind::part;
  result.selection.MaterialKindMask = KindMask(0);
  result.tables = tables;
  ASSERT_TRUE(site_.Save(result, ArchiveSite::Order("全階")));
  EXPECT_THAT(site_.Lines("SELECT 太さ,SD,メーカー,材質,材質タイプ,[3500mm重量] FROM 部位別本重集計"),
              ElementsAre("16|||0|2|30"));
}

TEST_F(SavedRows, ATallyWithoutFiguresIsNotSaved) {
  TallyResult grid;
  TallyResult floors;
  floors.kind = TallyKind::floor;
  FloorTables listed;
  ListFloors(listed, {1, 2});
  floors.tables = listed;
  TallyResult parts;
  parts.kind = TallyKind::part;
  parts.tables = PartTables();
  for (const TallyResult* result : {&grid, &floors, &parts}) {
    EXPECT_FALSE(site_.Save(*result, ArchiveSite::Order("無し")));
  }
  for (const char* table : kArchiveTables) EXPECT_EQ(site_.Count(table), 0U) << table;
}

TEST_F(SavedRows, AnUnknownDiameterFloorOrPartIsAFaultAndLeavesNothingInPlace) {
  ASSERT_TRUE(site_.Save(TwoFloors(false), ArchiveSite::Order("全階")));
  const auto fault_after = [&](const char* change) {
    const auto bytes = site_.Dump();
    site_.Execute(kScheduleFile, change);
    FloorTally.SouHonsu[1][1] = 3;
    Selection = {};
    const SelectionData before = Selection;
    const auto fault = FaultOf([&] { site_.Load(TallyKind::floor, "全階"); });
    EXPECT_TRUE(FloorTally == FloorTables());
    EXPECT_EQ(Selection, before);
    return fault;
  };
  EXPECT_EQ(fault_after("UPDATE 階部位重量集計 SET 部位=12 WHERE 部位=11"),
            FaultKind::subscript_out_of_range);
  EXPECT_EQ(fault_after("UPDATE 階部位重量集計 SET 部位=11, 太さ=24 WHERE 部位=12"),
            FaultKind::subscript_out_of_range);
  EXPECT_EQ(fault_after("UPDATE 階部位重量集計 SET 太さ=25, 階='屋上' WHERE 太さ=24"),
            FaultKind::type_mismatch);
}

TEST_F(SavedRows, RowsByHandAreReadAsTheyStand) {
  site_.Execute(
      kScheduleFile,
      "INSERT INTO 重量集計名称(作成日,作成時間,重量集計名称,集計区分,溶接閉鎖型,合計値変更,メモ１) "
      "VALUES('20010203','040506','  古い ',0,1,1,'メモ')");
  site_.Execute(
      kScheduleFile,
      "INSERT INTO 重量集計(列番号,太さ,ＳＤ,メーカー,材質,材料,[3500mm],[3500mm重量],[12000mm],定尺重量,"
      "取付重量,圧接,作成日,作成時間) VALUES(0,10,'SD295','',3,15,2,3.92,1,11,8,5,'20010203','040506')");
  site_.Execute(
      kScheduleFile,
      "INSERT INTO 重量集計(列番号,太さ,ＳＤ,メーカー,材質,材料,[4000mm],定尺重量,取付重量,切断,作成日,"
      "作成時間) VALUES(1,13,'','',3,15,7,28,24.5,9,'20010203','040506')");
  const LoadedTally loaded = site_.Load(TallyKind::bulk, "古い");
  const TallyTable& table = loaded.result.Grid();
  EXPECT_EQ(table.BarCount[0][0], 2);
  EXPECT_EQ(table.StockWeight[0][0], Currency::FromDouble(3.92));
  EXPECT_EQ(table.BarCount[0][17], 1);
  EXPECT_EQ(table.StockWeight[0][17], Currency()) << "null";
  EXPECT_EQ(table.TotalStockWeight, Currency::FromInteger(39));
  EXPECT_EQ(table.TotalInstalledWeight, Currency::FromDouble(32.5));
  EXPECT_EQ(table.LossRatePercent, 6.5 / 32.5 * 100.0);
  EXPECT_EQ(table.TotalWeldCount, 5);
  EXPECT_EQ(table.TotalCutCount, 9);
  EXPECT_EQ(loaded.result.selection.MaterialKindMask, KindMask(3));
  EXPECT_EQ(loaded.result.selection.HoopMode, ShapeFilter::left_out);
  EXPECT_TRUE(loaded.result.saved_as_corrected);
  EXPECT_THAT(loaded.memos, ElementsAre("メモ", "", ""));
}

TEST_F(SavedRows, OfInstalledWeightNoneTheLossRateIsNone) {
  TallyResult result = SmallTally();
  result.Grid().InstalledWeightByDia[3] = Currency();
  ASSERT_TRUE(site_.Save(result, ArchiveSite::Order("基礎")));
  const LoadedTally loaded = site_.Load(TallyKind::bulk, "基礎");
  EXPECT_EQ(loaded.result.Grid().LossRatePercent, 0.0);
  EXPECT_EQ(loaded.result.Grid().TotalStockWeight, Currency::FromInteger(135));
}

TEST_F(SavedRows, ALoadThatEndsWithNoDataLeavesAnEmptyGrid) {
  for (const TallyKind kind : {TallyKind::bulk, TallyKind::floor, TallyKind::part}) {
    const SavedTally saved{.key = {"20010101", "000000"}, .kind = kind, .name = "無し", .memos = {}};
    TallyGrid.BarCount[3][5] = 10;
    FloorTally.SouHonsu[3][5] = 10;
    PartTally.TaisaHonsu[3][5] = 10;
    Database site = site_.Open();
    const LoadedTally loaded = LoadTally(site, saved, false);
    EXPECT_FALSE(loaded.has_rows);
    TallyResult expected;
    expected.tables = kind == TallyKind::floor  ? TallyTables(FloorTables())
                      : kind == TallyKind::part ? TallyTables(PartTables())
                                                : TallyTables(TallyTable());
    EXPECT_TRUE(loaded.result.tables == expected.tables);
    EXPECT_TRUE(RowOf(kind).current() == expected.tables) << "the place of the current result";
  }
}

}  // namespace rbt::test
