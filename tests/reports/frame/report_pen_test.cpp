// SPDX-License-Identifier: MIT
#include "reports/frame/report_pen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/drawn_page.h"

namespace rbt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PenOnPaper : public ::testing::Test {
 protected:
  PenOnPaper() { SetReportFont(page_.Printer, 10); }

  test::DrawnPage page_;
  ReportPen pen_{page_.Printer};
};

constexpr NumberField kCount{.characters = 5};

TEST_F(PenOnPaper, PrintsAFieldInTheFontOfTheReports) {
  PrintField(pen_, 700, 900, kCount, std::int64_t{42}, {"D 10", "圧接"});
  page_.Printer.EndDoc();
  EXPECT_THAT(page_.Texts(), ElementsAre(PrintedText{700, 900, "   42", "ＭＳ ゴシック", 10, false}));
  EXPECT_THAT(pen_.cut_figures, IsEmpty());
}

TEST_F(PenOnPaper, ACellThatShowsNothingPrintsNothing) {
  PrintField(pen_, 700, 900, kCount, {}, {"D 10", "圧接"});
  page_.Printer.EndDoc();
  EXPECT_THAT(page_.documents, IsEmpty());
}

TEST_F(PenOnPaper, AFigureTooWideIsPrintedAsFarAsItGoesAndNotedWholeUnderItsCellsName) {
  pen_.page = 3;
  PrintField(pen_, 700, 900, kCount, std::int64_t{123456}, {"D 10", "圧接"});
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextAt(700, 900), "3,456");
  EXPECT_THAT(pen_.cut_figures, ElementsAre(CutFigure{3, "D 10", "圧接", "123,456"}));
}

// 8 full-width characters of 10 points are 1600 twips.
TEST_F(PenOnPaper, ATextShrinksByHalfPointsUntilItFits) {
  ShrinkToWidth(page_.Printer, "見本町再開発ビル", 1600);
  EXPECT_EQ(page_.Printer.FontSize, 10);
  ShrinkToWidth(page_.Printer, "見本町再開発ビル", 1599);
  EXPECT_EQ(page_.Printer.FontSize, 9.5F);
  ShrinkToWidth(page_.Printer, "見本町再開発ビル", 0);
  EXPECT_EQ(page_.Printer.FontSize, 0.5F);
}

}  // namespace
}  // namespace rbt
