// SPDX-License-Identifier: MIT
#include "tally/rows/bulk_tally.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/kilograms.h"
#include "support/schedule_site.h"
#include "tally/rows/row_fields.h"
#include "tally/selection.h"
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

TEST(Jyuuryo_Syukei, TalliesTheWholeSite) {
  ScheduleSite site;
  site.AddRow({{"圧接", Number(3)}, {"切断", Number(5)}, {"定着板数", Number(2)}});
  site.AddRow({{"太さ", Number(25)},
               {"伸定尺", Value{12.0}},
               {"伸切寸", Number(11800)},
               {"伸総計", Number(10)},
               {"合計", Number(10)},
               {"予備2", Number(4)},
               {"ネジ数", Number(20)}});
  site.AddRow(kUlbon);
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  EXPECT_EQ(TallyGrid.BarCount[5][17], 10);
  EXPECT_EQ(TallyGrid.StockWeight[5][17], Kg(478));         // 3.98 x 12 = 47.76: 47.8 x 10
  EXPECT_EQ(TallyGrid.InstalledWeight[5][17], Kg(469.64));  // 118 m x 3.98
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(27 + 478));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(27 + 470));
  EXPECT_EQ(TallyGrid.LossRatePercent, 8.0 / 497.0 * 100.0);
  EXPECT_EQ(TallyGrid.TotalWeldCount, 3);
  EXPECT_EQ(TallyGrid.TotalCutCount, 5);
  EXPECT_EQ(TallyGrid.TotalPlateCount, 2);
  EXPECT_EQ(TallyGrid.TotalThreadCount, 20);
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 15.0);
  EXPECT_EQ(TallyGrid.UlbonWeight[14], 7.5);
  EXPECT_EQ(TallyGrid.StockWarningText, "");
}

TEST(Jyuuryo_Syukei, OfAnEmptyScheduleIsAllZero) {
  ScheduleSite site;
  TallyGrid.WeldCount[3] = 7;
  TallyGrid.UlbonPlateCount[12] = 7;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid, TallyTable());
  EXPECT_FALSE(RunState.HasHoopRows);
  EXPECT_FALSE(RunState.HasAnchorPlateRows);
}

TEST(Jyuuryo_Syukei, LeavesOutRowsWithoutDiameterStockOrCount) {
  ScheduleSite site;
  for (const char* column : {"太さ", "伸定尺", "本数"}) site.AddRow({{column, kNull}});
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(Jyuuryo_Syukei, CountsRowsOfNoFormWhenNoFormIsChosen) {
  ScheduleSite site;
  site.AddRow({{"予備3", Number(0)}});
  site.AddRow({{"予備3", kNull}});
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 4);
  Selection.MaterialFormMask = FormMask(7);
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 0);
}

TEST(Jyuuryo_Syukei, KeepsUlbonForEveryKindAndLetsTheSelectionDecide) {
  ScheduleSite site;
  site.AddRow(kUlbon);
  for (int mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    Selection.IncludeUlbon = true;
    Jyuuryo_Syukei();
    EXPECT_EQ(TallyGrid.UlbonWeight[14], 7.5) << mask;
    Selection.IncludeUlbon = false;
    Jyuuryo_Syukei();
    EXPECT_EQ(TallyGrid.UlbonWeight[14], 0.0) << mask;
  }
}

TEST(Jyuuryo_Syukei, ChoosesTheKindsOfTheMask) {
  ScheduleSite site;
  const Value kinds[] = {Number(1), Number(4), Number(3), Number(5)};
  for (int bit = 0; bit < 4; ++bit) site.AddRow({{"予備2", kinds[bit]}, {"伸総計", Number(1 << bit)}});
  site.AddRow({{"予備2", kNull}, {"伸総計", Number(16)}});
  site.AddRow({{"予備2", Number(0)}, {"伸総計", Number(32)}});
  for (int mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    Jyuuryo_Syukei();
    EXPECT_EQ(TallyGrid.BarCount[3][5], mask + ((mask & 1) != 0 ? 48 : 0)) << mask;
    EXPECT_EQ(TallyGrid.HighStrengthRowCount, (mask & 4) != 0 ? 1 : 0) << mask;
  }
}

TEST(Jyuuryo_Syukei, BringsInUlbonOfAnyFormWithSlitBarsAlone) {
  ScheduleSite site;
  site.AddRow(With(kUlbon, {{"予備3", Number(4)}}));
  site.AddRow(With(kUlbon, {{"伸定尺", kNull}, {"本数", kNull}}));
  Selection.MaterialFormMask = FormMask(1);
  Selection.MaterialKindMask = KindMask(9);
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 0.0);
  Selection.MaterialKindMask = KindMask(8);
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 30.0);
  EXPECT_EQ(TallyGrid.StockWarningText, " 1頁の2行目の定尺を確認");
}

