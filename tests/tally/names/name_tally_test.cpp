// SPDX-License-Identifier: MIT
#include "tally/names/name_tally.h"

#include <array>
#include <memory>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/schedule_site.h"
#include "tally/rows/page_tally.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

using test::Fields;
using test::kNull;
using test::Number;
using test::ScheduleSite;

Currency Kg(double kilograms) { return Currency::FromDouble(kilograms); }

/// A site whose rows carry registered names; D19 at 6.0 m is 13.5 kg a bar.
class NameTally : public testing::Test {
 protected:
  void AddRow(const Value& name, Fields fields = {}) {
    fields.emplace_back("登録名", name);
    site_.AddRow(fields);
  }
  void AddBars(const Value& name, int bars) { AddRow(name, {{"伸総計", Number(bars)}}); }
  void Mark(std::int64_t number) { site_.AddName(Number(number), "名", Number(1)); }

  ScheduleSite site_;
};

TEST_F(NameTally, TakesTheRowsOfTheMarkedNamesAlone) {
  Mark(1);
  site_.AddName(Number(2), "二", Number(0));
  Mark(3);
  AddBars(Number(1), 1);
  AddBars(Number(2), 2);
  AddBars(Number(3), 4);
  AddBars(Number(0), 8);
  AddBars(kNull, 16);
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 5);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(68));  // 67.5
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(54));
}

TEST_F(NameTally, OfNoMarkIsZero) {
  site_.AddName(Number(1), "一", Number(0));
  AddBars(Number(1), 1);
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST_F(NameTally, PassesOverMarksWithoutANumberAndNumbersWithoutRows) {
  site_.AddName(kNull, "なし", Number(1));
  Mark(9);
  AddBars(kNull, 1);
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST_F(NameTally, AddsAllBlocksUpAlsoWhereTheLastIsFull) {
  for (const int names : {9, 10, 11, 20, 21}) {
    ScheduleSite site;
    for (int name = 1; name <= names; ++name) {
      site.AddName(Number(name), "名", Number(1));
      site.AddRow({{"登録名", Number(name)}});
    }
    Touroku_Jyuuryo_Syukei();
    EXPECT_EQ(TallyGrid.BarCount[3][5], 2 * names) << names;
  }
}

TEST_F(NameTally, NotesHoopsAndPlatesOfAnyBlock) {
  for (int name = 1; name <= 12; ++name) Mark(name);
  AddRow(Number(1), {{"形状No", Number(87)}});
  AddRow(Number(12), {{"形状No", Number(140)}});
  Touroku_Jyuuryo_Syukei();
  EXPECT_TRUE(RunState.HasHoopRows);
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
}

TEST_F(NameTally, AsksForPlatesInNoStartModeOf1And2And3ButForHoopsInEach) {
  Mark(1);
  AddRow(Number(1), {{"形状No", Number(87)}});
  AddRow(Number(1), {{"形状No", Number(140)}});
  for (const std::int32_t mode : {-1, 1, 2, 3, 4}) {
    Selection.StartMode = TraitsOfStartMode(mode);
    Touroku_Jyuuryo_Syukei();
    EXPECT_TRUE(RunState.HasHoopRows) << mode;
    EXPECT_EQ(RunState.HasAnchorPlateRows, mode == -1 || mode == 4) << mode;
  }
}

TEST_F(NameTally, LeavesOutRowsWithoutAShapeTogetherWithTheHoops) {
  Mark(1);
  AddBars(Number(1), 1);
  AddRow(Number(1), {{"伸総計", Number(2)}, {"形状No", kNull}});
  AddRow(Number(1), {{"伸総計", Number(4)}, {"形状No", Number(87)}});
  Selection.HoopMode = ShapeFilter::left_out;
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 1);
  Selection.HoopMode = ShapeFilter::alone;
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 4);
}

TEST_F(NameTally, FiltersPlatesAlsoWhereThereAreNone) {
  Mark(1);
  AddBars(Number(1), 1);
  Selection.AnchorPlateMode = ShapeFilter::alone;
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 0);
}

