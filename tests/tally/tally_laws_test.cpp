// SPDX-License-Identifier: MIT
// Laws that hold over every schedule, tried on random ones.
#include <algorithm>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "data/bar_tables.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/schedule_site.h"
#include "tally/closing_sums.h"
#include "tally/groups/shape_tally.h"
#include "tally/random_rows.h"
#include "tally/rows/bulk_tally.h"
#include "tally/rows/page_tally.h"
#include "tally/rows/row_fold.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {
namespace {

using test::AddRow;
using test::RandomRows;

constexpr ShapeFilter kShapeFilters[] = {ShapeFilter::with_others, ShapeFilter::left_out, ShapeFilter::alone};

RowRules Bulk(ShapeFilter hoops = ShapeFilter::with_others) {
  RowRules rules;
  rules.hoops = hoops;
  rules.counts_without_column_by_choice = CalcChoice::high_strength_with_others;
  return rules;
}

TallyTable Folded(const std::vector<BarRow>& rows, const RowRules& rules) {
  TallyTable table;
  for (const BarRow& row : rows) FoldRow(table, row, rules);
  return table;
}

std::vector<BarRow> Only(const std::vector<BarRow>& rows, bool hoops) {
  std::vector<BarRow> chosen;
  std::copy_if(rows.begin(), rows.end(), std::back_inserter(chosen),
               [hoops](const BarRow& row) { return row.IsHoop() == hoops; });
  return chosen;
}

void ExpectCountsAdd(const TallyTable& whole, const TallyTable& a, const TallyTable& b) {
  for (int d = 0; d < 19; ++d) {
    for (int l = 0; l < 19; ++l) {
      EXPECT_EQ(whole.BarCount[d][l], a.BarCount[d][l] + b.BarCount[d][l]);
      EXPECT_EQ(whole.StockWeight[d][l], a.StockWeight[d][l] + b.StockWeight[d][l]);
    }
    EXPECT_EQ(whole.WeldCount[d], a.WeldCount[d] + b.WeldCount[d]);
    EXPECT_EQ(whole.UlbonWeldCount[d], a.UlbonWeldCount[d] + b.UlbonWeldCount[d]);
    EXPECT_NEAR(whole.UlbonLengthM[d], a.UlbonLengthM[d] + b.UlbonLengthM[d], 1e-6);
  }
}

TEST(TallyLaws, TwoHalvesOfAScheduleAddUpToTheWhole) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::vector<BarRow> rows = RandomRows(seed).Many(300);
    const auto half = rows.begin() + 120;
    const TallyTable whole = Folded(rows, Bulk());
    const TallyTable a = Folded({rows.begin(), half}, Bulk());
    const TallyTable b = Folded({half, rows.end()}, Bulk());
    ExpectCountsAdd(whole, a, b);
    for (int d = 0; d < 19; ++d) {
      EXPECT_EQ(whole.ThreadCount[d], a.ThreadCount[d] + b.ThreadCount[d]);
      EXPECT_EQ(whole.PlateCount[d], a.PlateCount[d] + b.PlateCount[d]);
      EXPECT_EQ(whole.CutCount[d], a.CutCount[d] + b.CutCount[d]);
    }
    EXPECT_EQ(whole.HighStrengthRowCount, a.HighStrengthRowCount + b.HighStrengthRowCount);
  }
}

TEST(TallyLaws, TheOrderOfTheRowsChangesNoCountAndNoStockWeight) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomRows random(seed);
    std::vector<BarRow> rows = random.Many(300);
    const TallyTable before = Folded(rows, Bulk());
    std::shuffle(rows.begin(), rows.end(), random.Engine());
    const TallyTable after = Folded(rows, Bulk());
    EXPECT_EQ(before.BarCount, after.BarCount);
    EXPECT_EQ(before.StockWeight, after.StockWeight);
    EXPECT_EQ(before.WeldCount, after.WeldCount);
    EXPECT_EQ(before.ThreadCount, after.ThreadCount);
    EXPECT_EQ(before.PlateCount, after.PlateCount);
    EXPECT_EQ(before.CutCount, after.CutCount);
  }
}

TEST(TallyLaws, AllRowsAreTheRowsWithoutHoopsAndTheHoopsWhereTheStockHasAColumn) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::vector<BarRow> rows = RandomRows(seed).Many(300);
    std::erase_if(rows, [](const BarRow& row) { return row.stock_length_m == 12.5; });
    const TallyTable all = Folded(rows, Bulk(ShapeFilter::with_others));
    const TallyTable without = Folded(rows, Bulk(ShapeFilter::left_out));
    const TallyTable only = Folded(Only(rows, true), Bulk(ShapeFilter::alone));
    ExpectCountsAdd(all, without, only);
    for (int d = 0; d < 13; ++d) {
      for (int l = 0; l < 19; ++l) {
        EXPECT_NEAR(all.CutLengthM[d][l], without.CutLengthM[d][l] + only.CutLengthM[d][l], 1e-6);
      }
    }
    // Threads, plates and cuts of hoops stay when the hoops are left out.
    EXPECT_EQ(all.ThreadCount, without.ThreadCount);
    EXPECT_EQ(all.PlateCount, without.PlateCount);
    EXPECT_EQ(all.CutCount, without.CutCount);
  }
}

