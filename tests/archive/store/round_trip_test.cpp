// SPDX-License-Identifier: MIT
// What was saved comes back, field by field, but for what a saved tally does not keep.
#include <utility>

#include <gtest/gtest.h>

#include "archive/store/archive_site.h"
#include "archive/store/random_tallies.h"

namespace rbt::test {

namespace {

constexpr int kTallies = 12;
constexpr TallyKind kGridKinds[] = {TallyKind::bulk, TallyKind::shape, TallyKind::page,
                                    TallyKind::page_shape};

class RoundTrip : public testing::Test {
 protected:
  /// Saved and loaded, with what another run left in the place of the current result and in the selection.
  LoadedTally Returned(const TallyResult& saved, bool with_13m, int n) {
    Settings.Use13mColumn = with_13m ? 1 : 0;
    EXPECT_TRUE(site_.Save(saved, ArchiveSite::Order("名前" + std::to_string(n), n, with_13m)));
    TallyGrid.BarCount[1][1] = 77;
    FloorTally.KaiBuiHonsu[1][1][1][1] = 77;
    PartTally.BuiHonsu[1][1][1] = 77;
    Selection = {};
    Selection.KaiStart = 40;
    return site_.Load(saved.kind, "名前" + std::to_string(n), with_13m);
  }
  static void ExpectFilters(const SelectionData& loaded, const SelectionData& saved) {
    EXPECT_EQ(loaded.MaterialKindMask, saved.MaterialKindMask);
    EXPECT_EQ(loaded.MaterialFormMask, saved.MaterialFormMask);
    EXPECT_EQ(loaded.HoopMode, saved.HoopMode);
    EXPECT_EQ(Selection, loaded) << "in force";
  }
  static void ExpectRange(const SelectionData& loaded, const SelectionData& saved) {
    EXPECT_EQ(loaded.KaiStart, saved.KaiStart);
    EXPECT_EQ(loaded.KaiEnd, saved.KaiEnd);
    EXPECT_EQ(loaded.TokubetuMask, saved.TokubetuMask);
    EXPECT_EQ(loaded.UlbonOnly, saved.UlbonOnly);
  }

