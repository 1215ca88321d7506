// SPDX-License-Identifier: MIT
#include "tally/rows/page_tally.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/kilograms.h"
#include "support/schedule_site.h"
#include "tally/rows/row_fields.h"
#include "tally/schedule_positions.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

using test::Fields;
using test::kHoop;
using test::kNull;
using test::kUlbon;
using test::Number;
using test::ScheduleSite;
using test::With;

using test::Kg;

void TallyLines(std::int16_t first, std::int16_t last) { PG_Jyuuryo_Syukei(1, first, 1, last); }

TEST(PG_Jyuuryo_Syukei, TakesTheStockOfTheRowsBetweenTwoPositions) {
  ScheduleSite site;
  for (const int bars : {1, 2, 4, 8}) site.AddRow({{"伸総計", Number(bars)}});
  TallyLines(2, 3);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 6);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(81));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(54));
}

TEST(PG_Jyuuryo_Syukei, OfAStartAfterItsEndIsZero) {
  ScheduleSite site;
  site.AddRow();
  site.AddRow();
  TallyLines(2, 1);
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(PG_Jyuuryo_Syukei, OfPositionsThatDoNotExistIsZero) {
  ScheduleSite site;
  site.AddRow();
  PG_Jyuuryo_Syukei(9, 9, 9, 9);
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(PG_Jyuuryo_Syukei, TakesTheLaterOfTwoRowsAtOnePosition) {
  ScheduleSite site;
  site.AddRow({{"伸総計", Number(1)}});
  site.AddRow({{"伸総計", Number(2)}, {"行", Number(1)}});
  site.AddRow({{"伸総計", Number(4)}});
  TallyLines(1, 3);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 6);
}

TEST(PG_Jyuuryo_Syukei, BringsInAllUlbonOfTheSiteWithSlitBarsAlone) {
  ScheduleSite site;
  site.AddRow({{"予備2", Number(5)}});
  site.AddRow({{"予備2", Number(5)}});
  site.AddRow(With(kUlbon, {{"予備3", Number(2)}}));
  Selection.MaterialKindMask = KindMask(8);
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 15.0);
  Selection.MaterialKindMask = KindMask(9);
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 0.0);
}

TEST(PG_Jyuuryo_Syukei, KeepsThreadsPlatesAndCutsOfHoopsThatAreLeftOut) {
  ScheduleSite site;
  site.AddRow(With(
      kHoop, {{"予備2", Number(4)}, {"ネジ数", Number(5)}, {"定着板数", Number(6)}, {"切断", Number(7)}}));
  Selection.HoopMode = ShapeFilter::left_out;
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
  EXPECT_EQ(TallyGrid.TotalWeldCount, 0);
  EXPECT_EQ(TallyGrid.TotalThreadCount, 5);
  EXPECT_EQ(TallyGrid.TotalPlateCount, 6);
  EXPECT_EQ(TallyGrid.TotalCutCount, 7);
}

TEST(PG_Jyuuryo_Syukei, ShowsHoopsAloneWhereThereAreSome) {
  ScheduleSite site;
  site.AddRow();
  site.AddRow(kHoop);
  site.AddRow({{"太さ", Number(22)}});
  Selection.HoopMode = ShapeFilter::alone;
  TallyLines(1, 3);
  EXPECT_TRUE(RunState.HasHoopRows);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  EXPECT_EQ(TallyGrid.BarCount[4][5], 0);
  TallyLines(3, 3);
  EXPECT_FALSE(RunState.HasHoopRows);
  EXPECT_EQ(TallyGrid.BarCount[4][5], 2);
}

TEST(PG_Jyuuryo_Syukei, LooksAtThePlateModeOnlyWhereItFoundPlates) {
  ScheduleSite site;
  site.AddRow();
  site.AddRow({{"形状No", Number(140)}, {"太さ", Number(22)}});
  Selection.AnchorPlateMode = ShapeFilter::alone;
  TallyLines(1, 2);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 0);
  EXPECT_EQ(TallyGrid.BarCount[4][5], 2);
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  Selection.StartMode = TraitsOfStartMode(3);  // asks for nothing
  TallyLines(1, 2);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  EXPECT_FALSE(RunState.HasAnchorPlateRows);
}

TEST(PG_Jyuuryo_Syukei, ShowsStockWithoutColumnInTheWeightsAndInNoCell) {
  ScheduleSite site;
  site.AddRow({{"伸定尺", Value{12.5}}});
  site.AddRow({{"太さ", Number(0)}, {"伸定尺", Value{12.5}}});
  site.AddRow();
  TallyLines(1, 3);
  EXPECT_EQ(TallyGrid.InstalledWeightByDia[3], Kg(54));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(54));
  EXPECT_EQ(TallyGrid.InstalledWeight[3][0], Kg(0));
  EXPECT_EQ(TallyGrid.InstalledWeight[3][5], Kg(27));
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(27));
  EXPECT_EQ(TallyGrid.StockWarningText, " 1頁の2行目の定尺を確認");
}

