// SPDX-License-Identifier: MIT
#include "reports/comparison/comparison_report.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/drawn_page.h"
#include "support/sheet_samples.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// With a client, rows of A4 portrait are 360 twips, row 0 at 2440; of A4 landscape 360 and 1940; of B5 295
/// and 1810.
class ComparisonReport : public ::testing::Test {
 protected:
  void Draw(const ComparisonForm& form) {
    DrawComparison(page_.Printer, form, sheet_);
    ASSERT_EQ(page_.documents.back().pages.size(), 1U);
  }
  static constexpr float A4T(int row) { return static_cast<float>(2440 + row * 360); }
  static constexpr float A4Y(int row) { return static_cast<float>(1940 + row * 360); }
  static constexpr float B5Y(int row) { return static_cast<float>(1810 + row * 295); }

  test::SiteFixture root_;
  TallyTable table_ = test::SampleTable();
  ComparisonSheet sheet_ = test::SampleSheet(table_);
  test::DrawnPage page_;
};

TEST_F(ComparisonReport, TheFrameHasARowForEachDiameterTheHeadingAndTheTotal) {
  sheet_.arguments.UlbonFlag = 0;
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.FrameColumns(), (std::vector<float>{500, 2500, 4500, 6500, 8300, 9600, 10900}));
  ASSERT_EQ(page_.FrameRows().size(), 15U);
  EXPECT_EQ(page_.FrameRows().front(), A4T(8));
  EXPECT_EQ(page_.FrameRows().back(), A4T(22));
}

TEST_F(ComparisonReport, UlbonAndSpiralsEachAddARowToTheFrame) {
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.FrameRows().back(), A4T(24));
  sheet_.ulbon_weight = 0;
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.FrameRows().back(), A4T(23));
  EXPECT_FALSE(page_.Has("ウルボン合計"));
  EXPECT_EQ(page_.TextOf("スパイラル合計").y, A4T(22) + 50);
}

TEST_F(ComparisonReport, WantedUlbonThatIsNotThereAddsNoRowAndTheFrameEndsAtRow22) {
  table_.SpiralTotal = Currency{};
  sheet_.ulbon_weight = 0;
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.FrameRows().back(), A4T(22));
  EXPECT_FALSE(page_.Has("スパイラル"));
}

TEST_F(ComparisonReport, TheRowsOfKindAShowStockInstalledDifferenceWeldsAndCuts) {
  Draw(kTaihiAA4T);
  const PrintedText label = page_.TextOf("D 10");
  EXPECT_EQ(label.x, 700);
  EXPECT_EQ(label.y, A4T(9) + 50);
  EXPECT_EQ(label.font_size, 12);
  EXPECT_FALSE(label.font_bold);
  EXPECT_EQ(page_.TextBeside(label, 1700), "SD295A");
  EXPECT_EQ(page_.TextBeside(label, 2700), "     12,345 Kg");
  EXPECT_EQ(page_.TextBeside(label, 4600), "     12,001 Kg");  // 12000.5
  EXPECT_EQ(page_.TextBeside(label, 6550), "      345 Kg");    // 344.5
  EXPECT_EQ(page_.TextBeside(label, 8500), "  1,234");
  EXPECT_EQ(page_.TextBeside(label, 9800), "      0");
}

TEST_F(ComparisonReport, ANegativeDifferenceKeepsItsSign) {
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.TextBeside(page_.TextOf("D 51"), 6550), "      -30 Kg");
}

TEST_F(ComparisonReport, TheTotalRowHasPlacesOfItsOwn) {
  Draw(kTaihiAA4T);
  const PrintedText label = page_.TextOf("合　　計");
  EXPECT_EQ(label.x, 1000);
  EXPECT_EQ(label.y, A4T(21) + 50);
  EXPECT_EQ(page_.TextBeside(label, 2600), "     12,445 Kg");
  EXPECT_EQ(page_.TextBeside(label, 4700), "     12,131 Kg");
  EXPECT_EQ(page_.TextBeside(label, 6550), "      314 Kg");
  EXPECT_EQ(page_.TextBeside(label, 8500), "  1,234");
  EXPECT_EQ(page_.TextBeside(label, 9800), "     56");
}

