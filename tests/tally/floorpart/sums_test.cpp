// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/fault_of.h"
#include "tally/floorpart/cell_weights.h"
#include "tally/floorpart/floor_samples.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_tally.h"

namespace rbt {
namespace {

using test::AtPart;
using test::D19Row;
using test::FaultOf;
using test::Kg;
using test::U9Row;

/// D10 (row 0) of stock 3.5 m: a bar weighs 1.96 kg.
BarRow D10Row(std::int32_t bars) {
  BarRow row = D19Row();
  row.diameter_code = 10;
  row.stock_length_m = 3.5;
  row.stock_bars = bars;
  return row;
}

/// D10 of stock 4.0 m: a bar weighs 2.24 kg.
BarRow D10Of4m(std::int32_t bars) {
  BarRow row = D10Row(bars);
  row.stock_length_m = 4.0;
  return row;
}

struct RowOnFloor {
  std::int32_t floor;
  BarRow row;
};

FloorTables FloorsOf(const std::vector<RowOnFloor>& rows, const FloorRules& rules = {}) {
  FloorTables tables;
  for (const auto& [floor, row] : rows) FoldFloorRow(tables, row, floor, rules);
  CloseFloorTally(tables, rules);
  return tables;
}

PartTables PartsOf(const std::vector<BarRow>& rows, const PartRules& rules = {}) {
  PartTables tables;
  for (const BarRow& row : rows) FoldPartRow(tables, row, rules);
  ClosePartTally(tables, rules);
  return tables;
}

constexpr int kGround = 5;  // table index of the foundation
constexpr int kFirst = 6;   // of the first storey
const FloorRules kInstalled{.installed = true};

TEST(RaisedCount, RoundsHalvesUp) {
  EXPECT_EQ(RaisedCount(0, 0.1), 0);
  EXPECT_EQ(RaisedCount(4, 0.1), 4);    // 4.4
  EXPECT_EQ(RaisedCount(5, 0.1), 6);    // 5.5
  EXPECT_EQ(RaisedCount(10, 0.1), 11);  // 11.0
  EXPECT_EQ(RaisedCount(5, -0.1), 5);   // 4.5
  EXPECT_EQ(FaultOf([] { (void)RaisedCount(2000000000, 0.1); }), FaultKind::overflow);
}

TEST(StockKilograms, RoundsTheProductAsADecimalNotAsABinaryFraction) {
  EXPECT_EQ(StockKilograms(0, 0, 1), Kg(2));  // 1.96
  EXPECT_EQ(StockKilograms(0, 0, 0), Kg(0));
  EXPECT_EQ(StockKilograms(1, 12, 50), Kg(473));  // 9.45 x 50 = 472.5, as a double 472.49999999999994
}

TEST(FloorSums, RoundEachCellBeforeAnySum) {
  // Two parts of 2.24 kg: 2 + 2.
  const FloorTables tables = FloorsOf({{1, AtPart(D10Of4m(1), 1)}, {1, AtPart(D10Of4m(1), 2)}});
  EXPECT_EQ(tables.KaiBuiGoukei[kFirst][1], Kg(2));
  EXPECT_EQ(tables.KaiGoukei[kFirst], Kg(4));
  EXPECT_EQ(tables.SouGoukei, Kg(4));
}

TEST(FloorSums, ByDiameterComeFromTheCountOfAllFloorsAndMayDiffer) {
  // Three floors of a 2.24 kg bar are 2 + 2 + 2, together 6.72.
  const FloorTables tables = FloorsOf({{1, D10Of4m(1)}, {2, D10Of4m(1)}, {3, D10Of4m(1)}});
  EXPECT_EQ(tables.SouGoukei, Kg(6));
  EXPECT_EQ(tables.TaisaTeiGoukei[0][1], Kg(7));
  EXPECT_EQ(tables.TaisaGoukei[0], Kg(7));
  EXPECT_EQ(tables.SouTeiGoukei, Kg(7));
  EXPECT_EQ(tables.BuiGoukei[1], Kg(6));
  EXPECT_EQ(tables.KaiTaisaGoukei[kFirst][0], Kg(2));
}

TEST(FloorSums, OfThinBarsAreThePlainSumsOfTheirCells) {
  BarRow thin = U9Row();
  thin.pieces = 3;  // 3 x 0.5 x 1.5 = 2.25 kg
  const FloorTables tables = FloorsOf({{1, thin}, {2, thin}, {3, thin}});
  EXPECT_EQ(tables.SouGoukei, Kg(6));
  EXPECT_EQ(tables.TaisaGoukei[14], Kg(6));
  EXPECT_EQ(tables.SouTeiGoukei, Kg(6));
  EXPECT_EQ(tables.KaiBuiTeiJyuuryo[kFirst][1][14][4], Kg(2));
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][14][4], Kg(2));
}