  ArchiveSite site_;
};

}  // namespace

TEST_F(RoundTrip, OfEveryGridKindGivesTheSameTally) {
  RandomTallies random(1);
  for (int n = 0; n < kTallies; ++n) {
    SCOPED_TRACE(n);
    const TallyKind kind = kGridKinds[n % 4];
    const bool with_13m = n % 3 == 0;
    const TallyResult saved = random.Grid(kind, with_13m);
    const LoadedTally loaded = Returned(saved, with_13m, n);
    EXPECT_TRUE(loaded.has_rows);
    EXPECT_EQ(loaded.result.Grid(), saved.Grid());
    EXPECT_EQ(TallyGrid, saved.Grid());
    EXPECT_EQ(loaded.result.kind, kind);
    EXPECT_EQ(loaded.result.origin, ResultOrigin::loaded);
    EXPECT_TRUE(loaded.result.was_saved);
    ExpectFilters(loaded.result.selection, saved.selection);
  }
}

TEST_F(RoundTrip, OfFloorsInStockWeightGivesTheSameTally) {
  RandomTallies random(2);
  for (int n = 0; n < kTallies; ++n) {
    SCOPED_TRACE(n);
    const RandomTally how{.thin = n % 3 == 1, .with_13m = n % 2 == 1};
    const TallyResult saved = random.Floors(how);
    const LoadedTally loaded = Returned(saved, how.with_13m, n);
    EXPECT_TRUE(loaded.has_rows);
    EXPECT_TRUE(loaded.result.Floors() == saved.Floors());
    EXPECT_TRUE(FloorTally == saved.Floors());
    ExpectFilters(loaded.result.selection, saved.selection);
    ExpectRange(loaded.result.selection, saved.selection);
  }
}

TEST_F(RoundTrip, OfPartsGivesTheSameTally) {
  RandomTallies random(3);
  for (int n = 0; n < kTallies; ++n) {
    SCOPED_TRACE(n);
    const RandomTally how{.thin = n % 3 == 1, .with_13m = n % 2 == 1};
    const TallyResult saved = random.Parts(how);
    const LoadedTally loaded = Returned(saved, how.with_13m, n);
    EXPECT_TRUE(loaded.has_rows);
    EXPECT_TRUE(loaded.result.Parts() == saved.Parts());
    EXPECT_TRUE(PartTally == saved.Parts());
    ExpectFilters(loaded.result.selection, saved.selection);
    ExpectRange(loaded.result.selection, saved.selection);
  }
}

TEST_F(RoundTrip, OfRaisedFloorsKeepsTheRaisedFigures) {
  RandomTallies random(4);
  for (const bool thin : {false, true}) {
    const TallyResult saved = random.Floors({.thin = thin, .uplift = 0.1});
    const FloorTables& before = saved.Floors();
    const LoadedTally loaded = Returned(saved, false, thin ? 1 : 0);
    const FloorTables& after = loaded.result.Floors();
    EXPECT_TRUE(after.KaiBuiHonsu == before.KaiBuiHonsu);
    EXPECT_TRUE(after.KaiBuiJyuuryo == before.KaiBuiJyuuryo);
    EXPECT_EQ(after.SouGoukei, before.SouGoukei);
    EXPECT_EQ(after.KaiGyou, before.KaiGyou);
    EXPECT_EQ(loaded.result.selection.UwanoseRitu, 0.0);
  }
}

TEST_F(RoundTrip, OfRaisedThinBarsTheFloorsAreTheSumsOfTheirParts) {
  FloorTables tables;
  for (const int part : {1, 2}) {
    const RowShare five_bars{.part = part,
                             .row = 14,
                             .column = 3,
                             .bars = 5,
                             .installed_kilograms = 10.0,
                             .welds = {},
                             .threads = {},
                             .plates = {},
                             .cuts = {}};
    AddShare(tables, FloorIndex(1), five_bars, CellWeight::none);
  }
  FloorRules rules;
  rules.uplift = 0.1;
  CloseFloorTally(tables, rules);
  TallyResult saved;
  saved.kind = TallyKind::floor;
  saved.selection.MaterialKindMask = KindMask(0);
  saved.selection.KaiStart = saved.selection.KaiEnd = 1;
  ListFloors(tables, {1});
  saved.tables = tables;
  ASSERT_EQ(std::as_const(tables.KaiHonsu)[FloorIndex(1)][14][3], 11) << "10 bars of the floor, raised";
  const LoadedTally loaded = Returned(saved, false, 0);
  EXPECT_EQ(loaded.result.Floors().KaiHonsu[FloorIndex(1)][14][3], 12) << "twice 5 bars, raised";
}

TEST_F(RoundTrip, OfRaisedPartsSumsTheFittingsByTheirParts) {
  RandomTallies random(5);
  const TallyResult saved = random.Parts({.uplift = 0.07});
  const PartTables& before = saved.Parts();
  const LoadedTally loaded = Returned(saved, false, 0);
  const PartTables& after = loaded.result.Parts();
  EXPECT_EQ(after.BuiGyou, before.BuiGyou);
  EXPECT_EQ(after.BuiHonsu, before.BuiHonsu);
  for (int r = 0; r < kDiameterRows; ++r) {
    std::int32_t welds = 0;
    for (int p = kFirstPart; p < kPartEntries; ++p) welds += before.Assetu.Bui[p][r];
    EXPECT_EQ(after.Assetu.Taisa[r], welds);
    EXPECT_EQ(after.Assetu.Bui[1][r], before.Assetu.Bui[1][r]);
  }
}

TEST_F(RoundTrip, OfInstalledWeightsComesBackInStockWeights) {
  RandomTallies random(6);
  const TallyResult saved = random.Floors({.installed = true});
  const LoadedTally loaded = Returned(saved, false, 0);
  const FloorTables& after = loaded.result.Floors();
  EXPECT_TRUE(after.KaiBuiTeiJyuuryo == saved.Floors().KaiBuiTeiJyuuryo);
  EXPECT_TRUE(after.KaiBuiJyuuryo == saved.Floors().KaiBuiTeiJyuuryo);
  EXPECT_EQ(after.TaisaGoukei, saved.Floors().TaisaGoukei);
  EXPECT_NE(after.SouGoukei, saved.Floors().SouGoukei);
  EXPECT_EQ(after.SouTorituke, Currency()) << "the switch stands on stock weight";
}

TEST_F(RoundTrip, TheSecondSetOfALoadedTallyFollowsTheSwitchOfNow) {
  RandomTallies random(7);
  const TallyResult saved = random.Floors({});
  SaveSetting(kFloorTallyStockKey, 1);
  const LoadedTally loaded = Returned(saved, false, 0);
  EXPECT_EQ(loaded.result.Floors().SouTorituke, saved.Floors().SouGoukei);
  EXPECT_TRUE(loaded.result.Floors().KaiBuiTorituke == saved.Floors().KaiBuiGoukei);
}

TEST_F(RoundTrip, BarsOf13MetresAreKeptOnlyWhileTheirColumnIsOn) {
  RandomTallies random(8);
  TallyResult saved = random.Grid(TallyKind::bulk, true);
  saved.Grid().BarCount[0][kColumn13m] = 9;
  const LoadedTally without = Returned(saved, false, 0);
  EXPECT_EQ(without.result.Grid().BarCount[0][kColumn13m], 0);
  const LoadedTally with = Returned(saved, true, 1);
  EXPECT_EQ(with.result.Grid().BarCount[0][kColumn13m], 9);
}

TEST_F(RoundTrip, UlbonAndSpiralsAreNoPartOfASavedTally) {
  TallyResult saved = SmallTally();
  saved.Grid().BarCount[13][2] = 5;
  saved.Grid().UlbonWeight[13] = 7.5;
  saved.Grid().SpiralTotal = Currency::FromInteger(3);
  EXPECT_EQ(Returned(saved, false, 0).result.Grid(), SmallTally().Grid());
}

TEST_F(RoundTrip, ATallyThatIsSavedAgainAfterItsLoadIsTheSame) {
  RandomTallies random(9);
  for (const bool thin : {false, true}) {
    const LoadedTally once = Returned(random.Floors({.thin = thin}), false, thin ? 1 : 0);
    const LoadedTally twice = Returned(once.result, false, thin ? 11 : 10);
    EXPECT_TRUE(twice.result.Floors() == once.result.Floors());
  }
}

}  // namespace rbt::test
