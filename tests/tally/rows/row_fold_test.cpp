// SPDX-License-Identifier: MIT
#include "tally/rows/row_fold.h"

#include <initializer_list>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "tally/rows/bar_row_samples.h"

namespace rbt {
namespace {

constexpr std::int32_t kUlbonBar = 2;
constexpr std::int32_t kHighStrengthBar = 3;
constexpr std::int32_t kThreadedBar = 4;

using test::D19Hoop;
using test::D19Row;
using test::U9Row;

/// The bulk tally's rules at the defaults of the selection.
RowRules Bulk() {
  RowRules rules;
  rules.counts_without_column_by_choice = CalcChoice::high_strength_with_others;
  return rules;
}

TallyTable Folded(const BarRow& row, const RowRules& rules = Bulk()) {
  TallyTable table;
  FoldRow(table, row, rules);
  return table;
}

FaultKind FaultOf(const BarRow& row, const RowRules& rules = Bulk()) {
  try {
    Folded(row, rules);
  } catch (const Fault& fault) {
    EXPECT_THAT(fault.Where(), testing::StartsWith("加工テーブル 3頁 12行: "));
    return fault.Kind();
  }
  ADD_FAILURE() << "no fault";
  return FaultKind::database;
}

BarRow WithStock(BarRow row, std::optional<double> metres) {
  row.stock_length_m = metres;
  return row;
}

BarRow WithKind(BarRow row, std::optional<std::int32_t> kind) {
  row.kind = kind;
  return row;
}

TEST(FoldRow, PutsADeformedRowIntoTheCellOfItsDiameterAndStock) {
  const TallyTable table = Folded(D19Row());
  TallyTable expected;
  expected.BarCount[3][5] = 2;
  expected.StockWeight[3][5] = Currency::FromInteger(27);  // 2.25 kg/m x 6.0 m = 13.5 kg, two bars
  expected.CutLengthM[3][5] = 12.0;                        // 3.0 m x 4
  EXPECT_EQ(table, expected);
}

TEST(FoldRow, AddsToWhatTheTableHolds) {
  TallyTable table = Folded(D19Row());
  FoldRow(table, D19Row(), Bulk());
  EXPECT_EQ(table.BarCount[3][5], 4);
  EXPECT_EQ(table.StockWeight[3][5], Currency::FromInteger(54));
  EXPECT_EQ(table.CutLengthM[3][5], 24.0);
}

TEST(FoldRow, SkipsARowWithoutDiameter) {
  BarRow row = D19Row();
  row.diameter_code = std::nullopt;
  EXPECT_EQ(Folded(row), TallyTable());
}

TEST(FoldRow, TakesANullAddendAsNothing) {
  for (std::optional<std::int32_t> BarRow::*field :
       {&BarRow::pieces, &BarRow::cut_length_mm, &BarRow::stock_bars}) {
    BarRow row = D19Row();
    row.*field = std::nullopt;
    TallyTable table = Folded(D19Row());
    FoldRow(table, row, Bulk());
    const bool bars_null = field == &BarRow::stock_bars;
    EXPECT_EQ(table.BarCount[3][5], bars_null ? 2 : 4);
    EXPECT_EQ(table.StockWeight[3][5], Currency::FromInteger(bars_null ? 27 : 54));
    EXPECT_EQ(table.CutLengthM[3][5], bars_null ? 24.0 : 12.0);
  }
}

TEST(FoldRow, PutsStockOf13MetresIntoTheLastColumn) {
  const TallyTable table = Folded(WithStock(D19Row(), 13.0));
  EXPECT_EQ(table.BarCount[3][18], 2);
  // 2.25 x 13 = 29.25 kg, 29.2 with three figures (halves to even), two bars
  EXPECT_EQ(table.StockWeight[3][18], Currency::FromDouble(58.4));
  EXPECT_EQ(table.CutLengthM[3][18], 12.0);
}

TEST(FoldRow, WorksOutALengthAsMillimetresByThousandTimesPieces) {
  BarRow row = D19Row();
  row.cut_length_mm = 1001;
  row.pieces = 3;
  EXPECT_EQ(Folded(row).CutLengthM[3][5], 1001 / 1000.0 * 3);
}

TEST(FoldRow, CountsAWeldBetweenTwoDiametersAtTheThicker) {
  BarRow row = D19Row();
  row.welds = 4;
  row.weld_diameter_code = 25;
  EXPECT_EQ(Folded(row).WeldCount[5], 4);
  EXPECT_EQ(Folded(row).WeldCount[3], 0);
  row.weld_diameter_code = 16;
  EXPECT_EQ(Folded(row).WeldCount[3], 4);
  row.weld_diameter_code = 0;
  EXPECT_EQ(Folded(row).WeldCount[3], 4);
  row.weld_diameter_code = std::nullopt;
  EXPECT_EQ(Folded(row).WeldCount[3], 4);
}

TEST(FoldRow, FaultsAtAWeldToAThickerBarOfNoDiameterUnlessThereIsNoWeld) {
  BarRow row = D19Row();
  row.weld_diameter_code = 20;
  EXPECT_EQ(Folded(row).TotalWeldCount, 0);
  row.welds = 0;
  EXPECT_EQ(FaultOf(row), FaultKind::subscript_out_of_range);
}

TEST(FoldRow, LeavesHoopsOutOfBarsAndWeldsButNotOfTheOtherCounts) {
  RowRules rules = Bulk();
  rules.hoops = ShapeFilter::left_out;
  BarRow row = WithKind(D19Hoop(), kThreadedBar);
  row.threads = 5;
  row.plates = 6;
  row.cuts = 7;
  TallyTable expected;
  expected.ThreadCount[3] = 5;
  expected.PlateCount[3] = 6;
  expected.CutCount[3] = 7;
  EXPECT_EQ(Folded(row, rules), expected);
  row.shape = std::nullopt;  // a row without shape is no hoop
  EXPECT_EQ(Folded(row, rules).BarCount[3][5], 2);
}

TEST(FoldRow, DropsOnlyTheWeldsOfHoopsWhenTheyAreNotToBeCounted) {
  RowRules rules = Bulk();
  rules.count_hoop_welds = false;
  EXPECT_EQ(Folded(D19Hoop(), rules).WeldCount[3], 0);
  EXPECT_EQ(Folded(D19Hoop(), rules).StockWeight[3][5], Currency::FromInteger(27));
  BarRow straight = D19Hoop();
  straight.shape = 1;
  EXPECT_EQ(Folded(straight, rules).WeldCount[3], 4);
  EXPECT_EQ(Folded(D19Hoop()).WeldCount[3], 4);
}

TEST(FoldRow, DropsTheWeldsOfHoopsAlsoWhenHoopsAloneAreTallied) {
  RowRules rules = Bulk();
  rules.hoops = ShapeFilter::alone;
  EXPECT_EQ(Folded(D19Hoop(), rules).WeldCount[3], 4);
  rules.count_hoop_welds = false;
  EXPECT_EQ(Folded(D19Hoop(), rules).WeldCount[3], 0);
}

TEST(FoldRow, CountsThreadsOfThreadedBarsOnly) {
  BarRow row = D19Row();
  row.threads = 5;
  for (const std::optional<std::int32_t> kind : {std::optional<std::int32_t>(), {0}, {1}, {3}, {5}}) {
    EXPECT_EQ(Folded(WithKind(row, kind)).ThreadCount[3], 0);
  }
  EXPECT_EQ(Folded(WithKind(row, kThreadedBar)).ThreadCount[3], 5);
}

TEST(FoldRow, CountsPlatesOfEveryKind) {
  BarRow row = D19Row();
  row.plates = 6;
  EXPECT_EQ(Folded(row).PlateCount[3], 6);
}

TEST(FoldRow, CountsACutAtTheRowsOwnDiameter) {
  BarRow row = D19Row();
  row.cuts = 7;
  row.weld_diameter_code = 25;
  EXPECT_EQ(Folded(row).CutCount[3], 7);
  row.part = std::nullopt;
  EXPECT_EQ(Folded(row).CutCount[3], 7);
}

TEST(FoldRow, CountsACutOfPart2AtTheDiameterOfTheWeldHoweverThick) {
  BarRow row = D19Row();
  row.part = 2;
  row.cuts = 7;
  for (const auto& [code, d] : {std::pair{25, 5}, {13, 1}, {0, 3}}) {
    row.weld_diameter_code = code;
    EXPECT_EQ(Folded(row).CutCount[d], 7) << code;
  }
  row.weld_diameter_code = std::nullopt;
  EXPECT_EQ(Folded(row).CutCount[3], 7);
}

TEST(FoldRow, PassesOverACutOfPart2AtNoDeformedDiameter) {
  BarRow row = D19Row();
  row.part = 2;
  row.cuts = 7;
  row.weld_diameter_code = 9;
  TallyTable expected = Folded(D19Row());
  EXPECT_EQ(Folded(row), expected);
}

TEST(FoldRow, CountsHighStrengthRowsHoopsToo) {
  RowRules rules = Bulk();
  rules.hoops = ShapeFilter::left_out;
  EXPECT_EQ(Folded(WithKind(D19Hoop(), kHighStrengthBar), rules).HighStrengthRowCount, 1);
  EXPECT_EQ(Folded(WithKind(D19Row(), kHighStrengthBar)).HighStrengthRowCount, 1);
  EXPECT_EQ(Folded(WithKind(D19Row(), kThreadedBar)).HighStrengthRowCount, 0);
}

TEST(FoldRow, GivesUlbonLengthWeightAndWeldsAndNothingElse) {
  BarRow row = U9Row();
  row.welds = 10;
  row.threads = 1;
  row.plates = 1;
  row.cuts = 1;
  TallyTable expected;
  expected.UlbonLengthM[14] = 15.0;  // 1.5 m x 10
  expected.UlbonWeight[14] = 7.5;    // 0.5 kg/m
  expected.UlbonWeldCount[14] = 10;
  EXPECT_EQ(Folded(row), expected);
}

TEST(FoldRow, TellsD16FromU16ByTheKindAlone) {
  BarRow row = D19Row();
  row.diameter_code = 16;
  EXPECT_EQ(Folded(WithKind(row, 1)).CutLengthM[2][5], 12.0);
  EXPECT_EQ(Folded(WithKind(row, 2)).UlbonLengthM[17], 12.0);
}

TEST(FoldRow, LeavesUlbonOutWhenItIsNotTallied) {
  RowRules rules = Bulk();
  rules.include_ulbon = false;
  EXPECT_EQ(Folded(U9Row(), rules), TallyTable());
}

TEST(FoldRow, AppliesTheHoopRulesToUlbon) {
  BarRow row = U9Row();
  row.shape = kWeldedHoopShape;
  row.welds = 10;
  RowRules rules = Bulk();
  rules.hoops = ShapeFilter::left_out;
  EXPECT_EQ(Folded(row, rules), TallyTable());
  rules.hoops = ShapeFilter::with_others;
  rules.count_hoop_welds = false;
  EXPECT_EQ(Folded(row, rules).UlbonLengthM[14], 15.0);
  EXPECT_EQ(Folded(row, rules).UlbonWeldCount[14], 0);
}

TEST(FoldRow, FaultsAtAThinBarThatIsNoUlbonDiameter) {
  EXPECT_EQ(FaultOf(WithKind(D19Row(), kUlbonBar)), FaultKind::subscript_out_of_range);
  BarRow row = U9Row();
  row.diameter_code = 14;
  row.pieces = std::nullopt;  // also when it would add nothing
  EXPECT_EQ(FaultOf(row), FaultKind::subscript_out_of_range);
}

TEST(FoldRow, TakesAThinBarOfNoUlbonKindAsUlbonWhenItsStockHasAColumn) {
  EXPECT_EQ(Folded(WithKind(U9Row(), std::nullopt)).UlbonLengthM[14], 15.0);
}

TEST(FoldRow, GivesStockOf12p5NoStockWeightItsLengthInTheFirstColumnAndAWarning) {
  TallyTable expected;
  expected.CutLengthM[3][0] = 12.0;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(WithStock(D19Row(), 12.5)), expected);
  EXPECT_EQ(Folded(WithStock(D19Row(), std::nullopt)), expected);
}

TEST(FoldRow, KeepsTheWarningOfTheLastRowOnly) {
  TallyTable table = Folded(WithStock(D19Row(), 0.0));
  BarRow row = WithStock(D19Row(), 0.0);
  row.page = 4;
  row.line = std::nullopt;
  FoldRow(table, row, Bulk());
  FoldRow(table, D19Row(), Bulk());
  EXPECT_EQ(table.StockWarningText, " 4頁の行目の定尺を確認");
}

TEST(FoldRow, CountsWithoutColumnOnlyTheKindsOfTheChoice) {
  BarRow row = WithStock(D19Row(), 0.0);
  row.welds = 1;
  row.plates = 1;
  row.cuts = 1;
  const std::optional<std::int32_t> null_kind;
  constexpr CalcChoice without = CalcChoice::without_high_strength;
  constexpr CalcChoice alone = CalcChoice::high_strength_alone;
  constexpr CalcChoice with_others = CalcChoice::high_strength_with_others;
  struct Case {
    CalcChoice choice = without;
    std::optional<std::int32_t> kind = std::nullopt;
    bool counts = false;
  };
  for (const Case& c : std::initializer_list<Case>{{without, null_kind, true},
                                                   {without, 0, true},
                                                   {without, 1, true},
                                                   {without, 3, false},
                                                   {without, 4, false},
                                                   {without, 5, false},
                                                   {alone, null_kind, false},
                                                   {alone, 1, false},
                                                   {alone, 3, true},
                                                   {alone, 4, false},
                                                   {with_others, null_kind, true},
                                                   {with_others, 1, true},
                                                   {with_others, 3, true},
                                                   {with_others, 4, false},
                                                   {with_others, 5, false}}) {
    RowRules rules = Bulk();
    rules.counts_without_column_by_choice = c.choice;
    const TallyTable table = Folded(WithKind(row, c.kind), rules);
    const int expected = c.counts ? 1 : 0;
    EXPECT_EQ(table.WeldCount[3], expected) << static_cast<int>(c.choice) << ' ' << c.kind.value_or(-1);
    EXPECT_EQ(table.PlateCount[3], expected);
    EXPECT_EQ(table.CutCount[3], expected);
    EXPECT_EQ(table.CutLengthM[3][0], 12.0);  // the length in any case
    EXPECT_EQ(table.HighStrengthRowCount, c.kind == 3 ? 1 : 0);
  }
}

TEST(FoldRow, CountsThreadsOfAnyKindWithoutColumn) {
  BarRow row = WithStock(D19Row(), 0.0);
  row.threads = 5;
  EXPECT_EQ(Folded(row).ThreadCount[3], 5);
}

TEST(FoldRow, AppliesTheHoopRulesToTheWeldsWithoutColumnButKeepsTheLength) {
  RowRules rules = Bulk();
  rules.hoops = ShapeFilter::left_out;
  BarRow row = WithStock(D19Hoop(), 0.0);
  row.cuts = 7;
  TallyTable table = Folded(row, rules);
  EXPECT_EQ(table.WeldCount[3], 0);
  EXPECT_EQ(table.CutCount[3], 7);
  EXPECT_EQ(table.CutLengthM[3][0], 12.0);
  rules.hoops = ShapeFilter::with_others;
  EXPECT_EQ(Folded(row, rules).WeldCount[3], 4);
  rules.count_hoop_welds = false;
  EXPECT_EQ(Folded(row, rules).WeldCount[3], 0);
}

TEST(FoldRow, CountsUlbonWithoutColumnWhetherItIsTalliedOrNotAndWarns) {
  RowRules rules = Bulk();
  rules.include_ulbon = false;
  TallyTable expected;
  expected.UlbonLengthM[14] = 15.0;
  expected.UlbonWeight[14] = 7.5;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(WithStock(U9Row(), 0.0), rules), expected);
}