TEST(FloorSums, InStockModeShowStockWeightInBothCellTables) {
  const FloorTables tables = FloorsOf({{1, D19Row()}});  // 2 bars of 13.5 kg
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][3][5], Kg(27));
  EXPECT_EQ(tables.KaiBuiTeiJyuuryo[kFirst][1][3][5], Kg(27));
  EXPECT_EQ(tables.SouTorituke, Kg(0));
  EXPECT_EQ(tables.KaiTorituke[kFirst], Kg(0));
}

TEST(FloorSums, InInstalledModeShowInstalledWeightAndKeepStockByDiameter) {
  BarRow row = D19Row();
  row.pieces = 3;  // 3 x 2.25 x 3 = 20.25 kg installed, 27 kg in stock
  const FloorTables tables = FloorsOf({{1, row}, {2, row}}, kInstalled);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][3][5], Kg(20));
  EXPECT_EQ(tables.KaiBuiTeiJyuuryo[kFirst][1][3][5], Kg(27));
  EXPECT_EQ(tables.KaiBuiGoukei[kFirst][1], Kg(20));
  EXPECT_EQ(tables.KaiGoukei[kFirst], Kg(20));
  EXPECT_EQ(tables.BuiGoukei[1], Kg(40));
  EXPECT_EQ(tables.SouGoukei, Kg(40));
  EXPECT_EQ(tables.KaiTaisaGoukei[kFirst][3], Kg(20));
  EXPECT_EQ(tables.TaisaTeiGoukei[3][5], Kg(54));
  EXPECT_EQ(tables.TaisaGoukei[3], Kg(54));
  EXPECT_EQ(tables.SouTeiGoukei, Kg(54));
  EXPECT_EQ(tables.KaiBuiTorituke, tables.KaiBuiGoukei);
  EXPECT_EQ(tables.KaiTorituke, tables.KaiGoukei);
  EXPECT_EQ(tables.BuiTorituke, tables.BuiGoukei);
  EXPECT_EQ(tables.TaisaTorituke[3], Kg(40));
  EXPECT_EQ(tables.SouTorituke, Kg(40));
}

TEST(FloorSums, BringTheInstalledWeightOfACellToCurrencyWithEveryRow) {
  BarRow row = D19Row();
  row.diameter_code = 13;
  row.pieces = 1;
  row.cut_length_mm = 1003;  // 0.995 x 1.003 = 0.997985: 0.9980 a row
  FloorTables tables;
  FoldFloorRow(tables, row, 1, kInstalled);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][1][5], Kg(0.9980));
  FoldFloorRow(tables, row, 1, kInstalled);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][1][5], Kg(1.9960));
}

TEST(FloorSums, RoundTheSumOfACellAndItsNextRowNotThatRowAlone) {
  BarRow row = D19Row();
  row.diameter_code = 13;
  row.pieces = 1;
  row.cut_length_mm = 60;  // 0.995 x 0.060 = 0.0597
  FloorTables tables;
  FoldFloorRow(tables, row, 1, kInstalled);
  row.cut_length_mm = 10;  // 0.00995: with the cell 0.06965, halves to even 0.0696; alone 0.0100
  FoldFloorRow(tables, row, 1, kInstalled);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][1][5], Kg(0.0696));
}

TEST(FloorSums, RunFrom3p5To12MetresOrFrom4To13) {
  BarRow longest = D19Row();
  longest.stock_length_m = 13.0;  // 29.2 kg a bar
  BarRow shortest = D19Row();
  shortest.stock_length_m = 3.5;  // 7.88 kg a bar
  const std::vector<RowOnFloor> rows = {{1, longest}, {1, shortest}};
  FloorTables tables = FloorsOf(rows);
  EXPECT_EQ(tables.SouGoukei, Kg(16));
  EXPECT_EQ(tables.SouTeiGoukei, Kg(16));
  EXPECT_EQ(tables.SouHonsu[3][18], 2);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][3][18], Kg(0));
  tables = FloorsOf(rows, {.columns = ColumnsInUse(true)});
  EXPECT_EQ(tables.SouGoukei, Kg(58));
  EXPECT_EQ(tables.SouTeiGoukei, Kg(58));
  EXPECT_EQ(tables.SouHonsu[3][0], 2);
}