TEST_F(ComparisonReport, UlbonAndSpiralsStandUnderTheInstalledWeight) {
  Draw(kTaihiAA4T);
  const PrintedText ulbon = page_.TextOf("ウルボン合計");
  EXPECT_EQ(ulbon.x, 700);
  EXPECT_EQ(ulbon.y, A4T(22) + 50);
  EXPECT_EQ(page_.TextBeside(ulbon, 4700), "         11 Kg");
  EXPECT_EQ(page_.TextBeside(ulbon, 8500), "      7");
  const PrintedText spirals = page_.TextOf("スパイラル合計");
  EXPECT_EQ(spirals.y, A4T(23) + 50);
  EXPECT_EQ(page_.TextBeside(spirals, 4700), "         33 Kg");
}

TEST_F(ComparisonReport, KindBPrintsUlbonUnderItsOnlyWeightToo) {
  Draw(kTaihiBA4Y);
  const PrintedText ulbon = page_.TextOf("ウルボン合計");
  EXPECT_EQ(ulbon.x, 2500);
  EXPECT_EQ(page_.TextBeside(ulbon, 7300), "         11 Kg");
  EXPECT_EQ(page_.TextBeside(ulbon, 10600), "      7");
}

// With Ulbon and spirals the last row is 23, two rows further down is 25.
TEST_F(ComparisonReport, TheLossRateStandsTwoRowsBelowTheLast) {
  Draw(kTaihiAA4T);
  const PrintedText loss = page_.TextOf("ロス率　  2.59 %");
  EXPECT_EQ(loss.x, 6700);
  EXPECT_EQ(loss.y, A4T(25) + 50);
  EXPECT_EQ(page_.RuleAt(loss.y + 240, 6500).x2, 8600);
  EXPECT_EQ(page_.RuleAt(loss.y + 240, 6500).draw_width, 2);
}

// There the frame starts a row higher, and the last row is 22, or 20 without Ulbon and spirals.
TEST_F(ComparisonReport, TheLossRateStandsTwoRowsBelowTheLastOnLandscapePaperToo) {
  Draw(kTaihiAA4Y);
  EXPECT_EQ(page_.TextOf("ロス率　  2.59 %").y, A4Y(24) + 50);
  Draw(kTaihiCB5Y);
  EXPECT_EQ(page_.TextOf("ロス率         2.59 %").y, B5Y(24) + 50);
  EXPECT_EQ(page_.TextOf("ロス率         2.59 %").x, 10700);
  table_.SpiralTotal = Currency{};
  sheet_.ulbon_weight = 0;
  Draw(kTaihiBB5Y);
  EXPECT_EQ(page_.TextOf("ロス率         2.59 %").y, B5Y(22) + 50);
}

TEST_F(ComparisonReport, StartModes1And3HaveNoCutColumnAtAll) {
  sheet_.hides_cuts = true;
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.FrameColumns().back(), 9600);
  EXPECT_EQ(page_.RuleAt(A4T(8), 500).x2, 9600);
  EXPECT_FALSE(page_.Has("切"));
  for (const PrintedText& text : page_.Texts()) EXPECT_NE(text.x, 9800);
  Draw(kTaihiCB5Y);
  EXPECT_EQ(page_.FrameColumns().back(), 10500);
  EXPECT_FALSE(page_.Has("切"));
}

TEST_F(ComparisonReport, LandscapeFormsStartARowHigherWhereUlbonIsWanted) {
  Draw(kTaihiAA4Y);
  EXPECT_EQ(page_.FrameRows().front(), A4Y(7));
  EXPECT_EQ(page_.FrameRows().back(), A4Y(23));
  EXPECT_EQ(page_.TextOf("D 10").y, A4Y(8) + 50);
  EXPECT_EQ(page_.TextOf("異　形　合　計").y, A4Y(20) + 50);
  EXPECT_EQ(page_.TextOf("異　形　合　計").x, 2100);
  sheet_.arguments.UlbonFlag = 0;
  Draw(kTaihiAA4Y);
  EXPECT_EQ(page_.FrameRows().front(), A4Y(8));
  EXPECT_EQ(page_.FrameRows().back(), A4Y(22));
}

