// SPDX-License-Identifier: MIT
#include "tally/site_sum.h"

#include <limits>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/kilograms.h"
#include "tally/random_rows.h"
#include "tally/rows/row_fold.h"

namespace rbt {
namespace {

using test::Kg;

/// One cell of D19 by 6.0 m with welds, and metres of U 9.
TallyTable SmallSite() {
  TallyTable table;
  table.BarCount[3][5] = 10;
  table.StockWeight[3][5] = Kg(135);
  table.CutLengthM[3][5] = 44.0;  // x 2.25 = 99
  table.WeldCount[3] = 4;
  table.ThreadCount[3] = 3;
  table.PlateCount[3] = 2;
  table.CutCount[3] = 1;
  table.UlbonLengthM[14] = 21.0;
  table.UlbonWeight[14] = 10.5;
  table.UlbonWeldCount[14] = 6;
  CloseSums(table, {});
  return table;
}

TallyResult Added(const TallyTable& before, const TallyTable& site, const ClosingRules& rules = {}) {
  return SumOfSites(KeptForSum(before), TallyResult{.tables = site}, rules);
}

/// A site of random rows, as the bulk tally folds and closes it.
TallyTable RandomSite(unsigned seed, const ClosingRules& rules) {
  test::RandomRows random(seed);
  RowRules row_rules;
  row_rules.counts_without_column_by_choice = CalcChoice::high_strength_with_others;
  TallyTable table;
  for (int i = 0; i < 200; ++i) FoldRow(table, random.Next(), row_rules);
  CloseSums(table, rules);
  return table;
}

TEST(SumOfSites, AddsCellsFittingsAndUlbonAndClosesTheSumsAnew) {
  const TallyResult sum = Added(SmallSite(), SmallSite());
  const TallyTable& table = sum.Grid();
  EXPECT_EQ(sum.origin, ResultOrigin::accumulated);
  EXPECT_EQ(table.BarCount[3][5], 20);
  EXPECT_EQ(table.StockWeight[3][5], Kg(270));
  EXPECT_EQ(table.InstalledWeight[3][5], Kg(198));
  EXPECT_EQ(table.StockWeightByDia[3], Kg(270));
  EXPECT_EQ(table.InstalledWeightByDia[3], Kg(198));
  EXPECT_EQ(table.TotalStockWeight, Kg(270));
  EXPECT_EQ(table.TotalInstalledWeight, Kg(198));
  EXPECT_EQ(table.WeldCount[3], 8);
  EXPECT_EQ(table.TotalWeldCount, 8);
  EXPECT_EQ(table.TotalThreadCount, 6);
  EXPECT_EQ(table.TotalPlateCount, 4);
  EXPECT_EQ(table.TotalCutCount, 2);
  EXPECT_EQ(table.UlbonLengthM[14], 42.0);
  EXPECT_EQ(table.UlbonWeight[14], 21.0);
  EXPECT_EQ(table.UlbonWeldCount[14], 12);
  EXPECT_DOUBLE_EQ(table.LossRatePercent, (270.0 - 198.0) / 198.0 * 100.0);
}

TEST(SumOfSites, OnTopOfNothingIsTheSiteAlone) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const ClosingRules rules{.sum_13m_column = seed % 2 == 0, .cap_installed_weight = seed % 3 == 0};
    const TallyTable site = RandomSite(seed, rules);
    EXPECT_EQ(SumOfSites(TallyTable(), TallyResult{.tables = site}, rules).Grid(), site) << seed;
  }
}

TEST(SumOfSites, RoundsTheCellOfTheSumNotThatOfEachSite) {
  TallyTable site;
  site.StockWeight[0][0] = Kg(1.3);
  CloseSums(site, {});
  EXPECT_EQ(site.TotalStockWeight, Kg(1));
  EXPECT_EQ(Added(site, site).Grid().TotalStockWeight, Kg(3));  // 2.6, not 1 + 1
}

TEST(SumOfSites, CapsTheInstalledWeightOfTheSumNotThatOfEachSite) {
  constexpr ClosingRules kCapped{.cap_installed_weight = true};
  TallyTable over;
  over.StockWeight[3][5] = Kg(10);
  over.CutLengthM[3][5] = 8.0;  // x 2.25 = 18
  CloseSums(over, kCapped);
  EXPECT_EQ(over.InstalledWeightByDia[3], Kg(10));
  TallyTable under;
  under.StockWeight[3][5] = Kg(20);
  under.CutLengthM[3][5] = 4.0;  // 9
  CloseSums(under, kCapped);
  EXPECT_EQ(Added(over, under, kCapped).Grid().InstalledWeightByDia[3], Kg(27));
  EXPECT_EQ(Added(over, over, kCapped).Grid().InstalledWeightByDia[3], Kg(20));
}

TEST(SumOfSites, SumsThirteenMetresWhereTheSettingIsOn) {
  TallyTable site;
  site.StockWeight[3][18] = Kg(29);
  site.CutLengthM[3][18] = 12.0;
  CloseSums(site, {.sum_13m_column = true});
  EXPECT_EQ(Added(site, site, {.sum_13m_column = true}).Grid().TotalStockWeight, Kg(58));
  EXPECT_EQ(Added(site, site, {.sum_13m_column = true}).Grid().TotalInstalledWeight, Kg(54));
  const TallyTable off = Added(site, site).Grid();
  EXPECT_EQ(off.TotalStockWeight, Kg(0));
  EXPECT_EQ(off.StockWeight[3][18], Kg(58));
}