TEST(FloorSums, LeaveTheWeightOfColumnsThatAreNotInUseAsTheRowsLeftIt) {
  BarRow thin = U9Row();
  thin.stock_length_m = 13.0;
  thin.pieces = 3;
  const FloorTables tables = FloorsOf({{1, thin}});
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][14][18], Kg(2.25));
  EXPECT_EQ(tables.KaiBuiTeiJyuuryo[kFirst][1][14][18], Kg(0));
  EXPECT_EQ(tables.SouGoukei, Kg(0));
}

TEST(FloorUplift, RaisesEachCellOfDeformedBarsAndSumsThem) {
  // Two parts of 5 bars: 6 + 6 on the floor, not 11.
  const FloorTables tables = FloorsOf(
      {{1, AtPart(D10Row(5), 1)}, {1, AtPart(D10Row(5), 2)}, {2, AtPart(D10Row(5), 2)}}, {.uplift = 0.1});
  EXPECT_EQ(tables.KaiBuiHonsu[1][kFirst][0][0], 6);
  EXPECT_EQ(tables.KaiHonsu[kFirst][0][0], 12);
  EXPECT_EQ(tables.SouHonsu[0][0], 18);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][0][0], Kg(12));  // 6 x 1.96 = 11.76
  EXPECT_EQ(tables.TaisaTeiGoukei[0][0], Kg(35));            // 18 x 1.96 = 35.28
}

TEST(FloorUplift, RaisesThinCellsAndTheirFloorEachFromItsOwnCount) {
  BarRow thin = U9Row();
  thin.stock_bars = 5;
  const FloorTables tables = FloorsOf({{1, AtPart(thin, 1)}, {1, AtPart(thin, 2)}}, {.uplift = 0.1});
  EXPECT_EQ(tables.KaiBuiHonsu[1][kFirst][14][4], 6);
  EXPECT_EQ(tables.KaiBuiHonsu[2][kFirst][14][4], 6);
  EXPECT_EQ(tables.KaiHonsu[kFirst][14][4], 11);
  EXPECT_EQ(tables.SouHonsu[14][4], 11);
}

TEST(FloorUplift, RaisesTheWeightOfThinBarsInEveryMode) {
  for (const bool installed : {false, true}) {
    BarRow thin = U9Row();
    thin.pieces = 20;  // 15 kg
    const FloorTables tables = FloorsOf({{1, thin}}, {.installed = installed, .uplift = 0.1});
    EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][14][4], Kg(17));  // 15 x 1.1 = 16.5
    EXPECT_EQ(tables.KaiBuiTeiJyuuryo[kFirst][1][14][4], Kg(17));
    EXPECT_EQ(tables.TaisaGoukei[14], Kg(17));
  }
}

TEST(FloorUplift, RaisesNoInstalledWeightOfDeformedBars) {
  BarRow row = D19Row();
  row.stock_bars = 10;
  const FloorTables tables = FloorsOf({{1, row}}, {.installed = true, .uplift = 0.1});
  EXPECT_EQ(tables.KaiBuiHonsu[1][kFirst][3][5], 11);
  EXPECT_EQ(tables.KaiBuiJyuuryo[kFirst][1][3][5], Kg(27));
  EXPECT_EQ(tables.KaiBuiTeiJyuuryo[kFirst][1][3][5], Kg(149));  // 11 x 13.5 = 148.5
  EXPECT_EQ(tables.SouGoukei, Kg(27));
}

TEST(FloorUplift, LeavesColumnsThatAreNotInUseUnraisedAndOutOfTheTotalCount) {
  BarRow longest = D19Row();
  longest.stock_length_m = 13.0;
  longest.stock_bars = 10;
  const FloorTables tables = FloorsOf({{1, longest}}, {.uplift = 0.1});
  EXPECT_EQ(tables.KaiBuiHonsu[1][kFirst][3][18], 10);
  EXPECT_EQ(tables.KaiHonsu[kFirst][3][18], 10);
  EXPECT_EQ(tables.SouHonsu[3][18], 0);
}

