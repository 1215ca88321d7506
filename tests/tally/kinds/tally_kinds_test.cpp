// SPDX-License-Identifier: MIT
#include "tally/kinds/tally_kinds.h"

#include <set>
#include <string_view>

#include <gtest/gtest.h>

#include "archive/accumulation/hozon.h"
#include "platform/fault.h"
#include "shell/context/run_state.h"
#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::Number;
using test::ScheduleSite;

TEST(TallyKinds, KeepTheNumbersOfSavedTallies) {
  EXPECT_EQ(static_cast<int>(TallyKind::bulk), 0);
  EXPECT_EQ(static_cast<int>(TallyKind::shape), 1);
  EXPECT_EQ(static_cast<int>(TallyKind::page), 2);
  EXPECT_EQ(static_cast<int>(TallyKind::page_shape), 3);
  EXPECT_EQ(static_cast<int>(TallyKind::floor), 4);
  EXPECT_EQ(static_cast<int>(TallyKind::part), 5);
  EXPECT_EQ(static_cast<int>(TallyKind::names), 6);
}

TEST(TallyKinds, EachHasItsOwnWord) {
  std::set<std::string_view> words;
  for (const TallyKindRow& row : TallyKinds()) {
    EXPECT_TRUE(words.insert(row.word).second) << row.word;
    EXPECT_EQ(&RowOf(row.kind), &row);
    EXPECT_EQ(FindTallyKind(row.word), row.count == nullptr ? nullptr : &row) << row.word;
  }
  EXPECT_EQ(FindTallyKind("wall"), nullptr);
  EXPECT_THROW(RowOf(TallyKind{9}), Fault);
}

void SelectAll(ScheduleSite& site) {
  Selection.ShapeStart = 1;
  Selection.ShapeEnd = 99;
  Selection.StartPage = 1;
  Selection.StartLine = 1;
  Selection.EndPage = 1;
  Selection.EndLine = 2;
  Selection.KaiStart = Selection.KaiEnd = Selection.BuiStart = 1;
  site.AddName(Number(1), "一工区", Number(1));
  site.AddRow({{"階", Number(1)}, {"登録名", Number(1)}});
  site.AddRow({{"階", Number(1)}, {"登録名", Number(1)}});
}

std::int32_t BarsOf6mD19(const TallyTable& tables) { return tables.BarCount[3][5]; }
std::int32_t BarsOf6mD19(const FloorTables& tables) { return tables.SouHonsu[3][5]; }
std::int32_t BarsOf6mD19(const PartTables& tables) { return tables.TaisaHonsu[3][5]; }

TEST(CountTally, GivesTheBarsOfEachKindWithWhatWasAskedFor) {
  for (const TallyKindRow& row : TallyKinds()) {
    if (row.count == nullptr) continue;
    ScheduleSite site;
    SelectAll(site);
    const TallyResult result = CountTally(row.kind);
    EXPECT_EQ(result.kind, row.kind);
    EXPECT_EQ(result.origin, ResultOrigin::counted) << row.word;
    EXPECT_EQ(result.selection, Selection) << row.word;
    const auto bars = std::visit([](const auto& tables) { return BarsOf6mD19(tables); }, result.tables);
    EXPECT_EQ(bars, 4) << row.word;  // two rows of two bars
  }
}

TEST(CountTally, TellsThePresenceThatItsProbesFound) {
  ScheduleSite site;
  site.AddRow();
  EXPECT_FALSE(CountTally(TallyKind::bulk).has_hoop_rows);
  site.AddRow({{"形状No", Number(87)}});
  const TallyResult result = CountTally(TallyKind::bulk);
  EXPECT_TRUE(result.has_hoop_rows);
  EXPECT_FALSE(result.has_anchor_plate_rows);
}

TEST(CountTally, TellsThePresenceThatTheFloorAndPartTalliesFound) {
  for (const TallyKind kind : {TallyKind::floor, TallyKind::part}) {
    ScheduleSite site;
    SelectAll(site);
    EXPECT_FALSE(CountTally(kind).has_hoop_rows);
    EXPECT_FALSE(CountTally(kind).has_anchor_plate_rows);
    site.AddRow({{"階", Number(1)}, {"形状No", Number(140)}});
    EXPECT_FALSE(CountTally(kind).has_hoop_rows);
    EXPECT_TRUE(CountTally(kind).has_anchor_plate_rows);
    site.AddRow({{"階", Number(1)}, {"形状No", Number(87)}});
    EXPECT_TRUE(CountTally(kind).has_hoop_rows);
  }
}

TEST(CountTally, IsRaisedByTheRatioOfItsOwnTally) {
  ScheduleSite site;
  SelectAll(site);
  Selection.UwanoseRitu = 0.1;
  EXPECT_EQ(CountTally(TallyKind::floor).origin, ResultOrigin::raised);
  EXPECT_EQ(CountTally(TallyKind::part).origin, ResultOrigin::counted);
  Selection.BuiUwanoseRitu = 0.1;
  EXPECT_EQ(CountTally(TallyKind::part).origin, ResultOrigin::raised);
  EXPECT_EQ(CountTally(TallyKind::bulk).origin, ResultOrigin::counted);
}

TEST(CountTally, StartsThePartTallyWhereTheSelectionSaysAndTakesItsSpecialFloors) {
  ScheduleSite site;
  for (const int floor : {-1, 0, 1, 76, 77, 78}) site.AddRow({{"階", Number(floor)}});
  Selection.KaiStart = 0;
  Selection.KaiEnd = 1;
  Selection.BuiStart = -1;
  for (const int mask : {0, 1, 2, 4}) {
    Selection.TokubetuMask = SpecialMask(static_cast<std::int16_t>(mask));
    EXPECT_EQ(CountTally(TallyKind::part).Parts().TaisaHonsu[3][5], mask == 0 ? 6 : 8) << mask;
  }
}

TEST(CountTally, IsNotReachedByWhatIsTalliedLater) {
  ScheduleSite site;
  site.AddRow();
  const TallyResult first = CountTally(TallyKind::bulk);
  site.AddRow();
  CountTally(TallyKind::bulk);
  EXPECT_EQ(first.Grid().BarCount[3][5], 2);
  EXPECT_EQ(TallyGrid.BarCount[3][5], 4);
}

TEST(CountTally, OfAnyKindIsOfItsSiteAloneWhileSitesAreBeingAddedUp) {
  for (const TallyKindRow& row : TallyKinds()) {
    if (row.count == nullptr) continue;
    ScheduleSite site;
    SelectAll(site);
    const TallyResult alone = CountTally(row.kind);
    TallyTable sum;
    sum.BarCount[3][5] = 100;
    sum.StockWeight[3][5] = Currency::FromDouble(1000);
    sum.WeldCount[3] = 7;
    Save_Hozon(sum);
    RunState.AccumulateFlag = 1;
    EXPECT_EQ(CountTally(row.kind), alone) << row.word;
    EXPECT_EQ(Load_Hozon(), sum) << row.word;
    RunState.AccumulateFlag = 0;
  }
}

TEST(CountTally, APageBeyondSixteenBitsIsAnOverflowOfThePageTallyAlone) {
  ScheduleSite site;
  SelectAll(site);
  Selection.EndPage = 32768;
  EXPECT_THROW(CountTally(TallyKind::page), Fault);
  EXPECT_NO_THROW(CountTally(TallyKind::page_shape));
}

}  // namespace
}  // namespace rbt
