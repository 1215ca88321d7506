// SPDX-License-Identifier: MIT
#include "tally/groups/shape_tally.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/text/cp932.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/fault_of.h"
#include "support/schedule_site.h"
#include "tally/engine/stock_engine.h"
#include "tally/groups/shape_samples.h"
#include "tally/rows/bulk_tally.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

using test::AddRowOfEachKind;
using test::FaultOf;
using test::Fields;
using test::Kg;
using test::kHoops;
using test::kNull;
using test::kSevenOf2m;
using test::kUlbon;
using test::Number;
using test::ScheduleSite;
using test::TallyLines;
using test::TallyShapes;
using test::With;

TEST(Keijou_Jyuuryo_Syukei, WorksOutStockForEqualPiecesOfAllPages) {
  ScheduleSite site;
  site.AddRow(
      {{"伸切寸", Number(2000)}, {"合計", Number(3)}, {"伸定尺", Value{12.0}}, {"伸総計", Number(99)}});
  site.AddRow({{"伸切寸", Number(2000)}, {"合計", Number(4)}, {"頁", Number(8)}});
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][1], 4);          // seven pieces together, two a bar of 4.0 m
  EXPECT_EQ(TallyGrid.StockWeight[3][1], Kg(36));  // 2.25 x 4 = 9 kg
  EXPECT_EQ(TallyGrid.InstalledWeight[3][1], Kg(31.5));
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(36));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(32));
  EXPECT_EQ(TallyGrid.LossRatePercent, 4.0 / 32.0 * 100.0);
}

TEST(Keijou_Jyuuryo_Syukei, KeepsPiecesOfOtherDimensionsApart) {
  ScheduleSite site;
  site.AddRow({{"伸切寸", Number(2000)}, {"合計", Number(3)}, {"寸法1", Value{std::string("1000")}}});
  site.AddRow({{"伸切寸", Number(2000)}, {"合計", Number(4)}, {"寸法1", Value{std::string("900")}}});
  TallyShapes();
  // 3 x 2.0 m fit one bar of 6.0 m, 4 x 2.0 m one of 8.0 m
  EXPECT_EQ(TallyGrid.BarCount[3][5], 1);
  EXPECT_EQ(TallyGrid.BarCount[3][9], 1);
}

TEST(Keijou_Jyuuryo_Syukei, TakesDimensionsOfOtherLetterCaseForTheSameWhicheverRowComesFirst) {
  for (const char* letters : {"aaa", "aAA", "AaA", "AAa"}) {
    ScheduleSite site;
    for (std::size_t row = 0; row < 3; ++row) {
      // The third is welded to its own diameter: a group of the store's by itself.
      site.AddRow({{"伸切寸", Number(2000)},
                   {"合計", Number(1)},
                   {"圧接", Number(row == 2 ? 1 : 0)},
                   {"圧接太さ", Number(row == 2 ? 19 : 0)},
                   {"寸法1", Value{std::string(1, letters[row])}}});
    }
    TallyShapes();
    EXPECT_EQ(TallyGrid.BarCount[3][5], 1) << letters;  // three pieces of 2.0 m on a bar of 6.0 m
    EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(14)) << letters;
  }
}

TEST(Keijou_Jyuuryo_Syukei, BringsTheDimensionTextUpToDate) {
  ScheduleSite site;
  site.AddRow({{"寸法1", Value{std::string("1000")}}, {"寸法10", Value{std::string("7")}}});
  TallyShapes();
  EXPECT_EQ(TextOf(site.Work().OpenSnapshot("SELECT 予備5 FROM 加工テーブル").Get("予備5")),
            "1000,,,,,,,,,7,");
}

TEST(Keijou_Jyuuryo_Syukei, KeepsTheScheduleStockByTheSetting) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"伸定尺", Value{6.0}}}));
  site.AddRow(With(kSevenOf2m, {{"伸定尺", Value{5.0}}}));
  Settings.StockCheck = 1;
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 3);  // three pieces a bar of 6.0 m
  EXPECT_EQ(TallyGrid.BarCount[3][3], 4);  // two a bar of 5.0 m
  Settings.StockCheck = 0;
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][1], 7);  // fourteen pieces, two a bar of 4.0 m
}