TEST_F(NameTally, OfSlitBarsAloneTakesTheUlbonOfItsNamesAndOfNoOther) {
  Mark(1);
  const Fields ulbon = {{"太さ", Number(9)}, {"予備2", Number(2)}};
  AddRow(Number(1), ulbon);
  AddRow(Number(2), ulbon);
  Selection.MaterialKindMask = KindMask(8);
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.UlbonLengthM[14], 12.0);
}

TEST_F(NameTally, KnowsTheKindsZeroToFiveAlone) {
  Mark(1);
  AddRow(Number(1), {{"予備2", kNull}, {"伸総計", Number(1)}});
  AddRow(Number(1), {{"予備2", Number(5)}, {"伸総計", Number(2)}});
  AddRow(Number(1), {{"予備2", Number(6)}, {"伸総計", Number(4)}});
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 3);
}

TEST_F(NameTally, KeepsALengthWithoutAColumnApartAndNamesItsRow) {
  Mark(1);
  AddRow(Number(1), {{"伸定尺", Value{12.5}}});
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(27));
  EXPECT_EQ(TallyGrid.InstalledWeight[3][0], Kg(0));
  EXPECT_EQ(TallyGrid.StockWarningText, " 1頁の1行目の定尺を確認");
}

TEST_F(NameTally, NeverSumsThe13MetreColumnNorCaps) {
  Settings.Use13mColumn = 1;
  Settings.CapInstalledWeight = 1;
  Mark(1);
  AddRow(Number(1), {{"伸定尺", Value{13.0}}});
  AddRow(Number(1), {{"伸総計", Number(0)}});
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][18], 2);
  EXPECT_EQ(TallyGrid.TotalStockWeight, Kg(0));
  EXPECT_EQ(TallyGrid.TotalInstalledWeight, Kg(27));
}

TEST_F(NameTally, WeighsD41AndD51Right) {
  Mark(1);
  AddRow(Number(1), {{"太さ", Number(41)}});
  AddRow(Number(1), {{"太さ", Number(51)}});
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.InstalledWeightByDia[10], Kg(126.0));
  EXPECT_EQ(TallyGrid.InstalledWeightByDia[11], Kg(190.8));
}

TEST_F(NameTally, OfAllRowsIsThePageTallyOfAllLines) {
  for (int name = 1; name <= 11; ++name) Mark(name);
  constexpr std::array<int, 4> kKinds{1, 3, 4, 5};
  std::size_t line = 0;
  for (const int code : {10, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51}) {
    AddRow(Number(static_cast<int>(1 + line % 11)), {{"太さ", Number(code)},
                                                     {"予備2", Number(kKinds.at(line % 4))},
                                                     {"伸定尺", Value{3.5 + 0.5 * static_cast<double>(line)}},
                                                     {"圧接", Number(static_cast<int>(line))},
                                                     {"ネジ数", Number(2)},
                                                     {"定着板数", Number(3)},
                                                     {"切断", Number(static_cast<int>(line) + 1)}});
    ++line;
  }
  PG_Jyuuryo_Syukei(1, 1, 1, static_cast<std::int16_t>(line));
  const TallyTable of_pages = TallyGrid;
  EXPECT_NE(of_pages.TotalStockWeight, Kg(0));
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid, of_pages);
}

TEST_F(NameTally, ThatFaultsLeavesNothing) {
  Mark(1);
  AddBars(Number(1), 1);
  Touroku_Jyuuryo_Syukei();
  site_.Work().Execute("DROP TABLE 加工テーブル");
  EXPECT_THROW(Touroku_Jyuuryo_Syukei(), Fault);
  EXPECT_EQ(TallyGrid, TallyTable());
}

TEST_F(NameTally, TakesTheMarksOfTheWorkThatIsUnderWay) {
  Mark(1);
  AddBars(Number(1), 1);
  AddBars(Number(2), 2);
  site_.AddName(Number(2), "二", Number(0));
  const Database companion = Database::OpenReadOnly(site_.Folder().Data("HIROI001.mdb"));
  SiteContext.NameDatabase = std::make_unique<Database>(Database::CopyOf(companion));
  SiteContext.NameDatabase->Execute("UPDATE 登録名 SET 表示番号=1");
  Touroku_Jyuuryo_Syukei();
  EXPECT_EQ(TallyGrid.BarCount[3][5], 3);
}

}  // namespace
}  // namespace rbt
