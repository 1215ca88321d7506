// SPDX-License-Identifier: MIT
#include "platform/print/print_trace.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/print/printer_surface.h"

namespace rbt {
namespace {

class PrintTraceTest : public ::testing::Test {
 protected:
  PrintTraceTest() { Printer.FontName = "ＭＳ ゴシック"; }

  std::string trace_;
  PrinterSurface Printer{"PDF", DeviceKind::pdf,
                         [this](const PrintedDocument& document) { trace_ = TraceText(document); }};
};

TEST_F(PrintTraceTest, EveryOperationIsALineOfItsOwn) {
  Printer.Orientation = kLandscape;
  Printer.FontSize = 18;
  Printer.FontBold = true;
  Printer.DrawWidth = 4;
  Printer.CurrentX = 500;
  Printer.Print({"重  量", "表"});
  Printer.Line(500, 360, 600.5F, 360);
  Printer.NewPage();
  Printer.Print({"二"});
  Printer.EndDoc();
  EXPECT_EQ(trace_,
            "document\tPDF\t9\t2\n"
            "page\t1\n"
            "font\tＭＳ ゴシック\t18\t1\n"
            "text\t500\t0\t重  量表\n"
            "line\t500\t360\t600.5\t360\t4\n"
            "page\t2\n"
            "text\t0\t0\t二\n"
            "end\n");
}

TEST_F(PrintTraceTest, TheFontStandsBeforeATextThatChangesIt) {
  Printer.FontSize = 12.5F;
  Printer.Print({"a"});
  Printer.Print({"b"});
  Printer.FontSize = 9;
  Printer.Print();
  Printer.FontSize = 12.5F;
  Printer.Print({"c"});
  Printer.FontBold = true;
  Printer.Print({"d"});
  Printer.EndDoc();
  EXPECT_EQ(trace_,
            "document\tPDF\t9\t1\npage\t1\n"
            "font\tＭＳ ゴシック\t12.5\t0\n"
            "text\t0\t0\ta\ntext\t0\t250\tb\ntext\t0\t680\tc\n"
            "font\tＭＳ ゴシック\t12.5\t1\n"
            "text\t0\t930\td\nend\n");
}

TEST_F(PrintTraceTest, NumbersHaveTwoDecimalsAtMostAndNoSignOnZero) {
  Printer.FontSize = 10;
  Printer.CurrentX = 1.125F;
  Printer.CurrentY = -0.001F;
  Printer.Print({"a"});
  Printer.Line(100, 33.333F, 1e-6F, 5.1F);
  Printer.EndDoc();
  EXPECT_NE(trace_.find("text\t1.12\t0\ta\n"), std::string::npos) << trace_;
  EXPECT_NE(trace_.find("line\t100\t33.33\t0\t5.1\t1\n"), std::string::npos) << trace_;
}

TEST_F(PrintTraceTest, TabLineFeedAndBackslashAreEscaped) {
  Printer.Print({"a\tb\nc\\d"});
  Printer.EndDoc();
  EXPECT_NE(trace_.find("\ta\\tb\\nc\\\\d\n"), std::string::npos) << trace_;
}

TEST_F(PrintTraceTest, AnEmptyItemIsAnEmptyText) {
  Printer.Print({""});
  Printer.EndDoc();
  EXPECT_NE(trace_.find("text\t0\t0\t\n"), std::string::npos) << trace_;
}

}  // namespace
}  // namespace rbt
