// SPDX-License-Identifier: MIT
#include "tally/detail/detail_change.h"

#include <limits>

#include <gtest/gtest.h>

#include "support/fault_of.h"
#include "tally/detail/detail_samples.h"

namespace rbt {
namespace {

using namespace test;  // NOLINT: the samples' short names

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

std::int32_t Raised(std::int32_t count, double percent) {
  TallyTable table;
  table.BarCount[3][kAt6m] = count;
  return WithBarsRaised(table, percent, kColumnsTo12m).BarCount[3][kAt6m];
}

TEST(WithBarsRaised, RoundsTheUpliftOfEachCellHalfUpOnItsOwn) {
  EXPECT_EQ(Raised(1, 10), 1);       // 0.1 more
  EXPECT_EQ(Raised(1, 50), 2);       // 0.5 more
  EXPECT_EQ(Raised(4, 10), 4);       // 0.4 more
  EXPECT_EQ(Raised(5, 10), 6);       // 0.5 more
  EXPECT_EQ(Raised(100, 3.5), 104);  // 3.5 more
  EXPECT_EQ(Raised(0, 50), 0);
  EXPECT_EQ(Raised(7, 200), 21);
}

// The uplift of a negative percentage is cut towards 0 after the half is added.
TEST(WithBarsRaised, TakesBarsAwayByANegativePercentage) {
  EXPECT_EQ(Raised(100, -10), 91);  // Fix(-9.5) is -9
  EXPECT_EQ(Raised(1, -100), 1);    // Fix(-0.5) is 0
  EXPECT_EQ(Raised(2, -100), 1);    // Fix(-1.5) is -1
}

TEST(WithBarsRaised, CompoundsUponWhatTheCellsHold) {
  EXPECT_EQ(Raised(Raised(10, 10), 10), 12);  // 10, 11, and 1.1 more
}

// 5 D10 become 6: 11.76 kg. 10 D19 become 11: 148.5 kg. 3 D25 stay 3: 95.4 kg.
TEST(WithBarsRaised, BringsCellsToWholeKilogramsAndSumsTheStockAnew) {
  const TallyTable table = WithBarsRaised(TalliedTable(), 10, kColumnsTo12m);
  EXPECT_EQ(table.StockWeight[0][kAt3m5], Kg(12));
  EXPECT_EQ(table.StockWeight[3][kAt6m], Kg(149));
  EXPECT_EQ(table.StockWeight[5][kAt8m], Kg(95));
  EXPECT_EQ(table.StockWeightByDia[3], Kg(149));
  EXPECT_EQ(table.TotalStockWeight, Kg(12 + 149 + 95));
}

TEST(WithBarsRaised, By0LeavesTheCountsAndMakesTheWeightsWholeKilograms) {
  const TallyTable before = TalliedTable();
  const TallyTable table = WithBarsRaised(before, 0, kColumnsTo12m);
  EXPECT_EQ(table.BarCount, before.BarCount);
  EXPECT_EQ(before.StockWeight[0][kAt3m5], Kg(9.8));
  EXPECT_EQ(table.StockWeight[0][kAt3m5], Kg(10));
  EXPECT_EQ(table.TotalStockWeight, before.TotalStockWeight);
}

TEST(WithBarsRaised, LeavesInstalledWeightLossRateAndFittingsAsTallied) {
  const TallyTable before = TalliedTable();
  const TallyTable table = WithBarsRaised(before, 10, kColumnsTo12m);
  EXPECT_EQ(table.InstalledWeight, before.InstalledWeight);
  EXPECT_EQ(table.InstalledWeightByDia, before.InstalledWeightByDia);
  EXPECT_EQ(table.TotalInstalledWeight, Kg(133));  // 59 m x 2.25 = 132.75
  EXPECT_EQ(table.LossRatePercent, before.LossRatePercent);
  EXPECT_EQ(table.WeldCount, before.WeldCount);
  EXPECT_EQ(table.TotalWeldCount, 16);
  EXPECT_EQ(table.TotalCutCount, 1020);
}

// A row's weight is made from zero: what stood there does not matter.
TEST(WithBarsRaised, MakesADiametersStockWeightFromItsCellsAlone) {
  TallyTable table = TalliedTable();
  table.StockWeightByDia[3] = Kg(5000);
  EXPECT_EQ(WithBarsRaised(table, 0, kColumnsTo12m).StockWeightByDia[3], Kg(135));
}

// D16 of 13.0 m weighs 20.3 kg.
TEST(WithBarsRaised, TakesThe13MetreColumnInWhereItIsOn) {
  TallyTable table;
  PutTallied(table, 2, kAt13m, 10);
  const TallyTable off = WithBarsRaised(table, 50, StockColumnsInUse(false));
  EXPECT_EQ(off.BarCount[2][kAt13m], 10);
  EXPECT_EQ(off.TotalStockWeight, Kg(0));
  const TallyTable on = WithBarsRaised(table, 50, StockColumnsInUse(true));
  EXPECT_EQ(on.BarCount[2][kAt13m], 15);
  EXPECT_EQ(on.StockWeightByDia[2], Kg(305));  // 304.5
  EXPECT_EQ(on.TotalStockWeight, Kg(305));
}

// 50 bars of 9.45 kg are 472.5 kg; in binary they are a little less.
TEST(WithBarsRaised, RoundsAHalfKilogramUpWhateverItsBinaryFraction) {
  TallyTable table;
  PutTallied(table, 1, kAt9m5, 50);
  EXPECT_EQ(WithBarsRaised(table, 0, kColumnsTo12m).StockWeight[1][kAt9m5], Kg(473));
}

TEST(WithBarsRaised, ACountBeyond32BitsIsAnOverflowAndTheTableStays) {
  TallyTable table = TalliedTable();
  table.BarCount[11][0] = kMost;
  const TallyTable before = table;
  EXPECT_EQ(FaultOf([&] { WithBarsRaised(table, 1, kColumnsTo12m); }), FaultKind::overflow);
  EXPECT_EQ(table, before);
}

// 6 bars of D10 by 3.5 m are 11.76 kg; the D19 cell of the same tally keeps its 135 kg, D25 its 95.4 kg.
TEST(WithCellCorrected, WeighsTheBarsOfTheCellAnewAndSumsItsDiameter) {
  TallyTable table = TalliedTable();
  PutTallied(table, 0, kAt6m, 7);  // 7 x 3.36 = 23.52 kg
  const TallyTable corrected = WithCellCorrected(table, BarCell{0, kAt3m5}, 6, kColumnsTo12m);
  EXPECT_EQ(corrected.BarCount[0][kAt3m5], 6);
  EXPECT_EQ(corrected.StockWeight[0][kAt3m5], Kg(12));
  EXPECT_EQ(corrected.StockWeight[0][kAt6m], Kg(23.52));
  EXPECT_EQ(corrected.StockWeightByDia[0], Kg(12 + 24));
  EXPECT_EQ(corrected.StockWeight[5][kAt8m], Kg(95.4));
  EXPECT_EQ(corrected.TotalStockWeight, Kg(36 + 135 + 95));
}

TEST(WithCellCorrected, EmptiesACellBy0) {
  const TallyTable corrected = WithCellCorrected(TalliedTable(), BarCell{3, kAt6m}, 0, kColumnsTo12m);
  EXPECT_EQ(corrected.StockWeightByDia[3], Kg(0));
  EXPECT_EQ(corrected.TotalStockWeight, Kg(10 + 95));
}

TEST(WithCellCorrected, LeavesInstalledWeightAndLossRateAsTallied) {
  const TallyTable before = TalliedTable();
  const TallyTable corrected = WithCellCorrected(before, BarCell{3, kAt6m}, 100, kColumnsTo12m);
  EXPECT_EQ(corrected.InstalledWeightByDia, before.InstalledWeightByDia);
  EXPECT_EQ(corrected.TotalInstalledWeight, before.TotalInstalledWeight);
  EXPECT_EQ(corrected.LossRatePercent, before.LossRatePercent);
}

TEST(WithCellCorrected, ACountOfFittingsStandsInItsDiameterAndInTheTotal) {
  const TallyTable before = TalliedTable();
  for (const FittingWord& each : kFittingWords) {
    const TallyTable corrected = WithCellCorrected(before, FittingCell{11, each.fitting}, 50, kColumnsTo12m);
    EXPECT_EQ(FittingCount(corrected, 11, each.fitting), 50) << each.word;
    EXPECT_EQ(FittingTotal(corrected, each.fitting), FittingTotal(before, each.fitting) + 50) << each.word;
    EXPECT_EQ(corrected.BarCount, before.BarCount) << each.word;
    EXPECT_EQ(corrected.StockWeight, before.StockWeight) << each.word;
    EXPECT_EQ(corrected.TotalStockWeight, before.TotalStockWeight) << each.word;
  }
  EXPECT_EQ(WithCellCorrected(before, FittingCell{3, Fitting::plates}, 9, kColumnsTo12m).PlateCount[3], 9);
  EXPECT_EQ(WithCellCorrected(before, FittingCell{3, Fitting::cuts}, 9, kColumnsTo12m).TotalCutCount, 9);
}

TEST(WithCellCorrected, AnotherFittingStaysAsItIs) {
  const TallyTable corrected =
      WithCellCorrected(TalliedTable(), FittingCell{3, Fitting::threads}, 8, kColumnsTo12m);
  EXPECT_EQ(corrected.ThreadCount[3], 8);
  EXPECT_EQ(corrected.WeldCount[3], 4);
  EXPECT_EQ(corrected.PlateCount[3], 1);
  EXPECT_EQ(corrected.CutCount[3], 1020);
}

TEST(WithCellCorrected, ATotalBeyond32BitsIsAnOverflowAndTheTableStays) {
  const TallyTable before = TalliedTable();
  const auto most_welds = [&] {
    return WithCellCorrected(before, FittingCell{0, Fitting::welds}, kMost, kColumnsTo12m);
  };
  EXPECT_EQ(FaultOf(most_welds), FaultKind::overflow);
}

TEST(WithCellCorrected, ACellOutsideTheTableIsAFault) {
  EXPECT_EQ(FaultOf([] {
              WithCellCorrected({}, BarCell{0, 19}, 1, kColumnsTo12m);
            }),
            FaultKind::subscript_out_of_range);
}

TEST(DetailChange, OfACountedResultIsRaisedAndThenCorrectedWhicheverComesFirst) {
  const TallyResult counted{.tables = TalliedTable()};
  const TallyResult raised = RaiseBars(counted, 10, kColumnsTo12m);
  EXPECT_EQ(raised.origin, ResultOrigin::raised);
  EXPECT_EQ(raised.Grid().BarCount[3][kAt6m], 11);
  const TallyResult corrected = CorrectCell(raised, BarCell{3, kAt6m}, 12, kColumnsTo12m);
  EXPECT_EQ(corrected.origin, ResultOrigin::corrected);
  EXPECT_EQ(corrected.Grid().BarCount[3][kAt6m], 12);
  EXPECT_EQ(RaiseBars(corrected, 10, kColumnsTo12m).origin, ResultOrigin::corrected);
}

TEST(DetailChange, OfALoadedResultIsLoadedWhenRaisedAndCorrectedByHand) {
  const TallyResult loaded{.origin = ResultOrigin::loaded, .tables = TalliedTable()};
  EXPECT_EQ(RaiseBars(loaded, 10, kColumnsTo12m).origin, ResultOrigin::loaded);
  EXPECT_EQ(CorrectCell(loaded, BarCell{0, 0}, 1, kColumnsTo12m).origin, ResultOrigin::corrected);
}

TEST(DetailChange, RaisedBarsStayRaisedWhenTheUpliftOfUlbonIsTakenBack) {
  const TallyResult raised = RaiseBars({.tables = TalliedTable()}, 10, kColumnsTo12m);
  EXPECT_EQ(WithUlbonRaised(WithUlbonRaised(raised, 5), 0).origin, ResultOrigin::raised);
}

}  // namespace
}  // namespace rbt