TEST(SumOfSites, KeepsAnUlbonWeightThatTheSiteAddsNoMetresTo) {
  TallyTable before;
  before.UlbonLengthM[12] = 1.0001;
  before.UlbonWeight[12] = 0.2351;
  EXPECT_EQ(Added(before, TallyTable()).Grid().UlbonWeight[12], 0.2351);
  TallyTable site;
  site.UlbonLengthM[12] = 1.0;
  site.UlbonWeight[12] = 0.235;
  EXPECT_EQ(Added(before, site).Grid().UlbonWeight[12], (1.0 + 1.0001) * 0.235);
}

TEST(SumOfSites, HasSpiralsHighStrengthAndWarningOfTheLastSiteAlone) {
  TallyTable before = SmallSite();
  before.SpiralWeight[0] = Kg(7);
  before.SpiralTotal = Kg(7);
  before.HighStrengthRowCount = 3;
  before.StockWarningText = "before";
  TallyTable site = SmallSite();
  site.SpiralWeight[1] = Kg(5);
  site.SpiralTotal = Kg(5);
  site.HighStrengthRowCount = 1;
  site.StockWarningText = "site";
  const TallyTable sum = Added(before, site).Grid();
  EXPECT_EQ(sum.SpiralWeight, site.SpiralWeight);
  EXPECT_EQ(sum.SpiralTotal, Kg(5));
  EXPECT_EQ(sum.HighStrengthRowCount, 1);
  EXPECT_EQ(sum.StockWarningText, "site");
}

TEST(SumOfSites, BeyondThirtyTwoBitsIsAnOverflow) {
  TallyTable full = SmallSite();
  full.BarCount[3][5] = std::numeric_limits<std::int32_t>::max();
  EXPECT_THROW(Added(full, SmallSite()), Fault);
}

TEST(SumOfSites, OfThreeSitesIsTheSumOfTheSingleTallies) {
  constexpr ClosingRules kRules{.sum_13m_column = true};
  for (unsigned seed = 1; seed <= 10; ++seed) {
    SCOPED_TRACE(seed);
    const TallyTable a = RandomSite(seed, kRules);
    const TallyTable b = RandomSite(seed + 100, kRules);
    const TallyTable c = RandomSite(seed + 200, kRules);
    const TallyTable sum = Added(Added(a, b, kRules).Grid(), c, kRules).Grid();
    EXPECT_EQ(sum.TotalWeldCount, a.TotalWeldCount + b.TotalWeldCount + c.TotalWeldCount);
    EXPECT_EQ(sum.TotalThreadCount, a.TotalThreadCount + b.TotalThreadCount + c.TotalThreadCount);
    EXPECT_EQ(sum.TotalPlateCount, a.TotalPlateCount + b.TotalPlateCount + c.TotalPlateCount);
    EXPECT_EQ(sum.TotalCutCount, a.TotalCutCount + b.TotalCutCount + c.TotalCutCount);
    for (int d = 0; d < kDeformedRows; ++d) {
      EXPECT_EQ(sum.InstalledWeightByDia[d],
                a.InstalledWeightByDia[d] + b.InstalledWeightByDia[d] + c.InstalledWeightByDia[d]);
      for (int l = 0; l < kStockColumns; ++l) {
        EXPECT_EQ(sum.BarCount[d][l], a.BarCount[d][l] + b.BarCount[d][l] + c.BarCount[d][l]);
        EXPECT_EQ(sum.StockWeight[d][l], a.StockWeight[d][l] + b.StockWeight[d][l] + c.StockWeight[d][l]);
      }
    }
    for (int d = kDeformedRows; d < kDiameterRows; ++d) {
      EXPECT_EQ(sum.UlbonWeldCount[d], a.UlbonWeldCount[d] + b.UlbonWeldCount[d] + c.UlbonWeldCount[d]);
      EXPECT_NEAR(sum.UlbonWeight[d], a.UlbonWeight[d] + b.UlbonWeight[d] + c.UlbonWeight[d], 0.001);
    }
  }
}

TEST(KeptForSum, KeepsACellForAnyOfItsFiguresAboveZeroAndDropsOthers) {
  TallyTable table;
  table.BarCount[0][0] = 1;
  table.StockWeight[1][1] = Kg(2);
  table.InstalledWeight[2][18] = Kg(3);
  table.BarCount[4][4] = -1;
  const TallyTable kept = KeptForSum(table);
  EXPECT_EQ(kept.BarCount[0][0], 1);
  EXPECT_EQ(kept.StockWeight[1][1], Kg(2));
  EXPECT_EQ(kept.InstalledWeight[2][18], Kg(3));
  EXPECT_EQ(kept.BarCount[4][4], 0);
}

TEST(KeptForSum, KeepsUlbonToFourDecimalsAndTwiceIsOnce) {
  TallyTable table = SmallSite();
  table.UlbonLengthM[17] = 1.23456;
  table.UlbonWeight[17] = 1.9259136;
  const TallyTable kept = KeptForSum(table);
  EXPECT_EQ(kept.UlbonLengthM[17], 1.2346);
  EXPECT_EQ(kept.UlbonWeight[17], 1.9259);
  EXPECT_EQ(KeptForSum(kept), kept);
}

}  // namespace
}  // namespace rbt