TEST(FloorUplift, RaisesNoFittings) {
  BarRow row = D19Row();
  row.kind = 4;
  row.welds = row.threads = row.plates = row.cuts = 10;
  const FloorTables tables = FloorsOf({{1, row}}, {.uplift = 0.1});
  for (const FloorFittingName& fitting : kFloorFittings) {
    const FloorFitting& counts = tables.*fitting.tables;
    EXPECT_EQ(counts.Taisa[3], 10) << fitting.name;
    EXPECT_EQ(counts.Kai[kFirst][3], 10) << fitting.name;
    EXPECT_EQ(counts.KaiBui[1][kFirst][3], 10) << fitting.name;
    EXPECT_EQ(counts.KaiSou[kFirst], 10) << fitting.name;
  }
}

TEST(FloorRows, CountFittingsByDiameterFloorAndPart) {
  BarRow row = D19Row();
  row.kind = 4;
  row.welds = 1;
  row.weld_diameter_code = 25;
  row.threads = 2;
  row.plates = 3;
  row.cuts = 4;
  const FloorTables tables = FloorsOf({{0, row}, {1, AtPart(row, 2)}});
  EXPECT_EQ(tables.Assetu.Taisa[5], 2);
  EXPECT_EQ(tables.Assetu.Kai[kGround][5], 1);
  EXPECT_EQ(tables.Assetu.KaiBui[1][kGround][5], 1);
  EXPECT_EQ(tables.Assetu.KaiBui[2][kGround][5], 0);
  EXPECT_EQ(tables.Assetu.KaiSou[kGround], 1);
  EXPECT_EQ(tables.Neji.Taisa[3], 4);
  EXPECT_EQ(tables.Teichaku.Kai[kFirst][3], 3);
  EXPECT_EQ(tables.Setsudan.Taisa[3], 4);
  EXPECT_EQ(tables.Setsudan.KaiBui[2][kFirst][5], 4);
}

TEST(FloorRows, FaultAtFittingsOfNoDeformedDiameterAndNameTheRow) {
  BarRow row = D19Row();
  row.weld_diameter_code = 20;
  FloorTables tables;
  EXPECT_EQ(FaultOf([&] { FoldFloorRow(tables, row, 1, {}); }), std::nullopt);
  row.welds = 0;
  const std::string text = test::FaultTextOf([&] { FoldFloorRow(tables, row, 1, {}); });
  EXPECT_NE(text.find("subscript out of range: 加工テーブル 3頁 12行"), std::string::npos) << text;
  row.welds = std::nullopt;
  row.part = 2;
  row.cuts = 0;
  EXPECT_EQ(FaultOf([&] { FoldFloorRow(tables, row, 1, {}); }), FaultKind::subscript_out_of_range);
}

TEST(FloorRows, FaultAtAFloorOutsideTheTablesAndAtNone) {
  FloorTables tables;
  for (const int floor : {-6, 79}) {
    EXPECT_EQ(FaultOf([&] { FoldFloorRow(tables, D19Row(), floor, {}); }), FaultKind::subscript_out_of_range);
  }
  EXPECT_EQ(FaultOf([&] { FoldFloorRow(tables, D19Row(), std::nullopt, {}); }),
            FaultKind::invalid_use_of_null);
}

TEST(FloorRows, FaultAtACountBeyond32Bits) {
  BarRow row = D19Row();
  row.stock_bars = 2000000000;
  FloorTables tables;
  FoldFloorRow(tables, row, 1, {});
  EXPECT_EQ(FaultOf([&] { FoldFloorRow(tables, row, 1, {}); }), FaultKind::overflow);
}

TEST(PartSums, ShowStockWeightOfDeformedBarsAndInstalledWeightOfThinOnes) {
  const PartTables tables = PartsOf({D19Row(), U9Row()});
  EXPECT_EQ(tables.BuiJyuuryo[1][3][5], Kg(27));
  EXPECT_EQ(tables.BuiJyuuryo[1][14][4], Kg(8));  // 7.5 kg
  EXPECT_EQ(tables.BuiTaisaGoukei[3][1], Kg(27));
  EXPECT_EQ(tables.BuiTaisaGoukei[14][1], Kg(8));
  EXPECT_EQ(tables.BuiGoukei[1], Kg(35));
  EXPECT_EQ(tables.TaisaGoukei[14], Kg(8));
  EXPECT_EQ(tables.SouGoukei, Kg(35));
}

