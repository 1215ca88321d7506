// SPDX-License-Identifier: MIT
// Laws that hold over every schedule, tried on random ones.
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "shell/config/settings.h"
#include "tally/floorpart/floor_samples.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_tally.h"
#include "tally/random_rows.h"
#include "tally/rows/bulk_tally.h"

namespace rbt {
namespace {

using test::FieldsOf;
using test::FloorSite;
using test::RandomRows;

struct Placed {
  std::int16_t floor;
  BarRow row;
};
using Schedule = std::vector<Placed>;

constexpr std::int16_t kFloors[] = {-5, -1, 0, 1, 2, 40, 75, 76, 77, 78};
constexpr unsigned kSeeds = 6;

Schedule RandomSchedule(unsigned seed, int count = 300) {
  RandomRows random(seed);
  Schedule schedule;
  for (int i = 0; i < count; ++i) schedule.push_back({kFloors[random.Pick(0, 9)], random.Next()});
  return schedule;
}

FloorTables Walked(const Schedule& schedule, const FloorRules& rules = {}) {
  FloorTables tables;
  for (const auto& [floor, row] : schedule) FoldFloorRow(tables, row, floor, rules);
  return tables;
}

FloorTables Floors(const Schedule& schedule, const FloorRules& rules = {}) {
  FloorTables tables = Walked(schedule, rules);
  CloseFloorTally(tables, rules);
  ListFloors(tables, {std::begin(kFloors), std::end(kFloors)});
  return tables;
}

PartTables Parts(const Schedule& schedule, const PartRules& rules = {}) {
  PartTables tables;
  for (const auto& [floor, row] : schedule) FoldPartRow(tables, row, rules);
  ClosePartTally(tables, rules);
  ListParts(tables, true);
  return tables;
}

template <typename Keeps>
Schedule Only(const Schedule& schedule, Keeps keeps) {
  Schedule kept;
  std::copy_if(schedule.begin(), schedule.end(), std::back_inserter(kept), keeps);
  return kept;
}

/// Calls `visit(r, c)` for every cell of a table by diameter and column.
template <typename Visit>
void EachCell(Visit visit) {
  for (int r = 0; r < kDiameterRows; ++r) {
    for (int c = 0; c < kStockColumns; ++c) visit(r, c);
  }
}

bool IsWhole(Currency kilograms) { return kilograms.TenThousandths() % 10000 == 0; }

TEST(FloorLaws, PartsAddUpToFloorsAndFloorsToTheTotalCount) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables tables = Floors(RandomSchedule(seed));
    EachCell([&](int r, int c) {
      std::int32_t total = 0;
      for (int f = 0; f < kFloorCount; ++f) {
        std::int32_t floor = 0;
        for (int p = 0; p < kPartEntries; ++p) floor += tables.KaiBuiHonsu[p][f][r][c];
        EXPECT_EQ(tables.KaiHonsu[f][r][c], floor);
        total += floor;
      }
      EXPECT_EQ(tables.SouHonsu[r][c], total);
    });
  }
}

TEST(FloorLaws, FittingsAddUpInAllFourTables) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables tables = Floors(RandomSchedule(seed));
    for (const FloorFittingName& name : kFloorFittings) {
      const FloorFitting& fitting = tables.*name.tables;
      CheckedArray<std::int32_t, kDiameterRows> by_row;
      for (int f = 0; f < kFloorCount; ++f) {
        std::int32_t floor = 0;
        for (int r = 0; r < kDiameterRows; ++r) {
          std::int32_t parts = 0;
          for (int p = 0; p < kPartEntries; ++p) parts += fitting.KaiBui[p][f][r];
          EXPECT_EQ(fitting.Kai[f][r], parts) << name.name;
          by_row[r] += parts;
          floor += parts;
        }
        EXPECT_EQ(fitting.KaiSou[f], floor) << name.name;
      }
      EXPECT_EQ(fitting.Taisa, by_row) << name.name;
    }
  }
}