TEST(Keijou_Jyuuryo_Syukei, TakesThePlusThatWasLastReadForTheScheduleStock) {
  ScheduleSite site;
  site.AddRow({{"伸切寸", Number(3005)}, {"合計", Number(4)}, {"伸定尺", Value{6.0}}});
  SaveSetting("Kakou", "プラス", "長さ", "10");
  Settings.StockCheck = 1;
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 4);  // not read yet: one piece a bar
  ReadPlus();
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
}

TEST(Keijou_Jyuuryo_Syukei, ReadsTheStockLimitsEvenWhereTheScheduleStockStands) {
  ScheduleSite site;
  site.AddRow();
  site.Folder().Put("DATA/STEEL.INI", ToCp932("[加工帳]\r\nD51最大値=99999999999\r\n"));
  Settings.StockCheck = 1;
  EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::overflow);
  TallyLines(1);  // the tally over lines leaves them to the engine, which nobody asks here
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
}

TEST(Keijou_Jyuuryo_Syukei, LeavesScheduleStockOf13MetresOutOfTheTotals) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"伸定尺", Value{13.0}}}));
  Settings.StockCheck = 1;
  Settings.Use13mColumn = 1;  // has no effect here
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][18], 2);
  EXPECT_EQ(TallyGrid.StockWeight[3][18], Kg(58.4));
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(0));
}

TEST(Keijou_Jyuuryo_Syukei, DoesNotCapTheInstalledWeight) {
  ScheduleSite site;
  // 5 pieces of 12.5 m: five bars of 12.0 m
  site.AddRow({{"伸切寸", Number(12500)}, {"合計", Number(5)}});
  Settings.CapInstalledWeight = 1;
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(135));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(141));  // 62.5 m x 2.25 = 140.625
}

TEST(Keijou_Jyuuryo_Syukei, TakesUlbonForEveryKindAndSelection) {
  ScheduleSite site;
  site.AddRow(With(kUlbon, {{"圧接", Number(2)}, {"ネジ数", Number(3)}, {"定着板数", Number(4)}}));
  Selection.MaterialKindMask = KindMask(4);
  Selection.IncludeUlbon = false;
  TallyShapes();
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 15.0);
  EXPECT_EQ(TallyGrid.UlbonWeight[14], 7.5);
  EXPECT_EQ(TallyGrid.UlbonWeldCount[14], 2);
  EXPECT_EQ(TallyGrid.UlbonThreadCount[14], 3);
  EXPECT_EQ(TallyGrid.UlbonPlateCount[14], 4);
  EXPECT_EQ(TallyGrid.TotalWeldCount, 0);
}

TEST(Keijou_Jyuuryo_Syukei, TakesTheKindsOfEveryMask) {
  ScheduleSite site;
  AddRowOfEachKind(site);
  for (int mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    TallyShapes();
    EXPECT_EQ(TallyGrid.TotalThreadCount, mask);
  }
}

TEST(Keijou_Jyuuryo_Syukei, LeavesOutRowsWithoutDiameterShapePiecesOrStockAsTheTallyOverLinesDoes) {
  ScheduleSite site;
  const Fields lacks[] = {
      {},
      {{"合計", Number(0)}},
      {{"合計", Number(-3)}},
      {{"合計", kNull}},
      {{"伸定尺", kNull}},
      {{"形状No", kNull}},
      {{"太さ", Number(0)}},
      {{"太さ", kNull}},
  };
  for (const Fields& lack : lacks) {
    site.AddRow(With({{"ネジ数", Number(1)}, {"切断", Number(1)}, {"部位", Number(5)}}, lack));
  }
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalThreadCount, 1);
  EXPECT_EQ(TallyGrid.TotalCutCount, 1);
  TallyLines(8);
  EXPECT_EQ(TallyGrid.TotalThreadCount, 1);
  EXPECT_EQ(TallyGrid.TotalCutCount, 1);
}

TEST(Keijou_Jyuuryo_Syukei, ShowsAllShapesHoopsOutAndHoopsOnly) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"圧接", Number(1)}}));
  site.AddRow(kHoops);
  const std::int32_t bars[] = {9, 4, 5};
  const std::int32_t welds[] = {10, 1, 9};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.HoopMode = ShapeFilterOf(mode);
    TallyShapes();
    EXPECT_TRUE(RunState.HasHoopRows);
    EXPECT_EQ(TallyGrid.BarCount[3][1], bars[mode]) << mode;
    EXPECT_EQ(TallyGrid.TotalWeldCount, welds[mode]) << mode;
  }
}

