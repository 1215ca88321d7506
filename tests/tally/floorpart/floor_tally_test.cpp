// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_tally.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/config/settings.h"
#include "support/fault_of.h"
#include "tally/floorpart/floor_samples.h"

namespace rbt {
namespace {

using test::FaultOf;
using test::Fields;
using test::FloorSite;
using test::Kg;
using test::kNull;
using test::Number;
using testing::ElementsAre;

const Fields kThin = {{"太さ", Number(9)},
                      {"予備2", Number(2)},
                      {"合計", Number(10)},
                      {"伸切寸", Number(1500)},
                      {"伸定尺", Value{5.5}}};
const Fields kHoop = {{"形状No", Number(87)}, {"圧接", Number(4)}};

void TallyFloors(std::int16_t start, std::int16_t end, std::int16_t lowest = 1, std::int16_t specials = 0) {
  Selection.KaiStart = start;
  Selection.KaiEnd = end;
  Selection.KaiMin = lowest;
  Selection.TokubetuMask = SpecialMask(specials);
  Kai_Jyuuryo_Syukei();
}

std::int32_t Bars(int floor) {
  std::int32_t bars = 0;
  for (int r = 0; r < kDiameterRows; ++r) {
    for (int c = 0; c < kStockColumns; ++c) {
      bars += std::as_const(FloorTally.KaiHonsu)[FloorIndex(floor)][r][c];
    }
  }
  return bars;
}

std::vector<std::string> ListedLabels() {
  std::vector<std::string> labels;
  for (const ListRow& row : FloorTally.KaiGyou) labels.push_back(row.label);
  return labels;
}

TEST(Kai_Jyuuryo_Syukei, ListsEveryFloorOfTheRangeWithZerosWhereItHoldsNothing) {
  FloorSite site;
  site.Add(1);
  site.Add(5, {{"部位", Number(3)}});
  TallyFloors(1, 5);
  EXPECT_THAT(ListedLabels(), ElementsAre("1階", "2階", "3階", "4階", "5階", "合　計"));
  EXPECT_EQ(FloorTally.KaiGyou[0].parts[1], Kg(27));
  for (const unsigned zero : {1U, 2U, 3U}) EXPECT_EQ(FloorTally.KaiGyou[zero].total, Kg(0)) << zero;
  EXPECT_EQ(FloorTally.KaiGyou[4].parts[3], Kg(27));
  EXPECT_EQ(FloorTally.KaiGyou[5].parts[1], Kg(27));
  EXPECT_EQ(FloorTally.KaiGyou[5].total, Kg(54));
}

TEST(Kai_Jyuuryo_Syukei, LeavesTheFoundationOutOfARangeFromABasement) {
  FloorSite site;
  for (const int floor : {-2, -1, 0, 1, 3}) site.Add(floor);
  TallyFloors(-2, 3, -2);
  EXPECT_THAT(ListedLabels(), ElementsAre("2Ｂ階", "1Ｂ階", "1階", "2階", "3階", "合　計"));
  EXPECT_EQ(FloorTally.SouGoukei, Kg(4 * 27));
  EXPECT_EQ(Bars(0), 0);
}

TEST(Kai_Jyuuryo_Syukei, FromTheFoundationOnTakesTheBasementsToo) {
  FloorSite site;
  for (const int floor : {-2, -1, 0, 1, 3}) site.Add(floor);
  TallyFloors(0, 1, -2);
  EXPECT_THAT(ListedLabels(), ElementsAre("基礎階", "2Ｂ階", "1Ｂ階", "1階", "合　計"));
  EXPECT_EQ(FloorTally.SouGoukei, Kg(4 * 27));
  TallyFloors(0, 0, -2);
  EXPECT_THAT(ListedLabels(), ElementsAre("基礎階", "合　計"));
  EXPECT_EQ(FloorTally.SouGoukei, Kg(27));
}

TEST(Kai_Jyuuryo_Syukei, TakesSpecialFloorsOnlyWhereTheyAreAskedFor) {
  FloorSite site;
  for (const int floor : {1, 76, 77, 78}) site.Add(floor, {{"伸総計", Number(1 << (floor % 75))}});
  const std::int32_t bars[] = {2, 4, 8};
  for (std::int16_t mask = 0; mask <= 7; ++mask) {
    TallyFloors(1, 1, 1, mask);
    for (int bit = 0; bit < 3; ++bit) {
      EXPECT_EQ(Bars(76 + bit), (mask & (1 << bit)) != 0 ? bars[bit] : 0) << mask;
    }
  }
  EXPECT_THAT(ListedLabels(), ElementsAre("1階", "Ｒ　階", "ＰＨ階", "階なし", "合　計"));
}

TEST(Kai_Jyuuryo_Syukei, ListsASpecialFloorTakenThatHasNoRows) {
  FloorSite site;
  site.Add(1);
  TallyFloors(1, 1, 1, 2);
  EXPECT_THAT(ListedLabels(), ElementsAre("1階", "ＰＨ階", "合　計"));
}

TEST(Kai_Jyuuryo_Syukei, TalliesSpecialFloorsByThemselves) {
  FloorSite site;
  for (const int floor : {1, 76, 77, 78}) site.Add(floor);
  TallyFloors(76, 78, 1, 0);
  EXPECT_THAT(ListedLabels(), ElementsAre("Ｒ　階", "ＰＨ階", "階なし", "合　計"));
  EXPECT_EQ(FloorTally.SouGoukei, Kg(3 * 27));
  TallyFloors(77, 77);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(27));
}

TEST(Kai_Jyuuryo_Syukei, LeavesThinBarsOutOfEveryMaskSaveNone) {
  FloorSite site;
  site.Add(1, kThin);
  site.Add(1);
  for (int mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    TallyFloors(1, 1);
    EXPECT_EQ(FloorTally.SouGoukei, Kg((mask & 1) != 0 ? 27 : 0)) << mask;
  }
  Selection.MaterialKindMask = KindMask(0);
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(8));  // 10 x 0.5 x 1.5 = 7.5
  EXPECT_EQ(FloorTally.TaisaGoukei[14], Kg(8));
}