TEST(TallyLaws, LeavingHoopsOutKeepsTheLengthsThatHaveNoColumn) {
  std::vector<BarRow> rows = RandomRows(7).Many(300);
  std::erase_if(rows, [](const BarRow& row) {
    return row.stock_length_m != 12.5 || !row.IsHoop() || row.IsOf(MaterialKind::ulbon);
  });
  ASSERT_FALSE(rows.empty());
  EXPECT_EQ(Folded(rows, Bulk(ShapeFilter::with_others)).CutLengthM,
            Folded(rows, Bulk(ShapeFilter::left_out)).CutLengthM);
}

TEST(TallyLaws, NotCountingHoopWeldsChangesWeldsOnly) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const std::vector<BarRow> rows = RandomRows(seed).Many(300);
    RowRules rules = Bulk();
    rules.count_hoop_welds = false;
    TallyTable not_counted = Folded(rows, rules);
    const TallyTable counted = Folded(rows, Bulk());
    const TallyTable without_hoops = Folded(Only(rows, false), Bulk());
    EXPECT_EQ(not_counted.WeldCount, without_hoops.WeldCount);
    EXPECT_EQ(not_counted.UlbonWeldCount, without_hoops.UlbonWeldCount);
    not_counted.WeldCount = counted.WeldCount;
    not_counted.UlbonWeldCount = counted.UlbonWeldCount;
    EXPECT_EQ(not_counted, counted);
  }
}

TEST(TallyLaws, SumsByDiameterLieWithinHalfAKilogramACell) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    TallyTable table = Folded(RandomRows(seed).Many(300), Bulk());
    CloseSums(table, {.sum_13m_column = true});
    Currency total;
    for (int d = 0; d < 12; ++d) {
      Currency exact;
      Currency installed;
      for (int l = 0; l < 19; ++l) {
        exact += table.StockWeight[d][l];
        installed += table.InstalledWeight[d][l];
      }
      EXPECT_LE(std::abs((table.StockWeightByDia[d] - exact).ToDouble()), 19 * 0.5);
      EXPECT_EQ(table.InstalledWeightByDia[d], installed);
      total += table.StockWeightByDia[d];
    }
    EXPECT_EQ(table.TotalStockWeight, total);  // whole kilograms stay whole
  }
}

TEST(TallyLaws, ACappedTallyIsNeverHeavierInstalledThanInStock) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    TallyTable table = Folded(RandomRows(seed).Many(300), Bulk());
    CloseSums(table, {.cap_installed_weight = true});
    for (int d = 0; d < 12; ++d) EXPECT_LE(table.InstalledWeightByDia[d], table.StockWeightByDia[d]);
    EXPECT_GE(table.LossRatePercent, 0.0);
  }
}

class RandomSchedule : public testing::Test {
 protected:
  RandomSchedule() : rows_(RandomRows(11).Many(400)) {
    Transaction transaction(site_.Work());
    for (const BarRow& row : rows_) AddRow(site_, row);
    transaction.Commit();
  }

  static TallyTable Tallied() {
    Jyuuryo_Syukei();
    return TallyGrid;
  }

  test::ScheduleSite site_;
  std::vector<BarRow> rows_;
};

TEST_F(RandomSchedule, ReadsFromTheFileWhatWasFoldedInMemory) {
  TallyTable expected = Folded(rows_, Bulk());
  CloseSums(expected, {});
  EXPECT_EQ(Tallied(), expected);
}

TEST_F(RandomSchedule, TheKindsAddUpToAllKinds) {
  const TallyTable all = Tallied();
  Checked2D<std::int32_t, 19, 19> sum;
  for (const int mask : {1, 2, 4, 8}) {
    Selection.MaterialKindMask = KindMask(mask);
    const TallyTable kind = Tallied();
    for (int d = 0; d < 19; ++d) {
      for (int l = 0; l < 19; ++l) sum[d][l] += kind.BarCount[d][l];
    }
    EXPECT_EQ(kind.UlbonWeight, all.UlbonWeight) << mask;
  }
  EXPECT_EQ(sum, all.BarCount);
}

TEST_F(RandomSchedule, TheHoopModesAddUpWhereTheStockHasAColumn) {
  const TallyTable all = Tallied();
  Selection.HoopMode = ShapeFilter::left_out;
  const TallyTable without = Tallied();
  Selection.HoopMode = ShapeFilter::alone;
  const TallyTable only = Tallied();
  EXPECT_TRUE(RunState.HasHoopRows);
  ExpectCountsAdd(all, without, only);
  EXPECT_EQ(all.CutCount, without.CutCount);
}

TEST_F(RandomSchedule, ThePlateModesAddUp) {
  const TallyTable all = Tallied();
  Selection.AnchorPlateMode = ShapeFilter::left_out;
  const TallyTable without = Tallied();
  Selection.AnchorPlateMode = ShapeFilter::alone;
  const TallyTable only = Tallied();
  ExpectCountsAdd(all, without, only);
  for (int d = 0; d < 19; ++d) EXPECT_EQ(all.PlateCount[d], without.PlateCount[d] + only.PlateCount[d]);
}