void ExpectSumsAgree(const FloorTables& tables) {
  Currency floors;
  Currency diameters;
  FloorTables::ByPart parts;
  for (int f = 0; f < kFloorCount; ++f) {
    Currency row;
    Currency by_row;
    for (int p = 0; p < kPartEntries; ++p) {
      row += tables.KaiBuiGoukei[f][p];
      parts[p] += tables.KaiBuiGoukei[f][p];
    }
    for (int r = 0; r < kDiameterRows; ++r) by_row += tables.KaiTaisaGoukei[f][r];
    EXPECT_EQ(tables.KaiGoukei[f], row);
    EXPECT_EQ(by_row, row);
    floors += row;
  }
  for (int r = 0; r < kDiameterRows; ++r) diameters += tables.TaisaGoukei[r];
  EXPECT_EQ(tables.BuiGoukei, parts);
  EXPECT_EQ(tables.SouGoukei, floors);
  EXPECT_EQ(tables.SouTeiGoukei, diameters);
  EXPECT_TRUE(IsWhole(floors) && IsWhole(diameters));
}

TEST(FloorLaws, WeightsAddUpByFloorByPartAndByDiameterInWholeKilograms) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    for (const bool installed : {false, true}) {
      for (const double uplift : {0.0, 0.07}) {
        for (const bool use_13m : {false, true}) {
          ExpectSumsAgree(
              Floors(RandomSchedule(seed),
                     {.installed = installed, .uplift = uplift, .columns = ColumnsInUse(use_13m)}));
        }
      }
    }
  }
}

TEST(FloorLaws, TheTwoGrandTotalsLieWithinHalfAKilogramARoundedCell) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables tables = Floors(RandomSchedule(seed));
    int rounded = 0;
    for (int f = 0; f < kFloorCount; ++f) {
      for (int p = 0; p < kPartEntries; ++p) {
        EachCell([&](int r, int c) { rounded += tables.KaiBuiJyuuryo[f][p][r][c] != Currency() ? 1 : 0; });
      }
    }
    EachCell([&](int r, int c) { rounded += tables.TaisaTeiGoukei[r][c] != Currency() ? 1 : 0; });
    EXPECT_LE(std::abs((tables.SouGoukei - tables.SouTeiGoukei).ToDouble()), rounded * 0.5);
  }
}

TEST(FloorLaws, TheListAddsUpToItsTotalRow) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables tables = Floors(RandomSchedule(seed));
    ListRow sum{"合　計", {}, {}};
    for (std::size_t i = 0; i + 1 < tables.KaiGyou.size(); ++i) {
      for (int p = 0; p < kPartEntries; ++p) sum.parts[p] += tables.KaiGyou[i].parts[p];
      sum.total += tables.KaiGyou[i].total;
    }
    EXPECT_EQ(tables.KaiGyou.back(), sum);
  }
}

TEST(FloorLaws, AFloorTalliedAloneIsTheFloorOfTheWholeTally) {
  const Schedule schedule = RandomSchedule(3);
  const FloorTables all = Floors(schedule);
  for (const std::int16_t floor : kFloors) {
    const FloorTables alone =
        Floors(Only(schedule, [floor](const Placed& placed) { return placed.floor == floor; }));
    const int f = FloorIndex(floor);
    EXPECT_EQ(alone.KaiHonsu[f], all.KaiHonsu[f]) << floor;
    EXPECT_EQ(alone.KaiBuiGoukei[f], all.KaiBuiGoukei[f]) << floor;
    EXPECT_EQ(alone.KaiGoukei[f], all.KaiGoukei[f]) << floor;
    EXPECT_EQ(alone.SouGoukei, all.KaiGoukei[f]) << floor;
    EXPECT_EQ(alone.SouHonsu, all.KaiHonsu[f]) << floor;
  }
}