TEST(Kai_Jyuuryo_Syukei, TakesNoStockLengthOfAThinBarForTheFirstColumn) {
  FloorSite site;
  Fields thin = kThin;
  thin.back() = {"伸定尺", Value{0.0}};
  site.Add(1, thin);
  site.Add(1, {{"伸定尺", Value{0.0}}});
  Selection.MaterialKindMask = KindMask(0);
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally.SouHonsu[14][0], 2);
  Selection.MaterialKindMask = kAllKinds;
  TallyFloors(1, 1);
  EXPECT_EQ(Bars(1), 0);
}

TEST(Kai_Jyuuryo_Syukei, ChoosesFormsAndTakesAllOfThemForNone) {
  FloorSite site;
  for (int form = 0; form <= 4; ++form) {
    site.Add(1, {{"予備3", Number(form)}, {"伸総計", Number(1 << form)}});
  }
  for (int mask = 0; mask <= 15; ++mask) {
    Selection.MaterialFormMask = FormMask(static_cast<std::int16_t>(mask));
    TallyFloors(1, 1);
    EXPECT_EQ(Bars(1), mask == 0 || mask == 15 ? 31 : mask * 2) << mask;
  }
}

TEST(Kai_Jyuuryo_Syukei, LeavesOutRowsWithoutDiameterStockOrCountOrFloor) {
  FloorSite site;
  for (const char* column : {"太さ", "伸定尺", "本数"}) site.Add(1, {{column, kNull}});
  site.AddRow({{"階", kNull}});
  TallyFloors(1, 5);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(0));
}

TEST(Kai_Jyuuryo_Syukei, ShowsAllRowsHoopsOutAndHoopsAlone) {
  FloorSite site;
  site.Add(1, {{"圧接", Number(1)}});
  site.Add(1, kHoop);
  const std::int32_t bars[] = {4, 2, 2};
  const std::int32_t welds[] = {5, 1, 4};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.HoopMode = ShapeFilterOf(mode);
    TallyFloors(1, 1);
    EXPECT_TRUE(FloorTally.HoopAri);
    EXPECT_FALSE(FloorTally.TeiAri);
    EXPECT_EQ(Bars(1), bars[mode]) << mode;
    EXPECT_EQ(FloorTally.Assetu.Taisa[3], welds[mode]) << mode;
  }
}