TEST_F(RandomSchedule, ASecondTallyOfTheSameSelectionIsTheSame) {
  const TallyTable first = Tallied();
  EXPECT_EQ(Tallied(), first);
}

/// Rows that the tallies by groups take: every shape and length known, Ulbon welded to Ulbon alone.
std::vector<BarRow> GroupableRows(unsigned seed, int count) {
  std::vector<BarRow> rows = RandomRows(seed).Many(count);
  for (BarRow& row : rows) {
    row.shape = row.shape.value_or(1);
    row.pieces = row.pieces.value_or(7);
    row.cut_length_mm = row.cut_length_mm.value_or(2400);
    row.kind = row.kind.value_or(1);
    if (row.IsOf(MaterialKind::ulbon)) row.weld_diameter_code = std::nullopt;
  }
  return rows;
}

class GroupableSchedule : public testing::Test {
 protected:
  GroupableSchedule() : rows_(GroupableRows(5, 300)) {
    Transaction transaction(site_.Work());
    for (const BarRow& row : rows_) AddRow(site_, row, next_line_++);
    transaction.Commit();
    Selection.ShapeStart = 0;
    Selection.ShapeEnd = 999;
  }

  static TallyTable ByShape() {
    Keijou_Jyuuryo_Syukei();
    return TallyGrid;
  }
  TallyTable ByPageAndShape() const {
    PKeijou_Jyuuryo_Syukei(1, 1, 1, next_line_ - 1);
    return TallyGrid;
  }

  static double Metres(const TallyTable& table, int d) {
    double metres = 0.0;
    for (int l = 0; l < 19; ++l) metres += table.CutLengthM[d][l];
    return metres;
  }

  test::ScheduleSite site_;
  std::vector<BarRow> rows_;
  int next_line_ = 1;
};

TEST_F(GroupableSchedule, TheShapeTallyInstallsTheSameLengthAsTheBulkTally) {
  const TallyTable shapes = ByShape();
  Jyuuryo_Syukei();
  for (int d = 0; d < 12; ++d) EXPECT_NEAR(Metres(shapes, d), Metres(TallyGrid, d), 1e-6) << d;
  for (int d = 12; d < 18; ++d) EXPECT_NEAR(shapes.UlbonWeight[d], TallyGrid.UlbonWeight[d], 1e-6) << d;
}

TEST_F(GroupableSchedule, TheShapeTallyBuysAtLeastWhatIsInstalled) {
  for (const int loss_priority : {0, 1}) {
    SaveSetting("Kakou", "定尺計算", "ロス優先", std::to_string(loss_priority));
    const TallyTable shapes = ByShape();
    for (int d = 0; d < 12; ++d) {
      double bought = 0.0;
      for (int l = 0; l < 19; ++l) bought += shapes.BarCount[d][l] * StockMetres(l);
      EXPECT_GE(bought, Metres(shapes, d) - 1e-6) << d << ' ' << loss_priority;
    }
  }
}

TEST_F(GroupableSchedule, TheShapeTallyOfAllLinesIsTheShapeTallyOfAllShapes) {
  for (const int mask : {1, 2, 3, 4, 7, 10, 14, 15}) {
    Selection.MaterialKindMask = KindMask(mask);
    for (const ShapeFilter hoops : kShapeFilters) {
      Selection.HoopMode = hoops;
      TallyTable shapes = ByShape();
      if (!RunState.HasHoopRows) continue;  // the cuts have no range then
      const TallyTable lines = ByPageAndShape();
      for (int d = 12; d < 18; ++d) EXPECT_NEAR(shapes.UlbonWeight[d], lines.UlbonWeight[d], 1e-6);
      shapes.UlbonWeight = lines.UlbonWeight;  // grouped by stock too, and so added in other steps
      shapes.UlbonLengthM = lines.UlbonLengthM;
      EXPECT_EQ(shapes, lines) << mask << ' ' << static_cast<int>(hoops);
    }
  }
}

TEST_F(GroupableSchedule, ThePageTallyOfAllLinesIsTheBulkTallyWhereEveryStockHasAColumn) {
  site_.Work().Execute("DELETE * FROM 加工テーブル WHERE 伸定尺=12.5");
  for (const ShapeFilter hoops : kShapeFilters) {
    Selection.HoopMode = hoops;
    Jyuuryo_Syukei();
    const TallyTable bulk = TallyGrid;
    const PositionRange lines = *WholePositionRange(site_.Work(), TallyKind::page);
    PG_Jyuuryo_Syukei(static_cast<std::int16_t>(lines.first.page),
                      static_cast<std::int16_t>(lines.first.line), static_cast<std::int16_t>(lines.last.page),
                      static_cast<std::int16_t>(lines.last.line));
    EXPECT_EQ(TallyGrid, bulk) << static_cast<int>(hoops);
  }
}

}  // namespace
}  // namespace rbt
