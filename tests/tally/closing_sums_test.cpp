// SPDX-License-Identifier: MIT
#include "tally/closing_sums.h"

#include <limits>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/kilograms.h"

namespace rbt {
namespace {

using test::Kg;

TallyTable Closed(TallyTable table, const ClosingRules& rules = {}) {
  CloseSums(table, rules);
  return table;
}

TEST(CloseSums, RoundsEachStockCellThenSumsAndKeepsInstalledWeightUnroundedToTheTotal) {
  TallyTable table;
  table.StockWeight[0][0] = Kg(1.96);  // rounds to 2
  table.StockWeight[0][1] = Kg(2.24);  // rounds to 2
  table.StockWeight[0][2] = Kg(2.5);   // half goes up: 3
  table.CutLengthM[0][0] = 3.0;        // x 0.56 = 1.68
  table.CutLengthM[0][1] = 3.3;        // x 0.56 = 1.848
  table.CutLengthM[3][5] = 4.0;        // x 2.25 = 9
  table = Closed(table);
  EXPECT_EQ(table.StockWeightByDia[0], Kg(7));
  EXPECT_EQ(table.InstalledWeight[0][0], Kg(1.68));
  EXPECT_EQ(table.InstalledWeight[0][1], Kg(1.848));
  EXPECT_EQ(table.InstalledWeightByDia[0], Kg(3.528));
  EXPECT_EQ(table.InstalledWeightByDia[3], Kg(9));
  EXPECT_EQ(table.TotalStockWeight, Kg(7));
  EXPECT_EQ(table.TotalInstalledWeight, Kg(13));  // 3.528 rounds to 4, and 9
}

TEST(CloseSums, BringsEachInstalledCellToFourDecimals) {
  TallyTable table;
  table.CutLengthM[1][0] = 1.001;  // x 0.995 = 0.995995
  table.CutLengthM[1][1] = 1.001;
  table = Closed(table);
  EXPECT_EQ(table.InstalledWeight[1][0], Kg(0.996));
  EXPECT_EQ(table.InstalledWeightByDia[1], Kg(1.992));
}

TEST(CloseSums, LeaveStockOf13MetresOutUnlessTheColumnIsOn) {
  TallyTable table;
  table.StockWeight[3][18] = Kg(58.4);
  table.CutLengthM[3][18] = 12.0;
  const TallyTable off = Closed(table);
  EXPECT_EQ(off.TotalStockWeight, Kg(0));
  EXPECT_EQ(off.TotalInstalledWeight, Kg(0));
  EXPECT_EQ(off.InstalledWeight[3][18], Kg(0));
  const TallyTable on = Closed(table, {.sum_13m_column = true});
  EXPECT_EQ(on.TotalStockWeight, Kg(58));
  EXPECT_EQ(on.TotalInstalledWeight, Kg(27));
  EXPECT_EQ(on.InstalledWeight[3][18], Kg(27));
}

TEST(CloseSums, CapEachDiametersInstalledWeightBeforeTheTotals) {
  TallyTable table;
  table.StockWeight[0][0] = Kg(10);
  table.CutLengthM[0][0] = 20.0;  // 11.2 kg, more than the stock
  table.StockWeight[3][5] = Kg(27);
  table.CutLengthM[3][5] = 8.0;  // 18 kg
  const TallyTable capped = Closed(table, {.cap_installed_weight = true});
  EXPECT_EQ(capped.InstalledWeightByDia[0], Kg(10));
  EXPECT_EQ(capped.InstalledWeightByDia[3], Kg(18));
  EXPECT_EQ(capped.TotalInstalledWeight, Kg(28));
  EXPECT_EQ(capped.InstalledWeight[0][0], Kg(11.2));
  EXPECT_EQ(Closed(table).TotalInstalledWeight, Kg(29));
}

TEST(CloseSums, AddTheLengthsThatStandInNoCell) {
  TallyTable table;
  table.LengthWithoutColumnM[3] = 12.0;
  table = Closed(table);
  EXPECT_EQ(table.InstalledWeightByDia[3], Kg(27));
  EXPECT_EQ(table.TotalInstalledWeight, Kg(27));
  EXPECT_EQ(table.InstalledWeight, TallyTable().InstalledWeight);
}

TEST(CloseSums, TotalTheCountsOfTheDeformedDiametersOnly) {
  TallyTable table;
  for (int d = 0; d < 13; ++d) {
    table.WeldCount[d] = 1;
    table.ThreadCount[d] = 2;
    table.PlateCount[d] = 3;
    table.CutCount[d] = 4;
  }
  table = Closed(table);
  EXPECT_EQ(table.TotalWeldCount, 12);
  EXPECT_EQ(table.TotalThreadCount, 24);
  EXPECT_EQ(table.TotalPlateCount, 36);
  EXPECT_EQ(table.TotalCutCount, 48);
}

TEST(CloseSums, GiveTheLossInPercentOfTheInstalledWeightUnrounded) {
  TallyTable table;
  table.StockWeight[3][5] = Kg(27);
  table.CutLengthM[3][5] = 10.0;  // 22.5 kg, 23 in the total
  EXPECT_EQ(Closed(table).LossRatePercent, 4.0 / 23.0 * 100.0);
}

TEST(CloseSums, GiveNoLossWhenEitherWeightIs0) {
  TallyTable stock_only;
  stock_only.StockWeight[3][5] = Kg(27);
  EXPECT_EQ(Closed(stock_only).LossRatePercent, 0.0);
  TallyTable installed_only;
  installed_only.CutLengthM[3][0] = 10.0;
  EXPECT_EQ(Closed(installed_only).LossRatePercent, 0.0);
}

TEST(CloseSums, FaultWhenATotalLeaves32Bits) {
  TallyTable table;
  table.WeldCount[0] = std::numeric_limits<std::int32_t>::max();
  table.WeldCount[1] = 1;
  EXPECT_THROW(CloseSums(table, {}), Fault);
}

}  // namespace
}  // namespace rbt