TEST(Kai_Jyuuryo_Syukei, KeepsThreadsPlatesAndCutsOfHoopsThatAreLeftOut) {
  FloorSite site;
  site.Add(1, {{"形状No", Number(87)},
               {"予備2", Number(4)},
               {"ネジ数", Number(5)},
               {"定着板数", Number(6)},
               {"切断", Number(7)}});
  Selection.HoopMode = ShapeFilter::left_out;
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(0));
  EXPECT_EQ(FloorTally.Neji.KaiSou[6], 5);
  EXPECT_EQ(FloorTally.Teichaku.KaiSou[6], 6);
  EXPECT_EQ(FloorTally.Setsudan.KaiSou[6], 7);
}

TEST(Kai_Jyuuryo_Syukei, DropsOnlyTheWeldsOfHoopsByTheSetting) {
  FloorSite site;
  site.Add(1, kHoop);
  SaveSetting("Kakou", "重量集計", "溶接フープの圧接数", "0");
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally.Assetu.Taisa[3], 0);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(27));
}

TEST(Kai_Jyuuryo_Syukei, FindsPlatesAmongTheHoopsAloneWhereHoopsStandAlone) {
  FloorSite site;
  site.Add(1, kHoop);
  site.Add(1, {{"形状No", Number(138)}});
  TallyFloors(1, 1);
  EXPECT_TRUE(FloorTally.TeiAri);
  Selection.HoopMode = ShapeFilter::alone;
  Selection.AnchorPlateMode = ShapeFilter::alone;
  TallyFloors(1, 1);
  EXPECT_TRUE(FloorTally.HoopAri);
  EXPECT_FALSE(FloorTally.TeiAri);
  EXPECT_EQ(Bars(1), 2);
}

TEST(Kai_Jyuuryo_Syukei, ShowsAllRowsPlatesOutAndPlatesAlone) {
  FloorSite site;
  for (const int shape : {138, 139, 147, 161, 176, 177}) {
    site.Add(1, {{"形状No", Number(shape)}, {"伸総計", Number(1)}});
  }
  site.Add(1, {{"形状No", kNull}, {"伸総計", Number(10)}});
  site.Add(1, {{"形状No", Number(0)}, {"伸総計", Number(20)}});
  const std::int32_t bars[] = {36, 32, 4};
  for (int mode = 0; mode < 3; ++mode) {
    Selection.AnchorPlateMode = ShapeFilterOf(mode);
    TallyFloors(1, 1);
    EXPECT_TRUE(FloorTally.TeiAri);
    EXPECT_EQ(Bars(1), bars[mode]) << mode;
  }
}

TEST(Kai_Jyuuryo_Syukei, ProbesOnlyTheFloorsOfTheRange) {
  FloorSite site;
  site.Add(1);
  site.Add(2, kHoop);
  TallyFloors(1, 1);
  EXPECT_FALSE(FloorTally.HoopAri);
  TallyFloors(1, 2);
  EXPECT_TRUE(FloorTally.HoopAri);
}

TEST(Kai_Jyuuryo_Syukei, ShowsInstalledWeightBySetting1Alone) {
  FloorSite site;
  site.Add(1, {{"合計", Number(3)}});  // 20.25 kg
  for (const auto& [setting, kilograms] : {std::pair{"0", 27}, {"1", 20}, {"2", 27}}) {
    SaveSetting("Kakou", "重量集計", "階別集計定取", setting);
    TallyFloors(1, 1);
    EXPECT_EQ(FloorTally.SouGoukei, Kg(kilograms)) << setting;
    EXPECT_EQ(FloorTally.SouTorituke, Kg(kilograms == 20 ? 20 : 0)) << setting;
  }
}

TEST(Kai_Jyuuryo_Syukei, RaisesByTheRatioOfTheSelection) {
  FloorSite site;
  site.Add(1, {{"伸総計", Number(5)}});
  Selection.UwanoseRitu = 0.1;
  TallyFloors(1, 1);
  EXPECT_EQ(Bars(1), 6);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(81));
  EXPECT_EQ(FloorTally.SouTeiGoukei, Kg(81));
}

TEST(Kai_Jyuuryo_Syukei, RunsToThe13MetreColumnWhereItIsInUse) {
  FloorSite site;
  site.Add(1, {{"伸定尺", Value{13.0}}});
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(0));
  Settings.Use13mColumn = 1;
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(58));
}