TEST(PG_Jyuuryo_Syukei, AddsUpTheLengthsWithoutColumn) {
  ScheduleSite site;
  for (int i = 0; i < 2; ++i) site.AddRow({{"伸定尺", Value{12.5}}});  // 12 m each
  TallyLines(1, 2);
  EXPECT_EQ(TallyGrid.InstalledWeightByDia[3], Kg(54));  // 24 m x 2.25
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(54));
}

TEST(PG_Jyuuryo_Syukei, NeverSumsThe13MetreColumnAndNeverCaps) {
  ScheduleSite site;
  site.AddRow({{"伸定尺", Value{13.0}}});
  site.AddRow({{"合計", Number(100)}});
  Settings.Use13mColumn = 1;
  Settings.CapInstalledWeight = 1;
  TallyLines(1, 2);
  EXPECT_EQ(TallyGrid.BarCount[3][18], 2);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(27));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(675));
}

TEST(PG_Jyuuryo_Syukei, FollowsTheSelectionForUlbonWithAColumn) {
  ScheduleSite site;
  site.AddRow(kUlbon);
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.UlbonWeight[14], 7.5);
  Selection.IncludeUlbon = false;
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.UlbonWeight[14], 0.0);
}

TEST(PG_Jyuuryo_Syukei, AddsTheWeightOfUlbonWithoutAColumnRowByRow) {
  ScheduleSite site;
  const auto add = [&](int cut_mm, int pieces, double stock_m) {
    site.AddRow({{"太さ", Number(11)},
                 {"予備2", Number(2)},
                 {"伸切寸", Number(cut_mm)},
                 {"合計", Number(pieces)},
                 {"伸定尺", Value{stock_m}}});
  };
  add(1002, 3, 0.0);
  add(2001, 2, 12.5);
  PG_Jyuuryo_Syukei(1, 1, 1, 2);
  EXPECT_EQ(TallyGrid.UlbonWeight[15], 4.9756800000000005);  // 2.13426 + 2.84142, rounded as they add up
  add(1000, 1, 6.0);                                         // a row with a column weighs all 8.008 m anew
  PG_Jyuuryo_Syukei(1, 1, 1, 3);
  EXPECT_EQ(TallyGrid.UlbonWeight[15], 8.008 * 0.71);
}

TEST(PG_Jyuuryo_Syukei, PassesOverACutAtNoDeformedDiameterAndCountsTheOthers) {
  ScheduleSite site;
  site.AddRow({{"部位", Number(2)}, {"圧接太さ", Number(14)}, {"切断", Number(1)}});
  site.AddRow({{"部位", Number(2)}, {"圧接太さ", Number(14)}, {"切断", Number(2)}, {"伸定尺", Value{0.0}}});
  site.AddRow({{"部位", Number(2)}, {"圧接太さ", Number(25)}, {"切断", Number(4)}});
  TallyLines(1, 3);
  EXPECT_EQ(TallyGrid.CutCount[5], 4);
  EXPECT_EQ(TallyGrid.TotalCutCount, 4);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 4);
}

TEST(PG_Jyuuryo_Syukei, TakesTheFormsOfTheSelection) {
  ScheduleSite site;
  for (int form = 0; form <= 4; ++form) {  // 1, 2, 4, 8 and 16 bars: the sum tells which rows came in
    site.AddRow({{"予備3", Number(form)}, {"伸総計", Number(form == 0 ? 16 : 1 << (form - 1))}});
  }
  for (std::int16_t mask = 1; mask <= 14; ++mask) {
    Selection.MaterialFormMask = FormMask(mask);
    TallyLines(1, 5);
    EXPECT_EQ(TallyGrid.BarCount[3][5], mask);
  }
  for (const std::int16_t all : {std::int16_t{0}, std::int16_t{15}}) {
    Selection.MaterialFormMask = FormMask(all);
    TallyLines(1, 5);
    EXPECT_EQ(TallyGrid.BarCount[3][5], 31) << all;
  }
}

TEST(PG_Jyuuryo_Syukei, TakesTheKindsOfTheSelection) {
  ScheduleSite site;
  const Value kinds[] = {kNull, Number(1), Number(4), Number(3), Number(5)};
  for (int i = 0; i < 5; ++i) {
    site.AddRow({{"予備2", kinds[i]}, {"伸総計", Number(i == 0 ? 16 : 1 << (i - 1))}});
  }
  for (int mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    TallyLines(1, 5);
    EXPECT_EQ(TallyGrid.BarCount[3][5], mask % 2 != 0 ? mask + 16 : mask);  // no kind is deformed
  }
}

