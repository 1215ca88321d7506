// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/fault_of.h"
#include "support/schedule_site.h"
#include "tally/groups/shape_samples.h"
#include "tally/groups/shape_tally.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

using test::AddRowOfEachKind;
using test::FaultOf;
using test::Kg;
using test::kHoops;
using test::kSevenOf2m;
using test::kUlbon;
using test::Number;
using test::ScheduleSite;
using test::TallyLines;
using test::TallyShapes;
using test::With;

TEST(PKeijou_Jyuuryo_Syukei, TakesTheKindsOfEveryMaskBut11) {
  ScheduleSite site;
  AddRowOfEachKind(site);
  for (int mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    TallyLines(5);
    EXPECT_EQ(TallyGrid.TotalThreadCount, mask == 11 ? 13 : mask);
  }
}

TEST(PKeijou_Jyuuryo_Syukei, LeavesOutThePlateShapesAloneWhenPlatesAreOut) {
  ScheduleSite site;
  int others = 0;
  for (int shape = 136; shape <= 179; ++shape) {
    const bool plate = shape == 138 || shape == 140 || (shape >= 143 && shape <= 147) || shape == 161 ||
                       (shape >= 164 && shape <= 169) || shape == 175 || shape == 176;
    if (!plate) ++others;
    site.AddRow({{"形状No", Number(shape)}, {"ネジ数", Number(1)}});
  }
  Selection.AnchorPlateMode = ShapeFilter::left_out;
  TallyLines(44);
  EXPECT_EQ(TallyGrid.TotalThreadCount, others);
  TallyShapes();
  EXPECT_EQ(TallyGrid.TotalThreadCount, others);
  Selection.AnchorPlateMode = ShapeFilter::alone;
  TallyLines(44);
  EXPECT_EQ(TallyGrid.TotalThreadCount, 44 - others);
}

TEST(PKeijou_Jyuuryo_Syukei, TakesTheLinesBetweenTwoPositions) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  site.AddRow(kSevenOf2m);
  site.AddRow(With(kSevenOf2m, {{"太さ", Number(22)}}));
  site.AddRow(With(kUlbon, {}));
  TallyLines(2);
  EXPECT_EQ(TallyGrid.BarCount[3][1], 7);
  EXPECT_EQ(TallyGrid.BarCount[4][1], 0);
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 0.0);
  TallyLines(4);
  EXPECT_EQ(TallyGrid.BarCount[4][1], 4);
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 15.0);
}

TEST(PKeijou_Jyuuryo_Syukei, LeavesOutUlbonWithoutPiecesOrBars) {
  ScheduleSite site;
  site.AddRow(kUlbon);
  site.AddRow(With(kUlbon, {{"合計", Number(-3)}}));
  site.AddRow(With(kUlbon, {{"本数", Number(0)}}));
  TallyLines(3);
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 15.0);
  TallyShapes();  // the tally over all lines does not look at 本数
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 30.0);
}

TEST(PKeijou_Jyuuryo_Syukei, OfPositionsThatDoNotExistIsZero) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  PKeijou_Jyuuryo_Syukei(7, 1, 8, 1);
  EXPECT_EQ(TallyGrid, TallyTable());
  PKeijou_Jyuuryo_Syukei(1, 1, 1, 2);  // from line 1 to line number 0
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(PKeijou_Jyuuryo_Syukei, ShowsHighStrengthInsteadOfThreadedForMask11) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"予備2", Number(4)}}));
  site.AddRow(With(kSevenOf2m, {{"予備2", Number(3)}, {"太さ", Number(22)}}));
  Selection.MaterialKindMask = KindMask(11);
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][1], 4);
  EXPECT_EQ(TallyGrid.BarCount[4][1], 0);
  TallyLines(2);
  EXPECT_EQ(TallyGrid.BarCount[3][1], 0);
  EXPECT_EQ(TallyGrid.BarCount[4][1], 4);
}

TEST(PKeijou_Jyuuryo_Syukei, ShowsNothingWhenHoopsAloneAreAskedForAndThereAreNone) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  Selection.HoopMode = ShapeFilter::alone;
  TallyLines(1);
  EXPECT_EQ(TallyGrid, TallyTable());
  TallyShapes();
  EXPECT_EQ(TallyGrid.BarCount[3][1], 4);
}