TEST(Jyuuryo_Syukei, ShowsAllRowsHoopsOutAndHoopsOnly) {
  ScheduleSite site;
  site.AddRow({{"圧接", Number(1)}});
  site.AddRow(kHoop);
  const std::int32_t bars[] = {4, 2, 2};
  const std::int32_t welds[] = {5, 1, 4};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.HoopMode = ShapeFilterOf(mode);
    Jyuuryo_Syukei();
    EXPECT_TRUE(RunState.HasHoopRows);
    EXPECT_EQ(TallyGrid.BarCount[3][5], bars[mode]) << mode;
    EXPECT_EQ(TallyGrid.TotalWeldCount, welds[mode]) << mode;
  }
}

TEST(Jyuuryo_Syukei, KeepsThreadsPlatesAndCutsOfHoopsThatAreLeftOut) {
  ScheduleSite site;
  site.AddRow(With(
      kHoop, {{"予備2", Number(4)}, {"ネジ数", Number(5)}, {"定着板数", Number(6)}, {"切断", Number(7)}}));
  Selection.HoopMode = ShapeFilter::left_out;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
  EXPECT_EQ(TallyGrid.TotalThreadCount, 5);
  EXPECT_EQ(TallyGrid.TotalPlateCount, 6);
  EXPECT_EQ(TallyGrid.TotalCutCount, 7);
}

TEST(Jyuuryo_Syukei, ShowsEverythingWhenHoopsAloneAreAskedForAndThereAreNone) {
  ScheduleSite site;
  site.AddRow();
  Selection.HoopMode = ShapeFilter::alone;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
}

TEST(Jyuuryo_Syukei, DropsOnlyTheWeldsOfHoopsByTheSetting) {
  ScheduleSite site;
  site.AddRow(kHoop);
  SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", "0");
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalWeldCount, 0);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(27));
  for (const char* counted : {"1", "2", "-1"}) {
    SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", counted);
    Jyuuryo_Syukei();
    EXPECT_EQ(TallyGrid.TotalWeldCount, 4) << counted << ": only 0 drops them";
  }
}

TEST(Jyuuryo_Syukei, FaultsAtASettingThatIsNoNumber) {
  ScheduleSite site;
  SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", "はい");
  try {
    Jyuuryo_Syukei();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::type_mismatch);
  }
}

TEST(Jyuuryo_Syukei, ShowsAllRowsPlatesOutAndPlatesOnly) {
  ScheduleSite site;
  for (const int shape : {138, 139, 147, 176, 177}) {
    site.AddRow({{"形状No", Number(shape)}, {"伸総計", Number(1)}});
  }
  site.AddRow({{"形状No", kNull}, {"伸総計", Number(10)}});
  site.AddRow({{"形状No", Number(0)}, {"伸総計", Number(20)}});
  const std::int32_t bars[] = {35, 32, 3};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.AnchorPlateMode = ShapeFilterOf(mode);
    Jyuuryo_Syukei();
    EXPECT_TRUE(RunState.HasAnchorPlateRows);
    EXPECT_EQ(TallyGrid.BarCount[3][5], bars[mode]) << mode;
  }
}

TEST(Jyuuryo_Syukei, ProbesOnlyTheRowsOfTheSelection) {
  ScheduleSite site;
  site.AddRow(With(kHoop, {{"予備3", Number(4)}}));
  site.AddRow({{"形状No", Number(140)}, {"予備2", Number(4)}});
  Selection.MaterialFormMask = FormMask(4);
  Jyuuryo_Syukei();
  EXPECT_FALSE(RunState.HasHoopRows);
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
  Selection.MaterialKindMask = KindMask(1);
  Jyuuryo_Syukei();
  EXPECT_FALSE(RunState.HasAnchorPlateRows);
}

TEST(Jyuuryo_Syukei, ProbesNothingInStartModes1And3) {
  ScheduleSite site;
  site.AddRow(kHoop);
  site.AddRow({{"形状No", Number(140)}});
  for (const int mode : {-1, 0, 1, 2, 3, 4}) {
    Selection.StartMode = TraitsOfStartMode(mode);
    Selection.HoopMode = ShapeFilter::alone;
    Jyuuryo_Syukei();
    const bool probes = mode != 1 && mode != 3;
    EXPECT_EQ(RunState.HasHoopRows, probes) << mode;
    EXPECT_EQ(RunState.HasAnchorPlateRows, probes) << mode;
    EXPECT_EQ(TallyGrid.BarCount[3][5], probes ? 2 : 4) << mode;
  }
}

TEST(Jyuuryo_Syukei, ShowsZeroForASiteOf13MetreStockUnlessTheColumnIsOn) {
  ScheduleSite site;
  site.AddRow({{"伸定尺", Value{13.0}}});
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][18], 2);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(0));
  Settings.Use13mColumn = 1;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(58));  // 29.2 x 2
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(27));
}