TEST(FloorLaws, TheOrderOfTheRowsChangesNoCountAndNoStockWeight) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    Schedule schedule = RandomSchedule(seed);
    std::erase_if(schedule, [](const Placed& placed) { return placed.row.IsOf(MaterialKind::ulbon); });
    const FloorTables before = Floors(schedule);
    std::shuffle(schedule.begin(), schedule.end(), RandomRows(seed).Engine());
    EXPECT_EQ(Floors(schedule), before);
  }
}

TEST(FloorLaws, AllRowsAreTheRowsWithoutHoopsAndTheHoops) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const Schedule schedule = RandomSchedule(seed);
    const FloorTables all = Walked(schedule);
    const FloorTables without = Walked(schedule, {.rows = {.hoops = ShapeFilter::left_out}});
    const FloorTables alone =
        Walked(Only(schedule, [](const Placed& placed) { return placed.row.IsHoop(); }));
    EachCell(
        [&](int r, int c) { EXPECT_EQ(all.SouHonsu[r][c], without.SouHonsu[r][c] + alone.SouHonsu[r][c]); });
    for (int r = 0; r < kDiameterRows; ++r) {
      EXPECT_EQ(all.Assetu.Taisa[r], without.Assetu.Taisa[r] + alone.Assetu.Taisa[r]);
    }
    // Threads, plates and cuts of hoops stay when the hoops are left out.
    EXPECT_EQ(all.Neji, without.Neji);
    EXPECT_EQ(all.Teichaku, without.Teichaku);
    EXPECT_EQ(all.Setsudan, without.Setsudan);
  }
}

TEST(FloorLaws, NotCountingHoopWeldsChangesWeldsAlone) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const Schedule schedule = RandomSchedule(seed);
    FloorTables not_counted = Floors(schedule, {.rows = {.count_hoop_welds = false}});
    const FloorTables counted = Floors(schedule);
    EXPECT_EQ(not_counted.Assetu,
              Floors(Only(schedule, [](const Placed& placed) { return !placed.row.IsHoop(); })).Assetu);
    not_counted.Assetu = counted.Assetu;
    EXPECT_EQ(not_counted, counted);
  }
}

TEST(FloorLaws, TheWeightShownChangesNoCountAndNoStockWeight) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables stock = Floors(RandomSchedule(seed));
    const FloorTables installed = Floors(RandomSchedule(seed), {.installed = true});
    EXPECT_EQ(installed.KaiBuiHonsu, stock.KaiBuiHonsu);
    EXPECT_EQ(installed.KaiBuiTeiJyuuryo, stock.KaiBuiTeiJyuuryo);
    EXPECT_EQ(installed.TaisaTeiGoukei, stock.TaisaTeiGoukei);
    EXPECT_EQ(installed.SouTeiGoukei, stock.SouTeiGoukei);
    EXPECT_EQ(installed.SouTorituke, installed.SouGoukei);
    EXPECT_NE(installed.SouGoukei, stock.SouGoukei);
    // Thin bars are installed weight in both.
    for (int r = kDeformedRows; r < kDiameterRows; ++r) {
      EXPECT_EQ(installed.TaisaGoukei[r], stock.TaisaGoukei[r]);
      EXPECT_EQ(installed.TaisaTorituke[r], stock.TaisaGoukei[r]);
    }
  }
}

TEST(FloorLaws, UpliftRaisesEveryBarCountByItsPercentToHalfABarACell) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables plain = Floors(RandomSchedule(seed));
    const FloorTables raised = Floors(RandomSchedule(seed), {.uplift = 0.07});
    for (int f = 0; f < kFloorCount; ++f) {
      EachCell([&](int r, int c) {
        for (int p = 0; p < kPartEntries; ++p) {
          const double expected = plain.KaiBuiHonsu[p][f][r][c] * (c == kColumn13m ? 1.0 : 1.07);
          EXPECT_NEAR(raised.KaiBuiHonsu[p][f][r][c], expected, 0.5);
        }
        if (r >= kDeformedRows || c == kColumn13m) return;
        std::int32_t parts = 0;
        for (int p = 0; p < kPartEntries; ++p) parts += raised.KaiBuiHonsu[p][f][r][c];
        EXPECT_EQ(raised.KaiHonsu[f][r][c], parts);
      });
    }
    EXPECT_EQ(raised.Assetu, plain.Assetu);
  }
}