TEST(Keijou_Jyuuryo_Syukei, ShowsThePlainRangeWhenHoopsAloneAreAskedForAndThereAreNone) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  Selection.HoopMode = ShapeFilter::alone;
  TallyShapes();
  EXPECT_FALSE(RunState.HasHoopRows);
  EXPECT_EQ(TallyGrid.BarCount[3][1], 4);
}

TEST(Keijou_Jyuuryo_Syukei, DropsTheWeldsOfHoopsByTheSetting) {
  ScheduleSite site;
  site.AddRow(kHoops);
  SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", "0");
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalWeldCount, 0);
  EXPECT_EQ(TallyGrid.BarCount[3][1], 5);
}

TEST(Keijou_Jyuuryo_Syukei, IsNotEndedByASumOfWeldsThatDoNotCount) {
  ScheduleSite site;
  for (int row = 0; row < 2; ++row) site.AddRow(With(kHoops, {{"圧接", Number(2147483647)}}));
  EXPECT_THAT(test::FaultTextOf([] { TallyShapes(); }), testing::HasSubstr("overflow: "));
  SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", "0");
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalWeldCount, 0);
  EXPECT_EQ(TallyGrid.BarCount[3][1], 9);
}

TEST(Keijou_Jyuuryo_Syukei, ShowsAllShapesPlatesOutAndPlatesOnly) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  site.AddRow(With(kHoops, {{"形状No", Number(140)}}));
  const std::int32_t bars[] = {9, 4, 5};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.AnchorPlateMode = ShapeFilterOf(mode);
    TallyShapes();
    EXPECT_TRUE(RunState.HasAnchorPlateRows);
    EXPECT_EQ(TallyGrid.BarCount[3][1], bars[mode]) << mode;
  }
}

TEST(Keijou_Jyuuryo_Syukei, ProbesNothingInStartModes1And3AndThenKnowsNoModes) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  site.AddRow(kHoops);
  site.AddRow(With(kHoops, {{"形状No", Number(140)}}));
  for (const int mode : {1, 3}) {
    Selection.StartMode = TraitsOfStartMode(mode);
    Selection.HoopMode = ShapeFilter::alone;
    Selection.AnchorPlateMode = ShapeFilter::alone;
    TallyShapes();
    EXPECT_FALSE(RunState.HasHoopRows);
    EXPECT_FALSE(RunState.HasAnchorPlateRows);
    EXPECT_EQ(TallyGrid.BarCount[3][1], 14);
  }
}

TEST(Keijou_Jyuuryo_Syukei, TakesCutsOfAllShapesWhenTheRangeHasNoHoops) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"部位", Number(5)}, {"切断", Number(1)}}));
  site.AddRow(With(kSevenOf2m, {{"部位", Number(5)}, {"切断", Number(10)}, {"形状No", Number(30)}}));
  TallyShapes(1, 9);
  EXPECT_EQ(TallyGrid.BarCount[3][1], 4);
  EXPECT_EQ(TallyGrid.TotalCutCount, 11);
  site.AddRow(With(kHoops, {{"形状No", Number(87)}}));
  TallyShapes(1, 29);
  EXPECT_EQ(TallyGrid.TotalCutCount, 11);
  TallyShapes(30, 99);  // with hoops in the range the cuts are those of the range
  EXPECT_EQ(TallyGrid.TotalCutCount, 10);
}

TEST(Keijou_Jyuuryo_Syukei, CountsCutsOfParts5And2OnlyAndAtTheirOwnDiameters) {
  ScheduleSite site;
  struct Cut {
    int part;
    Value weld;
    int cuts;
  };
  for (const Cut& cut :
       {Cut{5, kNull, 1}, Cut{5, Number(0), 2}, Cut{5, Number(25), 4}, Cut{5, Number(13), 8},
        Cut{2, kNull, 16}, Cut{2, Number(25), 32}, Cut{2, Number(13), 64}, Cut{1, kNull, 128}}) {
    site.AddRow({{"部位", Number(cut.part)}, {"圧接太さ", cut.weld}, {"切断", Number(cut.cuts)}});
  }
  TallyShapes();
  EXPECT_EQ(TallyGrid.CutCount[3], 1 + 2 + 8 + 16);  // 部位 5 welded to a thinner bar: its own, the thicker
  EXPECT_EQ(TallyGrid.CutCount[5], 4 + 32);
  EXPECT_EQ(TallyGrid.CutCount[1], 64);  // 部位 2 however thin
  EXPECT_EQ(TallyGrid.TotalCutCount, 127);
}