TEST(PKeijou_Jyuuryo_Syukei, FindsNoHoopsWhereTheyAreLeftOut) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  site.AddRow(kHoops);
  const bool found[] = {true, false, true};
  const std::int32_t bars[] = {9, 4, 5};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.HoopMode = ShapeFilterOf(mode);
    TallyLines(2);
    EXPECT_EQ(RunState.HasHoopRows, found[mode]) << mode;
    EXPECT_EQ(TallyGrid.BarCount[3][1], bars[mode]) << mode;
  }
}

TEST(PKeijou_Jyuuryo_Syukei, TakesThePlateModeWhetherPlatesWereFoundOrNot) {
  ScheduleSite site;
  site.AddRow(kSevenOf2m);
  site.AddRow(With(kHoops, {{"形状No", Number(140)}}));
  Selection.StartMode = TraitsOfStartMode(1);
  const std::int32_t bars[] = {9, 4, 5};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.AnchorPlateMode = ShapeFilterOf(mode);
    TallyLines(2);
    EXPECT_FALSE(RunState.HasAnchorPlateRows);
    EXPECT_EQ(TallyGrid.BarCount[3][1], bars[mode]) << mode;
  }
}

TEST(PKeijou_Jyuuryo_Syukei, TakesAShapeOf0ForAPlateInItsProbeAlone) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"形状No", Number(0)}}));
  TallyLines(1);
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
  Selection.AnchorPlateMode = ShapeFilter::alone;
  TallyLines(1);
  EXPECT_EQ(TallyGrid, TallyTable());
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
}

TEST(PKeijou_Jyuuryo_Syukei, TakesThe13MetreWeightFromTheNextRowAndFaultsForD51) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"伸定尺", Value{13.0}}}));
  Settings.StockCheck = 1;
  TallyLines(1);
  EXPECT_EQ(TallyGrid.BarCount[3][18], 2);
  EXPECT_EQ(TallyGrid.StockWeight[3][18], Kg(21.2));  // D22 at 3.5 m: 10.6 kg
  site.AddRow(With(kSevenOf2m, {{"伸定尺", Value{13.0}}, {"太さ", Number(51)}}));
  EXPECT_EQ(FaultOf([] { TallyLines(2); }), FaultKind::subscript_out_of_range);
}

TEST(PKeijou_Jyuuryo_Syukei, ReadsThePlusItself) {
  ScheduleSite site;
  site.AddRow({{"伸切寸", Number(3005)}, {"合計", Number(4)}, {"伸定尺", Value{6.0}}});
  SaveSetting("Kakou", "プラス", "長さ", "10");
  Settings.StockCheck = 1;
  TallyLines(1);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
}

TEST(PKeijou_Jyuuryo_Syukei, LeavesTheDimensionTextAndTheHighStrengthCountAlone) {
  ScheduleSite site;
  site.AddRow(With(kSevenOf2m, {{"予備2", Number(3)}, {"寸法1", Value{std::string("5")}}}));
  TallyGrid.HighStrengthRowCount = 7;
  TallyLines(1);
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 7);
  EXPECT_TRUE(IsNull(site.Work().OpenSnapshot("SELECT 予備5 FROM 加工テーブル").Get("予備5")));
}

TEST(PKeijou_Jyuuryo_Syukei, LimitsTheCutsToItsLines) {
  ScheduleSite site;
  site.AddRow({{"部位", Number(5)}, {"切断", Number(1)}});
  site.AddRow({{"部位", Number(2)}, {"切断", Number(2)}, {"圧接太さ", Number(25)}});
  site.AddRow({{"部位", Number(5)}, {"切断", Number(4)}});
  TallyLines(2);
  EXPECT_EQ(TallyGrid.CutCount[3], 1);
  EXPECT_EQ(TallyGrid.CutCount[5], 2);
  EXPECT_EQ(TallyGrid.TotalCutCount, 3);
}

}  // namespace
}  // namespace rbt