// Stock 12445 and installed 12131, each with Ulbon 11 and spirals 33.
TEST_F(ComparisonReport, TheTotalWeightIsTheStockOfKindsAAndBAndTheInstalledOfC) {
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.TextOf("総重量     12 t 489 Kg").x, 500);
  EXPECT_EQ(page_.TextOf("総重量     12 t 489 Kg").y, A4T(6));
  EXPECT_EQ(page_.TextOf("総重量     12 t 489 Kg").font_size, 14);
  EXPECT_EQ(page_.RuleAt(A4T(6) + 280, 500).x2, 3700);
  EXPECT_EQ(page_.RuleAt(A4T(6) + 280, 500).draw_width, 3);
  Draw(kTaihiBB5Y);
  EXPECT_EQ(page_.TextOf("総重量     12 t 489 Kg").x, 700);
  constexpr float kB5Total = 3521;  // row 5.8: 1810 + 5.8 x 295
  EXPECT_EQ(page_.TextOf("総重量     12 t 489 Kg").y, kB5Total);
  EXPECT_EQ(page_.RuleAt(kB5Total + 280, 700).x2, 4000);
  Draw(kTaihiCA4Y);
  EXPECT_EQ(page_.TextOf("総重量     12 t 175 Kg").x, 1800);
  EXPECT_EQ(page_.RuleAt(A4Y(6) + 280, 1800).x2, 5100);
}

TEST_F(ComparisonReport, ADeformedReportLeavesUlbonAndSpiralsOutOfTheTotalWeight) {
  sheet_.arguments.UlbonFlag = 0;
  Draw(kTaihiAA4T);
  EXPECT_TRUE(page_.Has("総重量     12 t 445 Kg"));
  EXPECT_FALSE(page_.Has("ウルボン"));
}

TEST_F(ComparisonReport, ATotalOf999KilogramsIsPrintedInKilograms) {
  table_.TotalStockWeight = Currency::FromInteger(955);  // + 11 + 33
  Draw(kTaihiAA4T);
  EXPECT_TRUE(page_.Has("総重量          999 Kg"));
}

TEST_F(ComparisonReport, AWeightTooLongForItsFieldLosesItsFirstDigits) {
  table_.StockWeightByDia[0] = Currency::FromInteger(12345678901);
  Draw(kTaihiAA4T);
  EXPECT_EQ(page_.TextBeside(page_.TextOf("D 10"), 2700), "345,678,901 Kg");
}

TEST_F(ComparisonReport, FiguresTooWideForTheirFieldsAreNamedByRowAndColumn) {
  EXPECT_THAT(DrawComparison(page_.Printer, kTaihiAA4T, sheet_), IsEmpty());
  table_.StockWeightByDia[0] = Currency::FromInteger(12345678901);
  table_.TotalCutCount = 1234567;
  table_.LossRatePercent = 12345.678;
  EXPECT_THAT(
      DrawComparison(page_.Printer, kTaihiAA4T, sheet_),
      ElementsAre(CutFigure{1, "D 10", "定　尺　重　量", "12,345,678,901"},
                  CutFigure{1, "D 10", "差　　引", "12,345,666,901"},
                  CutFigure{1, "合　　計", "切　　断", "1,234,567"}, CutFigure{1, "ロス率", "", "12345.68"}));
}

TEST_F(ComparisonReport, OnlyPortraitFormsCarryTheOwnCompany) {
  root_.SetIni(test::kSteelFile, "自社名", "会社名", "鉄筋");
  Draw(kTaihiCA4T);
  EXPECT_EQ(page_.TextOf("鉄").x, 6600 + 960);
  EXPECT_EQ(page_.TextOf("鉄").y, 2200 + 700);
  Draw(kTaihiCA4Y);
  EXPECT_FALSE(page_.Has("鉄"));
}

}  // namespace
}  // namespace rbt
