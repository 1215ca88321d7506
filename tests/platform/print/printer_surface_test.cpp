// SPDX-License-Identifier: MIT
#include "platform/print/printer_surface.h"

#include <stdexcept>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

namespace rbt {
namespace {

class PrinterSurfaceTest : public ::testing::Test {
 protected:
  const PrintedText& Text(std::size_t page, std::size_t index) const {
    return std::get<PrintedText>(documents_.back().pages.at(page).at(index));
  }

  std::vector<PrintedDocument> documents_;
  PrinterSurface Printer{"PDF", DeviceKind::pdf,
                         [this](const PrintedDocument& document) { documents_.push_back(document); }};
};

TEST_F(PrinterSurfaceTest, PrintWritesItsItemsAsOneTextAndMovesToTheNextLine) {
  Printer.CurrentX = 500;
  Printer.CurrentY = 1000;
  Printer.FontSize = 12.5F;
  Printer.Print({"総重量", "  ", "12 Kg"});
  EXPECT_EQ(Printer.CurrentX, 0);
  EXPECT_EQ(Printer.CurrentY, 1250);  // 12.5 points of 20 twips
  Printer.EndDoc();
  EXPECT_EQ(Text(0, 0).text, "総重量  12 Kg");
  EXPECT_EQ(Text(0, 0).x, 500);
  EXPECT_EQ(Text(0, 0).y, 1000);
}

TEST_F(PrinterSurfaceTest, PrintWithoutItemsOnlyMoves) {
  Printer.CurrentX = 500;
  Printer.FontSize = 18;
  Printer.Print();
  EXPECT_EQ(Printer.CurrentX, 0);
  EXPECT_EQ(Printer.CurrentY, 360);
  Printer.EndDoc();
  EXPECT_TRUE(documents_.empty());
}

TEST_F(PrinterSurfaceTest, FullWidthCharactersAreOneEmWideAndHalfWidthOnesHalf) {
  Printer.FontSize = 12;
  EXPECT_EQ(Printer.TextWidth("工事名"), 720);  // 3 x 240
  EXPECT_EQ(Printer.TextWidth("M"), 120);
  EXPECT_EQ(Printer.TextWidth("ｳﾙﾎﾞﾝ U6"), 960);  // 5 half-width katakana, 3 ASCII
  EXPECT_EQ(Printer.TextWidth(""), 0);
  EXPECT_EQ(Printer.TextHeight("M"), 240);
}

TEST_F(PrinterSurfaceTest, RulesKeepTheirWidthAndLeaveThePen) {
  Printer.CurrentX = 10;
  Printer.CurrentY = 20;
  Printer.DrawWidth = 5;
  Printer.Line(1, 2, 3, 4);
  EXPECT_EQ(Printer.CurrentX, 10);
  EXPECT_EQ(Printer.CurrentY, 20);
  Printer.EndDoc();
  EXPECT_EQ(std::get<PrintedRule>(documents_[0].pages[0][0]), (PrintedRule{1, 2, 3, 4, 5}));
}

TEST_F(PrinterSurfaceTest, EndDocDeliversOnceAndPutsThePenBack) {
  Printer.PaperSize = kPaperB5;
  Printer.Orientation = kLandscape;
  Printer.CurrentY = 700;
  Printer.Print({"一"});
  Printer.EndDoc();
  Printer.EndDoc();
  ASSERT_EQ(documents_.size(), 1U);
  EXPECT_EQ(documents_[0].device_name, "PDF");
  EXPECT_EQ(documents_[0].paper_code, 13);
  EXPECT_EQ(documents_[0].orientation, 2);
  EXPECT_EQ(Printer.CurrentY, 0);
}

TEST_F(PrinterSurfaceTest, ThePaperOfADocumentIsThatOfItsFirstDrawing) {
  Printer.Print({"一"});
  Printer.PaperSize = kPaperB5;
  Printer.NewPage();
  Printer.Print({"二"});
  Printer.EndDoc();
  EXPECT_EQ(documents_[0].paper_code, kPaperA4);
  EXPECT_EQ(documents_[0].pages.size(), 2U);
}

TEST_F(PrinterSurfaceTest, NoEmptyPageFollowsTheLastAndAnEmptyOneMayStandBetween) {
  Printer.Print({"一"});
  Printer.NewPage();
  EXPECT_EQ(Printer.CurrentY, 0);
  Printer.NewPage();
  Printer.Print({"三"});
  Printer.NewPage();
  Printer.EndDoc();
  ASSERT_EQ(documents_[0].pages.size(), 3U);
  EXPECT_TRUE(documents_[0].pages[1].empty());
  EXPECT_EQ(Text(2, 0).text, "三");
}

TEST_F(PrinterSurfaceTest, ATitleGoesWithTheDocumentThatIsDrawn) {
  Printer.DocumentTitle = "甲";
  Printer.Print({"一"});
  Printer.KillDoc();
  Printer.Print({"二"});
  Printer.EndDoc();
  EXPECT_EQ(documents_.back().title, "") << "the title of one that was forgotten";
  Printer.Print({"三"});
  Printer.DocumentTitle = "乙";
  Printer.EndDoc();
  EXPECT_EQ(documents_.back().title, "乙");
  Printer.Print({"四"});
  Printer.EndDoc();
  EXPECT_EQ(documents_.back().title, "");
}

TEST_F(PrinterSurfaceTest, KillDocForgetsTheDocument) {
  Printer.Print({"一"});
  Printer.KillDoc();
  Printer.Print({"二"});
  Printer.EndDoc();
  ASSERT_EQ(documents_.size(), 1U);
  EXPECT_EQ(documents_[0].pages[0].size(), 1U);
}

TEST_F(PrinterSurfaceTest, ADocumentThatCannotBeDeliveredIsNotDeliveredAgain) {
  int deliveries = 0;
  PrinterSurface broken("PDF", DeviceKind::pdf, [&](const PrintedDocument&) {
    ++deliveries;
    throw std::runtime_error("out of paper");
  });
  broken.Print({"一"});
  EXPECT_THROW(broken.EndDoc(), std::runtime_error);
  EXPECT_NO_THROW(broken.EndDoc());
  EXPECT_EQ(deliveries, 1);
}

}  // namespace
}  // namespace rbt