TEST(PartLaws, CountsAndFittingsAreThoseOfAllFloors) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const FloorTables floors = Walked(RandomSchedule(seed));
    const PartTables parts = Parts(RandomSchedule(seed));
    for (int p = 0; p < kPartEntries; ++p) {
      EachCell([&](int r, int c) {
        std::int32_t bars = 0;
        for (int f = 0; f < kFloorCount; ++f) bars += floors.KaiBuiHonsu[p][f][r][c];
        EXPECT_EQ(parts.BuiHonsu[p][r][c], bars);
      });
    }
    for (std::size_t i = 0; i < kPartFittings.size(); ++i) {
      EXPECT_EQ((parts.*kPartFittings[i].tables).Taisa, (floors.*kFloorFittings[i].tables).Taisa);
    }
  }
}

TEST(PartLaws, SumsAddUpByPartAndByDiameter) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    for (const double uplift : {0.0, 0.07}) {
      const PartTables tables = Parts(RandomSchedule(seed), {.uplift = uplift});
      Currency by_part;
      Currency by_row;
      for (int p = 0; p < kPartEntries; ++p) by_part += tables.BuiGoukei[p];
      for (int r = 0; r < kDiameterRows; ++r) by_row += tables.TaisaGoukei[r];
      EXPECT_EQ(tables.SouGoukei, by_part);
      EXPECT_EQ(tables.SouGoukei, by_row);
      EXPECT_TRUE(IsWhole(tables.SouGoukei));
      Currency listed;
      for (std::size_t i = 0; i + 1 < tables.BuiGyou.size(); ++i) listed += tables.BuiGyou[i].total;
      EXPECT_EQ(tables.BuiGyou.back().total, listed);
      EachCell([&](int r, int c) {
        std::int32_t bars = 0;
        for (int p = 0; p < kPartEntries; ++p) bars += tables.BuiHonsu[p][r][c];
        EXPECT_EQ(tables.TaisaHonsu[r][c], c == kColumn13m ? 0 : bars);
      });
    }
  }
}

TEST(PartLaws, OneFloorAloneWeighsTheSameByFloorAndByPart) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    Schedule schedule = RandomSchedule(seed);
    for (Placed& placed : schedule) placed.floor = 1;
    const FloorTables floors = Floors(schedule);
    const PartTables parts = Parts(schedule);
    EXPECT_EQ(floors.BuiGoukei, parts.BuiGoukei);
    EXPECT_EQ(std::as_const(floors.KaiTaisaGoukei)[FloorIndex(1)], parts.TaisaGoukei);
    EXPECT_EQ(floors.SouGoukei, parts.SouGoukei);
  }
}

class RandomFloorSite : public testing::Test {
 protected:
  RandomFloorSite() : schedule_(RandomSchedule(11, 400)) {
    Transaction transaction(site_.Work());
    for (const auto& [floor, row] : schedule_) site_.Add(floor, FieldsOf(row));
    transaction.Commit();
    Selection.KaiStart = 0;
    Selection.KaiEnd = 75;
    Selection.KaiMin = -5;
    Selection.TokubetuMask = SpecialMask::All();
  }

  Schedule Thin(bool thin) const {
    return Only(schedule_,
                [thin](const Placed& placed) { return placed.row.IsOf(MaterialKind::ulbon) == thin; });
  }

  FloorSite site_;
  Schedule schedule_;
};