TEST(Kai_Jyuuryo_Syukei, CountsNothingForColumnsThatAnOldFileLacks) {
  FloorSite site({"ネジ数", "定着板数", "切断", "圧接太さ"});
  site.Add(1, {{"圧接", Number(3)}, {"部位", Number(2)}, {"予備2", Number(4)}});
  TallyFloors(1, 1);
  EXPECT_EQ(Bars(1), 2);
  EXPECT_EQ(FloorTally.Assetu.Taisa[3], 3);
}

TEST(Kai_Jyuuryo_Syukei, ReplacesTheTablesOfTheRunBefore) {
  FloorSite site;
  site.Add(1);
  site.Add(2, kHoop);
  TallyFloors(1, 1);
  const FloorTables first = FloorTally;
  TallyFloors(1, 2);
  EXPECT_NE(FloorTally, first);
  TallyFloors(1, 1);
  EXPECT_EQ(FloorTally, first);
}

TEST(Kai_Jyuuryo_Syukei, LeavesNothingBehindAFault) {
  FloorSite site;
  site.Add(1);
  TallyFloors(1, 1);
  site.Add(1, {{"圧接太さ", Number(20)}, {"圧接", Number(0)}});
  EXPECT_EQ(FaultOf([] { TallyFloors(1, 1); }), FaultKind::subscript_out_of_range);
  EXPECT_EQ(FloorTally, FloorTables());
}

TEST(Kai_Jyuuryo_Syukei_Load, WorksOutWhatWasTalliedFromItsCounts) {
  FloorSite site;
  site.Add(-1, {{"圧接", Number(3)}});
  site.Add(1, {{"部位", Number(4)}, {"伸総計", Number(3)}});
  site.Add(76);
  TallyFloors(-1, 1, -1, 1);
  FloorTables tallied = FloorTally;
  FloorTally = FloorTables();
  FloorTally.KaiBuiHonsu = tallied.KaiBuiHonsu;
  FloorTally.Assetu = tallied.Assetu;
  Kai_Jyuuryo_Syukei_Load();
  EXPECT_EQ(FloorTally, tallied);
}

TEST(Kai_Jyuuryo_Syukei_Load, KeepsTheWeightOfThinBarsAndShowsStockWeightOfOthersWhateverTheSetting) {
  FloorSite site;
  SaveSetting("Kakou", "重量集計", "階別集計定取", "1");
  Selection.KaiStart = Selection.KaiEnd = 1;
  FloorTally.KaiBuiHonsu[1][6][3][5] = 2;
  FloorTally.KaiBuiJyuuryo[6][1][3][5] = Kg(20);
  FloorTally.KaiBuiHonsu[1][6][14][4] = 4;
  FloorTally.KaiBuiJyuuryo[6][1][14][4] = Kg(8);
  FloorTally.HoopAri = FloorTally.TeiAri = true;
  Selection.UwanoseRitu = 0.5;
  Kai_Jyuuryo_Syukei_Load();
  EXPECT_EQ(FloorTally.KaiBuiJyuuryo[6][1][3][5], Kg(27));
  EXPECT_EQ(FloorTally.KaiBuiJyuuryo[6][1][14][4], Kg(8));
  EXPECT_EQ(FloorTally.SouHonsu[3][5], 2);
  EXPECT_EQ(FloorTally.SouGoukei, Kg(35));
  EXPECT_EQ(FloorTally.SouTorituke, Kg(35));  // the second set follows the setting
  EXPECT_FALSE(FloorTally.HoopAri);
  EXPECT_FALSE(FloorTally.TeiAri);
  ASSERT_EQ(FloorTally.KaiGyouSuu(), 2);
  EXPECT_EQ(FloorTally.KaiGyou[0].total, Kg(35));
}

TEST(Kai_Jyuuryo_Syukei_Load, WeighsBarsOf13MetresByTheirOwnLength) {
  FloorSite site;
  Settings.Use13mColumn = 1;
  Selection.KaiStart = Selection.KaiEnd = 1;
  FloorTally.KaiBuiHonsu[1][6][11][18] = 1;  // D51: 15.9 x 13 = 206.7
  Kai_Jyuuryo_Syukei_Load();
  EXPECT_EQ(FloorTally.SouGoukei, Kg(207));
}

}  // namespace
}  // namespace rbt
