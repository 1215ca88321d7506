// SPDX-License-Identifier: MIT
#include "tally/views/result_grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rbt {
namespace {

using testing::ElementsAre;

Currency Kg(double kilograms) { return Currency::FromDouble(kilograms); }

/// A table with figures that can be followed by eye, not with figures that a tally would give.
TallyTable Sample() {
  TallyTable table;
  table.StockWeightByDia[0] = Kg(1234);
  table.InstalledWeightByDia[0] = Kg(1200.4);
  table.WeldCount[0] = 1500;
  table.CutCount[0] = 20;
  table.StockWeightByDia[3] = Kg(10);
  table.InstalledWeightByDia[3] = Kg(2012.5);
  table.TotalStockWeight = Kg(1244);
  table.TotalInstalledWeight = Kg(3213);
  table.TotalWeldCount = 1500;
  table.TotalCutCount = 20;
  table.LossRatePercent = -61.28229;
  table.UlbonWeight[12] = 100.2;
  table.UlbonWeldCount[12] = 7;
  table.UlbonWeight[17] = 50.0;
  table.UlbonWeldCount[17] = 1;
  return table;
}

GridView WithGrades() {
  GridView view;
  view.grade_names[0] = "SD295";
  return view;
}

TEST(ShowTally, ShowsADiameterWithItsGradeItsWholeWeightsAndTheUnroundedDifference) {
  const GridRows rows = ShowTally(Sample(), {}, WithGrades());
  EXPECT_THAT(rows[0], ElementsAre("SD295        D10", "1,234 ", "1,200 ", "34 ", "1,500", "20"));
  EXPECT_THAT(rows[3], ElementsAre("        D19", "10 ", "2,013 ", "-2,003 ", "0", "0"));
  EXPECT_THAT(rows[11], ElementsAre("        D51", "0 ", "0 ", "0 ", "0", "0"));
}

TEST(ShowTally, RoundsTheDifferenceOnlyAfterItIsTaken) {
  TallyTable table;
  table.StockWeightByDia[0] = Kg(100);
  table.InstalledWeightByDia[0] = Kg(98.5);  // shown as 99, but 1.5 less than 100
  table.InstalledWeightByDia[1] = Kg(-1.2);  // -0.7 with the half added, which is cut off towards 0
  const GridRows rows = ShowTally(table, {}, {});
  EXPECT_THAT(rows[0], ElementsAre("        D10", "100 ", "99 ", "2 ", "0", "0"));
  EXPECT_THAT(rows[1], ElementsAre("        D13", "0 ", "0 ", "1 ", "0", "0"));
}

TEST(ShowTally, ShowsTheTotalsUnderTheLabelOfTheKinds) {
  SelectionData selection;
  EXPECT_THAT(ShowTally(Sample(), selection, {})[12],
              ElementsAre("す　 べ 　て", "1,244 ", "3,213 ", "-1,969 ", "1,500", "20"));
  selection.MaterialKindMask = KindMask(9);
  EXPECT_EQ(ShowTally(Sample(), selection, {})[12][0], "異形･スリット");
  selection.StartMode = TraitsOfStartMode(3);
  EXPECT_EQ(ShowTally(Sample(), selection, {})[12][0], "異形");
}

TEST(ShowTally, ShowsTheLossRateWithTwoDecimals) {
  EXPECT_THAT(ShowTally(Sample(), {}, {})[13], ElementsAre("ロ      ス 率(％)", "-61.28 ％", "", "", "", ""));
}

TEST(ShowTally, ShowsTheUlbonRowsBelowAndTheGrandTotalLast) {
  const GridRows rows = ShowTally(Sample(), {}, {});
  ASSERT_EQ(rows.size(), 22U);
  EXPECT_THAT(rows[14], ElementsAre("U 6", "", "100 ", "", "7", ""));
  EXPECT_THAT(rows[15], ElementsAre("U 7", "", "0 ", "", "0", ""));
  EXPECT_THAT(rows[19], ElementsAre("U16", "", "50 ", "", "1", ""));
  EXPECT_THAT(rows[20], ElementsAre("ウ ル ボ ン 合 計", "", "150 kg", "", "8", ""));
  EXPECT_THAT(rows[21], ElementsAre("総　　合　　計", "1,244 kg", "3,363 kg", "", "", ""));
}

TEST(ShowTally, LeavesUlbonOutOfTheGrandTotalWhenItsRowsAreNotShown) {
  SelectionData selection;
  selection.IncludeUlbon = false;
  const GridRows rows = ShowTally(Sample(), selection, {});
  ASSERT_EQ(rows.size(), 15U);
  EXPECT_EQ(rows[14][2], "3,213 kg");
}

TEST(ShowTally, RaisesUlbonAndTheGrandTotalByThePercentAndNothingElse) {
  GridView view;
  view.percent = 10.0;
  const GridRows plain = ShowTally(Sample(), {}, {});
  const GridRows raised = ShowTally(Sample(), {}, view);
  for (std::size_t row = 0; row < 14; ++row) EXPECT_EQ(raised[row], plain[row]);
  EXPECT_EQ(raised[14][2], "110 ");  // 110.22
  EXPECT_EQ(raised[19][2], "55 ");
  EXPECT_EQ(raised[20][2], "165 kg");
  EXPECT_THAT(raised[21], ElementsAre("総　　合　　計", "1,244 kg", "3,378 kg", "", "", ""));
}

TEST(ShowTally, AcceptsAPercentAbove100) {
  GridView view;
  view.percent = 150.0;
  EXPECT_EQ(ShowTally(Sample(), {}, view)[19][2], "125 ");
}

TEST(ShowTally, ShowsUlbonAloneInTheUlbonView) {
  GridView view;
  view.show_ulbon_only = true;
  SelectionData selection;
  selection.IncludeUlbon = false;  // the view does not ask
  const GridRows rows = ShowTally(Sample(), selection, view);
  ASSERT_EQ(rows.size(), 7U);
  EXPECT_THAT(rows[0], ElementsAre("U 6", "", "100 ", "", "7", ""));
  EXPECT_THAT(rows[6], ElementsAre("ウ ル ボ ン 合 計", "", "150 kg", "", "8", ""));
}

TEST(ShowTally, AddsTheUlbonSpiralsToTheirDiameter) {
  TallyTable table = Sample();
  table.SpiralUlbonByDia[12] = Kg(0.3);
  EXPECT_EQ(ShowTally(table, {}, {})[14][2], "101 ");  // 100.2 + 0.3: the half goes up
}

TallyTable WithSpirals(std::int32_t kinds) {
  TallyTable table = Sample();
  table.SpiralKinds = SpiralMask(kinds);
  for (int material = 0; material < 3; ++material) {
    if ((kinds & (1 << material)) != 0) table.SpiralWeight[material] = Kg(1000 + material);
    table.SpiralTotal += table.SpiralWeight[material];
  }
  return table;
}

std::vector<std::string> SpiralLabels(std::int32_t kinds) {
  std::vector<std::string> labels;
  const GridRows rows = ShowTally(WithSpirals(kinds), {}, {});
  for (std::size_t row = 21; row + 1 < rows.size(); ++row) labels.push_back(rows[row][0]);
  return labels;
}

TEST(ShowTally, NamesTheSpiralsOnTheirFirstLineAndIndentsTheLaterOnes) {
  EXPECT_THAT(SpiralLabels(0), ElementsAre());
  EXPECT_THAT(SpiralLabels(1), ElementsAre("スパイラル 異形", "スパイラル 合計"));
  EXPECT_THAT(SpiralLabels(2), ElementsAre("スパイラル ｳﾙﾎﾞﾝ", "スパイラル 合計"));
  EXPECT_THAT(SpiralLabels(3), ElementsAre("スパイラル 異形", "　　　　　　ｳﾙﾎﾞﾝ", "スパイラル 合計"));
  EXPECT_THAT(SpiralLabels(4), ElementsAre("スパイラル 高強度", "スパイラル 合計"));
  EXPECT_THAT(SpiralLabels(5), ElementsAre("スパイラル 異形", "　　　　　　高強度", "スパイラル 合計"));
  EXPECT_THAT(SpiralLabels(6), ElementsAre("スパイラル ｳﾙﾎﾞﾝ", "　　　　　　高強度", "スパイラル 合計"));
  EXPECT_THAT(SpiralLabels(7),
              ElementsAre("スパイラル 異形", "　　　　　　ｳﾙﾎﾞﾝ", "　　　　　　高強度", "スパイラル 合計"));
}

TEST(ShowTally, ShowsSpiralWeightsAndAddsThemToTheGrandTotal) {
  const GridRows rows = ShowTally(WithSpirals(5), {}, {});
  EXPECT_THAT(rows[21], ElementsAre("スパイラル 異形", "", "1,000 ", "", "", ""));
  EXPECT_THAT(rows[22], ElementsAre("　　　　　　高強度", "", "1,002 ", "", "", ""));
  EXPECT_THAT(rows[23], ElementsAre("スパイラル 合計", "", "2,002 ", "", "", ""));
  EXPECT_EQ(rows[24][2], "5,365 kg");  // 3213 + 150 + 2002
}

TEST(ShowTally, ShowsNoSpiralsWhenHoopsOrPlatesAloneAreTallied) {
  SelectionData selection;
  selection.HoopMode = ShapeFilter::alone;
  EXPECT_EQ(ShowTally(WithSpirals(7), selection, {}).size(), 22U);
  selection.HoopMode = ShapeFilter::with_others;
  selection.AnchorPlateMode = ShapeFilter::alone;
  EXPECT_EQ(ShowTally(WithSpirals(7), selection, {}).size(), 22U);
}

TEST(ShowTally, ShowsAnEmptyTallyAsZeros) {
  const GridRows rows = ShowTally({}, {}, {});
  EXPECT_THAT(rows[12], ElementsAre("す　 べ 　て", "0 ", "0 ", "0 ", "0", "0"));
  EXPECT_EQ(rows[13][1], "0.00 ％");
  EXPECT_EQ(rows[21][2], "0 kg");
}

TEST(ShowTally, GivesEveryRowACellForEachCaption) {
  for (const auto& row : ShowTally(WithSpirals(7), {}, {})) EXPECT_EQ(row.size(), kResultCaptions.size());
}

TEST(StockRows, AreBarsPiecesPerBarAndMetres) {
  EXPECT_THAT(StockRows({3, 2, 5.5}), ElementsAre(ElementsAre("3", "2", "5.5")));
}

}  // namespace
}  // namespace rbt