TEST_F(RandomFloorSite, TheFloorTallyReadsFromTheFileWhatWasFoldedInMemory) {
  for (const bool thin : {false, true}) {
    Selection.MaterialKindMask = thin ? KindMask(0) : kAllKinds;
    for (const bool installed : {false, true}) {
      SaveSetting(kFloorTallyStockKey, installed ? 1 : 0);
      Kai_Jyuuryo_Syukei();
      FloorTables expected = Floors(Thin(thin), {.installed = installed});
      expected.KaiGyou = FloorTally.KaiGyou;
      expected.KaiGyouKai = FloorTally.KaiGyouKai;
      expected.HoopAri = expected.TeiAri = true;
      EXPECT_EQ(FloorTally, expected);
      EXPECT_EQ(FloorTally.KaiGyouSuu(), 85);
    }
  }
}

TEST_F(RandomFloorSite, ThePartTallyReadsFromTheFileWhatWasFoldedInMemory) {
  Bui_Jyuuryo_Syukei(-5, 75, 1, 1, 1);
  PartTables expected = Parts(Thin(false));
  ListParts(expected, false);
  expected.HoopAri = expected.TeiAri = true;
  EXPECT_EQ(PartTally, expected);
}

TEST_F(RandomFloorSite, CountsWhatTheBulkTallyCountsWhereTheStockHasAColumn) {
  site_.Work().Execute("DELETE * FROM 加工テーブル WHERE 伸定尺=12.5");
  Kai_Jyuuryo_Syukei();
  Jyuuryo_Syukei();
  for (int r = 0; r < kDeformedRows; ++r) {
    for (int c = 0; c < kStockColumns; ++c) EXPECT_EQ(FloorTally.SouHonsu[r][c], TallyGrid.BarCount[r][c]);
    EXPECT_EQ(FloorTally.Assetu.Taisa[r], TallyGrid.WeldCount[r]);
    EXPECT_EQ(FloorTally.Neji.Taisa[r], TallyGrid.ThreadCount[r]);
    EXPECT_EQ(FloorTally.Teichaku.Taisa[r], TallyGrid.PlateCount[r]);
    EXPECT_EQ(FloorTally.Setsudan.Taisa[r], TallyGrid.CutCount[r]);
  }
  Selection.MaterialKindMask = KindMask(0);
  Kai_Jyuuryo_Syukei();
  for (int r = kDeformedRows; r < kDiameterRows; ++r) {
    EXPECT_EQ(FloorTally.Assetu.Taisa[r], TallyGrid.UlbonWeldCount[r]);
  }
}

TEST_F(RandomFloorSite, TheKindsAddUpToAllKinds) {
  Kai_Jyuuryo_Syukei();
  const FloorTables all = FloorTally;
  FloorTables::Counts sum;
  for (const int mask : {1, 2, 4, 8}) {
    Selection.MaterialKindMask = KindMask(mask);
    Kai_Jyuuryo_Syukei();
    EachCell([&](int r, int c) { sum[r][c] += FloorTally.SouHonsu[r][c]; });
  }
  EXPECT_EQ(sum, all.SouHonsu);
}

TEST_F(RandomFloorSite, ThePlateModesAddUp) {
  FloorTables::Counts bars[3];
  for (int mode = 0; mode < 3; ++mode) {
    Selection.AnchorPlateMode = ShapeFilterOf(mode);
    Kai_Jyuuryo_Syukei();
    bars[mode] = FloorTally.SouHonsu;
  }
  EachCell([&](int r, int c) { EXPECT_EQ(bars[0][r][c], bars[1][r][c] + bars[2][r][c]); });
}

TEST_F(RandomFloorSite, ATallyLoadedFromItsOwnCellsIsTheTally) {
  Kai_Jyuuryo_Syukei();
  FloorTables tallied = FloorTally;
  Kai_Jyuuryo_Syukei_Load();
  tallied.HoopAri = tallied.TeiAri = false;
  EXPECT_EQ(FloorTally, tallied);
  Bui_Jyuuryo_Syukei(-5, 75, 1, 1, 1);
  PartTables parts = PartTally;
  Bui_Jyuuryo_Syukei_Load();
  parts.HoopAri = parts.TeiAri = false;
  EXPECT_EQ(PartTally, parts);
}

}  // namespace
}  // namespace rbt