TEST(PartSums, RoundEachCellBeforeAnySum) {
  BarRow longer = D10Of4m(1);
  longer.stock_length_m = 4.5;  // 2.52 kg
  const PartTables tables = PartsOf({D10Of4m(1), longer, AtPart(D10Of4m(1), 5)});
  EXPECT_EQ(tables.BuiTaisaGoukei[0][1], Kg(5));
  EXPECT_EQ(tables.BuiTaisaGoukei[0][5], Kg(2));
  EXPECT_EQ(tables.TaisaGoukei[0], Kg(7));
  EXPECT_EQ(tables.TaisaHonsu[0][1], 2);
  EXPECT_EQ(tables.TaisaHonsu[0][2], 1);
}

TEST(PartSums, LeaveColumnsThatAreNotInUseOutOfEverySum) {
  BarRow longest = D19Row();
  longest.stock_length_m = 13.0;
  const PartTables tables = PartsOf({longest});
  EXPECT_EQ(tables.BuiHonsu[1][3][18], 2);
  EXPECT_EQ(tables.BuiJyuuryo[1][3][18], Kg(58.4));  // as the rows left it
  EXPECT_EQ(tables.TaisaHonsu[3][18], 0);
  EXPECT_EQ(tables.SouGoukei, Kg(0));
  EXPECT_EQ(PartsOf({longest}, {.columns = ColumnsInUse(true)}).SouGoukei, Kg(58));
}

TEST(PartUplift, WorksADeformedCellOutOfTheRaisedCount) {
  const PartTables tables = PartsOf({D10Row(5)}, {.uplift = 0.1});
  EXPECT_EQ(tables.BuiHonsu[1][0][0], 6);
  EXPECT_EQ(tables.BuiJyuuryo[1][0][0], Kg(12));  // 6 x 1.96 = 11.76; 9.8 x 1.1 would be 10.78
  EXPECT_EQ(tables.TaisaHonsu[0][0], 6);
}

TEST(PartUplift, RaisesTheWeightOfThinBarsFromTheirWeight) {
  BarRow thin = U9Row();
  thin.pieces = 20;  // 15 kg
  const PartTables tables = PartsOf({thin}, {.uplift = 0.1});
  EXPECT_EQ(tables.BuiHonsu[1][14][4], 4);         // 4.4
  EXPECT_EQ(tables.BuiJyuuryo[1][14][4], Kg(17));  // 16.5
}

TEST(PartUplift, RaisesFittingsByPartAndByDiameterEachFromItsOwnCount) {
  BarRow row = D19Row();
  row.kind = 4;
  row.welds = row.threads = row.plates = row.cuts = 5;
  const PartTables tables = PartsOf({AtPart(row, 1), AtPart(row, 3)}, {.uplift = 0.1});
  for (const PartFittingName& fitting : kPartFittings) {
    const PartFitting& counts = tables.*fitting.tables;
    EXPECT_EQ(counts.Bui[1][3], 6) << fitting.name;
    EXPECT_EQ(counts.Bui[3][3], 6) << fitting.name;
    EXPECT_EQ(counts.Taisa[3], 11) << fitting.name;
  }
}

TEST(PartUplift, LeavesColumnsThatAreNotInUseUnraised) {
  BarRow longest = D19Row();
  longest.stock_length_m = 13.0;
  longest.stock_bars = 10;
  EXPECT_EQ(PartsOf({longest}, {.uplift = 0.1}).BuiHonsu[1][3][18], 10);
}

TEST(PartRows, FaultAtFittingsOfNoDeformedDiameterAndNameTheRow) {
  BarRow row = D19Row();
  row.weld_diameter_code = 20;
  row.welds = 1;
  PartTables tables;
  const std::string text = test::FaultTextOf([&] { FoldPartRow(tables, row, {}); });
  EXPECT_NE(text.find("subscript out of range: 加工テーブル 3頁 12行"), std::string::npos) << text;
}

}  // namespace
}  // namespace rbt
