// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/outcome/outcome_sample.h"
#include "platform/print/print_trace.h"
#include "reports/plan/purchase_sheet.h"
#include "reports/plan/shop_sheet.h"

namespace rbt {
namespace {

using planning::Outcome;
using ::testing::HasSubstr;
using ::testing::Not;

const PlanSheetHead kHead{"見本町集合住宅", "見本建設株式会社", "2026 年 11 月 21 日", "溶接フープ 含まず"};

Outcome Sample() { return planning::Describe(planning::test::SampleProblem(), planning::test::SamplePlan()); }

/// What a sheet draws.
std::string TraceOf(const std::function<void(PrinterSurface& Printer)>& sheet) {
  std::string trace;
  PrinterSurface Printer("PDF", DeviceKind::pdf,
                         [&](const PrintedDocument& document) { trace += TraceText(document); });
  sheet(Printer);
  return trace;
}

std::string ShopTrace(const Outcome& outcome) {
  return TraceOf([&](PrinterSurface& Printer) { DrawShopSheet(Printer, kHead, outcome); });
}

std::string PurchaseTrace(const Outcome& outcome) {
  return TraceOf([&](PrinterSurface& Printer) { DrawPurchaseSheet(Printer, kHead, outcome); });
}

int CountOf(std::string_view text, std::string_view what) {
  int count = 0;
  for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, at + 1)) ++count;
  return count;
}

TEST(DrawShopSheet, TellsRepetitionsMarksAndRowsOfEveryPattern) {
  const std::string trace = ShopTrace(Sample());
  EXPECT_THAT(trace, HasSubstr("■ D16 異形\n"));
  EXPECT_THAT(trace, HasSubstr("   1  残材 6000 mm  x 1 本   1200x2   残 3600 mm   切断 2\n"));
  EXPECT_THAT(trace, HasSubstr("   2  定尺 12000 mm  x 1 本   2340x5   残 300 mm   切断 5\n"));
  EXPECT_THAT(trace, HasSubstr("  墨 2340 4680 7020 9360 11700\n"));
  EXPECT_THAT(trace, HasSubstr("  行 2340:1頁1行x5\n"));
  EXPECT_THAT(trace, HasSubstr("使える残材  D16 異形 3600mm x1\n"));
  EXPECT_THAT(trace, HasSubstr("工事名"));
}

TEST(DrawShopSheet, DrawsMarksToScaleOfTheLongestBar) {
  // 9900 twips are 12.0 m: 1200 mm end at 1000 + 990.
  EXPECT_THAT(ShopTrace(Sample()), HasSubstr("line\t1990\t"));
}

TEST(DrawShopSheet, MarksAndDrawsTheEndThatIsCutOff) {
  // 5500 twice, 20 mm cut off first and a saw of 3 mm: marks at 20, 5520 and 5520 + 3 + 5500.
  Outcome outcome = Sample();
  outcome.options.bar = {3, 20, 5};
  outcome.groups[0].patterns[1].pattern.pieces = {{5500, 2}};
  outcome.groups[0].patterns[0].pattern = {6000, true, 1, {{6000, 1}}};
  outcome.groups[0].cuts = {{6000, 1, {}}, {5500, 2, {}}};
  const std::string trace = ShopTrace(outcome);
  EXPECT_THAT(trace, HasSubstr("切断しろ 3 mm   端切り 20 mm   プラス 5 mm   集計対象 溶接フープ 含まず\n"));
  EXPECT_THAT(trace, HasSubstr("  墨 端切り:20 5520 11023\n"));
  EXPECT_THAT(trace, HasSubstr("  墨 6000\n")) << "nothing is cut off a bar that is used whole";
  // 9900 twips are 12.0 m: 20 mm end at 1000 + 16.5.
  EXPECT_EQ(CountOf(trace, "line\t1016.5\t"), 1) << trace;
}

TEST(DrawShopSheet, HatchesTheRestAlone) {
  Outcome outcome = Sample();
  const int with_rest = CountOf(ShopTrace(outcome), "\t1\n");
  for (planning::OutcomePattern& of : outcome.groups[0].patterns) of.left_mm = 0;
  EXPECT_GT(with_rest, CountOf(ShopTrace(outcome), "\t1\n"));
}