TEST(FoldRow, LeavesUlbonHoopsWithoutColumnOutButWarns) {
  RowRules rules = Bulk();
  rules.hoops = ShapeFilter::left_out;
  BarRow row = WithStock(U9Row(), 0.0);
  row.shape = kWeldedHoopShape;
  TallyTable expected;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(row, rules), expected);
}

TEST(FoldRow, FaultsAtAThinBarOfNoUlbonKindWithoutColumn) {
  EXPECT_EQ(FaultOf(WithStock(WithKind(U9Row(), 1), 0.0)), FaultKind::subscript_out_of_range);
}

TEST(FoldRow, FaultsAtDiameter0UnlessTheRowIsUlbon) {
  BarRow row = D19Row();
  row.diameter_code = 0;
  EXPECT_EQ(FaultOf(row), FaultKind::subscript_out_of_range);
  TallyTable expected;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(WithKind(row, kUlbonBar)), expected);
}

TEST(FoldRow, FaultsWhenACountLeaves32Bits) {
  const std::int32_t most = std::numeric_limits<std::int32_t>::max();
  for (std::optional<std::int32_t> BarRow::*field :
       {&BarRow::stock_bars, &BarRow::welds, &BarRow::plates, &BarRow::cuts}) {
    TallyTable table;
    BarRow row = D19Row();
    row.*field = most;
    FoldRow(table, row, Bulk());
    try {
      row.*field = 1;
      FoldRow(table, row, Bulk());
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::overflow);
    }
  }
}