TEST(Keijou_Jyuuryo_Syukei, FaultsAtACutAtNoDeformedDiameterUnlessThereIsNone) {
  ScheduleSite site;
  site.AddRow({{"部位", Number(2)}, {"圧接太さ", Number(9)}});
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalCutCount, 0);
  site.AddRow({{"部位", Number(2)}, {"圧接太さ", Number(9)}, {"切断", Number(0)}});
  EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::subscript_out_of_range);
}

TEST(Keijou_Jyuuryo_Syukei, CountsThreadsOfEveryKind) {
  ScheduleSite site;
  site.AddRow({{"ネジ数", Number(5)}, {"定着板数", Number(6)}});
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalThreadCount, 5);
  EXPECT_EQ(TallyGrid.TotalPlateCount, 6);
}

TEST(Keijou_Jyuuryo_Syukei, LeavesOutRowsOfNoKind) {
  ScheduleSite site;
  site.AddRow({{"予備2", kNull}});  // "other than Ulbon" does not hold for null
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
}

TEST(Keijou_Jyuuryo_Syukei, AddsOneForASiteWithHighStrengthToWhatTheScreenCounted) {
  ScheduleSite site;
  site.AddRow({{"予備2", Number(3)}, {"形状No", Number(199)}});
  site.AddRow({{"予備2", Number(3)}});
  TallyShapes(300, 400);
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 1);
  TallyGrid.HighStrengthRowCount = 7;
  TallyShapes(300, 400);
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 8);
}

TEST(Keijou_Jyuuryo_Syukei, OfAnEmptyOrCrossedRangeIsZero) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  TallyGrid.StockWarningText = "old";
  TallyShapes(50, 60);
  EXPECT_EQ(TallyGrid, TallyTable());
  TallyShapes(9, 1);
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(Keijou_Jyuuryo_Syukei, EndsWithoutAHalfSumAtStockThatHasNoColumn) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  site.AddRow(With(kSevenOf2m, {{"伸定尺", Value{12.5}}, {"太さ", Number(22)}}));
  TallyShapes();  // the engine does not look at it
  EXPECT_EQ(TallyGrid.BarCount[4][1], 4);
  Settings.StockCheck = 1;
  EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::subscript_out_of_range);
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(Keijou_Jyuuryo_Syukei, EndsAtAThinBarThatIsNoUlbonAndAtPiecesWithoutLength) {
  {
    ScheduleSite site;
    site.AddRow(With(kUlbon, {{"予備2", Number(1)}}));
    EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::field_not_found);
  }
  ScheduleSite site;
  site.AddRow({{"伸切寸", kNull}});
  EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::division_by_zero);
}

TEST(Keijou_Jyuuryo_Syukei, FailsWithAKindMaskThatLeavesTheStatementOpen) {
  ScheduleSite site;
  Selection.MaterialKindMask = KindMask(0);
  EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::database);
}

TEST(Keijou_Jyuuryo_Syukei, FaultsAtATextInAColumnOfNumbersWhereTheTalliesByRowsDo) {
  for (const char* column : {"頁", "行", "部位", "太さ", "圧接太さ", "形状No", "合計", "伸切寸", "伸定尺",
                             "伸総計", "圧接", "ネジ数", "定着板数", "切断", "予備2"}) {
    ScheduleSite site;
    site.AddRow(kSevenOf2m);
    site.PutText(column, "壁");
    EXPECT_EQ(FaultOf([] { Jyuuryo_Syukei(); }), FaultKind::type_mismatch) << column;
    EXPECT_EQ(FaultOf([] { TallyShapes(); }), FaultKind::type_mismatch) << column;
    if (std::string_view(column) == "頁" || std::string_view(column) == "行") continue;  // no line is found
    EXPECT_EQ(FaultOf([] { PKeijou_Jyuuryo_Syukei(1, 1, 1, 1); }), FaultKind::type_mismatch) << column;
  }
}

}  // namespace
}  // namespace rbt