TEST(DrawShopSheet, TellsThePieceOfAFileByItsLineAndMark) {
  Outcome outcome = Sample();
  outcome.groups[0].cuts[0].rows[0].page = 0;
  outcome.groups[0].cuts[0].rows[0].mark = "A1";
  EXPECT_THAT(ShopTrace(outcome), HasSubstr("  行 2340:1行[A1]x5\n"));
}

TEST(DrawShopSheet, SaysWhereThereWasMoreToTry) {
  Outcome outcome = Sample();
  EXPECT_THAT(ShopTrace(outcome), Not(HasSubstr("途中の計画")));
  EXPECT_THAT(PurchaseTrace(outcome), Not(HasSubstr("途中の計画")));
  outcome.stopped = planning::Stopped::time;
  EXPECT_THAT(ShopTrace(outcome), HasSubstr("途中の計画\n"));
  EXPECT_THAT(PurchaseTrace(outcome), HasSubstr("途中の計画\n"));
}

TEST(DrawShopSheet, ListsTheUsableRestsLineBelowLine) {
  Outcome outcome = Sample();
  outcome.groups.clear();
  outcome.rests.assign(12, {{16, 1, false}, 3600, 1});
  const std::string trace = ShopTrace(outcome);
  EXPECT_THAT(trace, HasSubstr("D16 異形 3600mm x1   D16 異形 3600mm x1"));
  // Lines are 200 twips high, the first one stands at 2300.
  EXPECT_THAT(trace, HasSubstr("text\t1000\t2500\t"));
}

TEST(DrawPurchaseSheet, TellsTheTallyBesideThePlannedRows) {
  Outcome outcome = Sample();
  outcome.plan.common.tally =
      planning::TallyFigures{Currency::FromDouble(287146), Currency::FromDouble(280000), 1.66};
  EXPECT_THAT(PurchaseTrace(outcome), HasSubstr("全体の集計 287,146 Kg  ロス率 1.66 %\n"));
}

TEST(DrawShopSheet, CarriesPatternsOverToTheNextPage) {
  Outcome outcome = Sample();
  outcome.groups[0].patterns.assign(25, outcome.groups[0].patterns[1]);
  const std::string trace = ShopTrace(outcome);
  EXPECT_THAT(trace, HasSubstr("page\t3\n"));
  EXPECT_THAT(trace, HasSubstr("\t3 頁\n"));
  EXPECT_EQ(CountOf(trace, "■ D16 異形\n"), 1);
  EXPECT_EQ(CountOf(trace, "■ D16 異形（続き）\n"), 2) << "the other pages say what they go on with";
}

TEST(DrawPurchaseSheet, TellsEachLineItsSumAndWhatThePlanLoses) {
  const std::string trace = PurchaseTrace(Sample());
  for (const std::string_view text :
       {"D16", "異形", "   12,000", "        1", "        4", "         5", "93.5", "9,350", "合計",
        "行ごと  計画した行 28.1 Kg  ロス 27.660 %", "計  画  計画した行 18.7 Kg  ロス -14.894 %"}) {
    EXPECT_THAT(trace, HasSubstr(text));
  }
  EXPECT_THAT(trace, Not(HasSubstr("加工帳  ")));
}

TEST(DrawPurchaseSheet, LeavesTheSumOfMoneyOpenWhereAPriceIsMissing) {
  Outcome outcome = Sample();
  outcome.purchase.push_back(outcome.purchase[0]);
  outcome.purchase[1].yen.reset();
  EXPECT_EQ(CountOf(PurchaseTrace(outcome), "9,350"), 1);
}

TEST(DrawPurchaseSheet, CarriesLinesOverToTheNextPage) {
  Outcome outcome = Sample();
  outcome.purchase.assign(40, outcome.purchase[0]);
  EXPECT_THAT(PurchaseTrace(outcome), HasSubstr("page\t2\n"));
}

}  // namespace
}  // namespace rbt