TEST(Jyuuryo_Syukei, CapsTheInstalledWeightByTheSetting) {
  ScheduleSite site;
  site.AddRow({{"合計", Number(100)}});
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(675));
  Settings.CapInstalledWeight = 1;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(27));
}

TEST(Jyuuryo_Syukei, TurnsTheColumnAndTheCapOnBy1Alone) {
  ScheduleSite site;
  site.AddRow({{"伸定尺", Value{13.0}}});
  site.AddRow({{"合計", Number(100)}});
  Settings.Use13mColumn = 2;
  Settings.CapInstalledWeight = 2;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(27));       // 2 bars of 6 m, none of 13 m
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(675));  // 100 x 3 m x 2.25, not cut to the 27
}

TEST(Jyuuryo_Syukei, WarnsOfStockOf12p5AndPutsItsLengthIntoTheFirstColumn) {
  ScheduleSite site;
  site.AddRow({{"伸定尺", Value{12.5}}});
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.StockWarningText, " 1頁の1行目の定尺を確認");
  EXPECT_EQ(TallyGrid.InstalledWeight[3][0], Kg(27));
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
}

TEST(Jyuuryo_Syukei, CountsAnUlbonRowOfStock0AndWarns) {
  ScheduleSite site;
  site.AddRow(With(kUlbon, {{"伸定尺", Value{0.0}}}));
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.UlbonWeight[14], 7.5);
  EXPECT_EQ(TallyGrid.StockWarningText, " 1頁の1行目の定尺を確認");
}

TEST(Jyuuryo_Syukei, CountsNothingForColumnsThatAnOldFileLacks) {
  ScheduleSite site({"ネジ数", "定着板数", "切断", "圧接太さ"});
  site.AddRow({{"圧接", Number(3)}, {"部位", Number(2)}, {"予備2", Number(4)}});
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 2);
  EXPECT_EQ(TallyGrid.WeldCount[3], 3);
  EXPECT_EQ(TallyGrid.TotalThreadCount + TallyGrid.TotalPlateCount + TallyGrid.TotalCutCount, 0);
}

TEST(Jyuuryo_Syukei, FaultsAtAMissingColumnThatEveryFileHas) {
  ScheduleSite site({"伸総計"});
  site.AddRow();
  try {
    Jyuuryo_Syukei();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::field_not_found);
  }
}

TEST(Jyuuryo_Syukei, EndsAtARowOfDiameter0AndLeavesNoHalfSum) {
  ScheduleSite site;
  site.AddRow();
  Jyuuryo_Syukei();
  site.AddRow({{"太さ", Number(0)}});
  try {
    Jyuuryo_Syukei();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::subscript_out_of_range);
    EXPECT_THAT(fault.what(), testing::HasSubstr("加工テーブル 1頁 2行"));
  }
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST(Jyuuryo_Syukei, AddsTheSpiralsOfTheCompanionFile) {
  ScheduleSite site;
  site.AddSpiral(Number(1), Number(10), 10.4);
  site.AddSpiral(Number(1), Number(10), 10.2);
  site.AddSpiral(Number(2), Number(9), 5.25);
  site.AddSpiral(Number(3), Number(13), 7.5);
  site.AddSpiral(kNull, Number(13), 100.0);
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.SpiralWeight[0], Kg(21));
  EXPECT_EQ(TallyGrid.SpiralWeight[1], Kg(5));
  EXPECT_EQ(TallyGrid.SpiralWeight[2], Kg(8));
  EXPECT_EQ(TallyGrid.SpiralUlbonByDia[14], Kg(5.25));
  EXPECT_EQ(TallyGrid.SpiralKinds, SpiralMask(7));
  EXPECT_EQ(TallyGrid.SpiralTotal, Kg(34));
  Selection.AnchorPlateMode = ShapeFilter::alone;
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.SpiralTotal, Kg(0));
}

TEST(Jyuuryo_Syukei, HasNoSpiralsWhereTheCompanionFileHasNoSuchTable) {
  ScheduleSite site;
  site.AddRow();
  Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.SpiralKinds, SpiralMask(0));
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(27));
}

TEST(Jyuuryo_Syukei, FaultsWithoutTheCompanionFile) {
  ScheduleSite site;
  std::filesystem::remove(site.Folder().Data("HIROI001.mdb"));
  EXPECT_THROW(Jyuuryo_Syukei(), Fault);
}

TEST(Jyuuryo_Syukei, AFaultLeavesTheGridEmpty) {
  ScheduleSite site;
  site.AddRow();
  Jyuuryo_Syukei();
  EXPECT_NE(TallyGrid, TallyTable());
  std::filesystem::remove(site.Folder().Data("HIROI001.mdb"));
  EXPECT_THROW(Jyuuryo_Syukei(), Fault);
  EXPECT_EQ(TallyGrid, TallyTable());
}

}  // namespace
}  // namespace rbt