/// The rules of the page and line tally and of the tally of registered names.
RowRules Page() {
  RowRules rules;
  rules.length_without_column_in_first_cell = false;
  rules.ulbon_weight_from_all_metres = false;
  return rules;
}

TEST(FoldRowByPage, EqualsTheBulkRuleWhereTheStockHasAColumn) {
  for (const BarRow& row : {D19Row(), D19Hoop(), U9Row()}) EXPECT_EQ(Folded(row, Page()), Folded(row));
}

TEST(FoldRowByPage, KeepsTheLengthOfARowWithoutColumnApart) {
  TallyTable expected;
  expected.LengthWithoutColumnM[3] = 12.0;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(WithStock(D19Row(), 12.5), Page()), expected);
}

TEST(FoldRowByPage, CountsEveryKindWithoutColumn) {
  BarRow row = WithStock(D19Row(), 0.0);
  row.cuts = 7;
  for (const std::int32_t kind : {1, 3, 4, 5}) {
    EXPECT_EQ(Folded(WithKind(row, kind), Page()).CutCount[3], 7) << kind;
  }
}

TEST(FoldRowByPage, GivesARowOfDiameter0TheWarningAlone) {
  BarRow row = D19Row();
  row.diameter_code = 0;
  TallyTable expected;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(row, Page()), expected);
}

TEST(FoldRowByPage, TakesAThinBarWithoutColumnWhateverItsKind) {
  TallyTable expected;
  expected.UlbonLengthM[14] = 15.0;
  expected.UlbonWeight[14] = 7.5;
  expected.StockWarningText = " 3頁の12行目の定尺を確認";
  EXPECT_EQ(Folded(WithStock(WithKind(U9Row(), 1), 0.0), Page()), expected);
}

TEST(FoldRowByPage, PassesOverACutOfPart2AtNoDeformedDiameter) {
  BarRow row = D19Row();
  row.part = 2;
  row.weld_diameter_code = 9;
  row.cuts = 5;
  EXPECT_EQ(Folded(row, Page()), Folded(D19Row()));
}

}  // namespace
}  // namespace rbt