TEST(PG_Jyuuryo_Syukei, DropsTheWeldsOfHoopsByTheSetting) {
  ScheduleSite site;
  site.AddRow(kHoop);
  site.AddRow({{"圧接", Number(2)}});
  SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", "0");
  TallyLines(1, 2);
  EXPECT_EQ(TallyGrid.WeldCount[3], 2);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 4);
}

TEST(PG_Jyuuryo_Syukei, DoesNotLookAtTheMaterialChoice) {
  ScheduleSite site;
  site.AddRow({{"伸定尺", Value{0.0}}, {"切断", Number(7)}});
  Selection.MaterialCalcChoice = CalcChoice::high_strength_alone;
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.TotalCutCount, 7);
}

TEST(PG_Jyuuryo_Syukei, CountsNothingForColumnsThatAnOldFileLacks) {
  ScheduleSite site({"ネジ数", "定着板数", "切断"});
  site.AddRow({{"予備2", Number(4)}});
  TallyLines(1, 1);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  EXPECT_EQ(TallyGrid.TotalThreadCount + TallyGrid.TotalPlateCount + TallyGrid.TotalCutCount, 0);
}

TEST(PG_Jyuuryo_Syukei, EqualsTheRowsOfItsStatementWhereNoModeIsSet) {
  Selection = SelectionData();
  EXPECT_EQ(PageStatement(Selection, {3, 40}, true, true),
            "SELECT * FROM 加工テーブル WHERE 太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL "
            "AND 行No Between 3 AND 40 ");
}

TEST(LineNumberAt, IsZeroForAPositionThatDoesNotExistAndForARowWithoutNumber) {
  ScheduleSite site;
  site.AddRow({{"行No", Number(70)}});
  EXPECT_EQ(LineNumberAt(site.Work(), {1, 1}), 70);
  EXPECT_EQ(LineNumberAt(site.Work(), {1, 2}), 0);
  site.AddRow({{"行No", kNull}, {"行", Number(1)}});  // the later row of the position
  EXPECT_EQ(LineNumberAt(site.Work(), {1, 1}), 0);
}

TEST(WholePositionRange, GoesFromTheFirstToTheLastRowByItsNumber) {
  for (const TallyKind kind : {TallyKind::page, TallyKind::page_shape}) {
    ScheduleSite site;
    EXPECT_EQ(WholePositionRange(site.Work(), kind), std::nullopt);
    site.AddRow({{"行No", Number(9)}, {"頁", Number(4)}, {"行", Number(2)}});
    site.AddRow({{"行No", Number(3)}, {"頁", Number(1)}, {"行", Number(5)}});
    site.AddRow({{"行No", Number(5)}, {"頁", kNull}, {"行", kNull}});
    EXPECT_EQ(WholePositionRange(site.Work(), kind), (PositionRange{{1, 5}, {4, 2}}));
  }
}

TEST(WholePositionRange, OfThePageTallyTakesRowsOfOneNumberByPageAndLine) {
  ScheduleSite site;
  for (const auto& [page, line] : {std::pair(2, 3), std::pair(4, 1), std::pair(2, 1), std::pair(1, 9)}) {
    site.AddRow({{"行No", Number(7)}, {"頁", Number(page)}, {"行", Number(line)}});
  }
  EXPECT_EQ(WholePositionRange(site.Work(), TallyKind::page), (PositionRange{{1, 9}, {4, 1}}));
  EXPECT_EQ(WholePositionRange(site.Work(), TallyKind::page_shape), (PositionRange{{2, 3}, {1, 9}}));
}

TEST(WholePositionRange, TakesANullPageOrLineAtAnEndAsZero) {
  ScheduleSite site;
  site.AddRow({{"行No", Number(1)}, {"頁", kNull}, {"行", Number(5)}});
  site.AddRow({{"行No", Number(2)}, {"頁", Number(3)}, {"行", kNull}});
  EXPECT_EQ(WholePositionRange(site.Work(), TallyKind::page), (PositionRange{{0, 5}, {3, 0}}));
}

TEST(WholeShapeRange, GoesFromTheSmallestToTheLargestShape) {
  ScheduleSite site;
  EXPECT_EQ(WholeShapeRange(site.Work()).first, 0);
  for (const int shape : {5, 87, 138}) site.AddRow({{"形状No", Number(shape)}});
  site.AddRow({{"形状No", kNull}});
  EXPECT_EQ(WholeShapeRange(site.Work()).first, 5);
  EXPECT_EQ(WholeShapeRange(site.Work()).last, 138);
  EXPECT_EQ(WholeShapeRange(site.Work(), LineRange{2, 2}).first, 87);
  EXPECT_EQ(WholeShapeRange(site.Work(), LineRange{2, 2}).last, 87);
}

}  // namespace
}  // namespace rbt
