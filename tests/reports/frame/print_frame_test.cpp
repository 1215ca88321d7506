// SPDX-License-Identifier: MIT
#include "reports/frame/print_frame.h"

#include <list>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/system/printing.h"
#include "shell/config/settings.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

/// Two installed printers, 甲 current, and the documents that either was given.
class PrintFrame : public ::testing::Test {
 protected:
  PrintFrame() {
    Services.Printers = PrinterList(Installed());
    SavedPrinter = {};
    Printers().Current().PaperSize = kPaperA3;
  }
  ~PrintFrame() override {
    SavedPrinter = {};
    test::SiteFixture::ResetGlobalState();
  }

  std::list<PrinterSurface> Installed() {
    std::list<PrinterSurface> printers;
    for (const char* name : {"甲", "乙"}) {
      printers.emplace_back(name, DeviceKind::installed_printer,
                            [this](const PrintedDocument& document) { documents_.push_back(document); });
    }
    return printers;
  }

  void UsePdfAlone() {
    Services.Printers =
        PdfDeviceAlone([this](const PrintedDocument& document) { documents_.push_back(document); });
  }

  std::vector<PrintedDocument> documents_;
  test::KeptServices services_;
};

TEST_F(PrintFrame, PaperKindsStandForPrinterCodes) {
  EXPECT_EQ(PaperCodeOfKind(1), 8);
  EXPECT_EQ(PaperCodeOfKind(2), 9);
  EXPECT_EQ(PaperCodeOfKind(3), 13);
  EXPECT_EQ(PaperCodeOfKind(0), 13);
}

TEST_F(PrintFrame, ThePrinterOfTheSettingBecomesCurrentWithPaperAndOrientation) {
  Settings.TallyPrinter = "乙";
  Set_Printer(2, 3);
  EXPECT_EQ(Printers().Current().DeviceName(), "乙");
  EXPECT_EQ(Printers().Current().Orientation, 2);
  EXPECT_EQ(Printers().Current().PaperSize, 13);
}

TEST_F(PrintFrame, AnOrientationOtherThan1And2LeavesThePrinters) {
  Settings.TallyPrinter = "甲";
  Printers().Current().Orientation = kLandscape;
  Set_Printer(0, 2);
  EXPECT_EQ(Printers().Current().Orientation, kLandscape);
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
}

TEST_F(PrintFrame, ANameThatNoInstalledPrinterBearsLeavesPaperAndOrientation) {
  Settings.TallyPrinter = "EPSON VP-4200";
  Set_Printer(2, 2);
  EXPECT_EQ(Printers().Current().DeviceName(), "甲");
  EXPECT_EQ(Printers().Current().Orientation, kPortrait);
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA3);
  Printers().Current().Print({"一"});
  Printers().Current().EndDoc();
  EXPECT_EQ(documents_.at(0).paper_code, kPaperA3);
}

TEST_F(PrintFrame, ThePdfDeviceAnswersToANameThatNoPrinterBears) {
  UsePdfAlone();
  Settings.TallyPrinter = "EPSON VP-4200";
  Set_Printer(2, 3);
  EXPECT_EQ(Printers().Current().DeviceName(), "PDF");
  EXPECT_EQ(Printers().Current().Orientation, kLandscape);
  EXPECT_EQ(Printers().Current().PaperSize, kPaperB5);
}

TEST_F(PrintFrame, AnInstalledPrinterCalledPdfDoesNotAnswerToOtherNames) {
  std::list<PrinterSurface> printers;
  printers.emplace_back("PDF", DeviceKind::installed_printer, [](const PrintedDocument&) {});
  Services.Printers = PrinterList(std::move(printers));
  Settings.TallyPrinter = "EPSON VP-4200";
  Set_Printer(2, 3);
  EXPECT_EQ(Printers().Current().Orientation, kPortrait);
}

TEST_F(PrintFrame, AfterALandscapeReportThePaperComesBackAndTheOrientationStays) {
  Settings.TallyPrinter = "甲";
  Set_Printer(2, 2);
  Reset_Printer();
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA3);
  EXPECT_EQ(Printers().Current().Orientation, kLandscape);
  EXPECT_EQ(SavedPrinter.SavedOrientation, kLandscape);
}

TEST_F(PrintFrame, TheSavedPrinterBecomesCurrentAgainAndTakesTheSavedPaper) {
  Settings.TallyPrinter = "乙";
  Set_Printer(2, 3);
  EXPECT_EQ(SavedPrinter.SavedDeviceName, "甲");
  EXPECT_EQ(SavedPrinter.SavedPaperSize, kPaperA3);
  EXPECT_EQ(SavedPrinter.SavedOrientation, kPortrait);
  Reset_Printer();
  EXPECT_EQ(Printers().Current().DeviceName(), "甲");
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA3);
  EXPECT_TRUE(Printers().MakeCurrent("乙"));
  EXPECT_EQ(Printers().Current().PaperSize, kPaperB5);
}

// Nothing fills the saved sides, so a custom paper does not come back.
TEST_F(PrintFrame, OfACustomPaperOnlyItsEmptySidesAreWrittenBack) {
  Settings.TallyPrinter = "甲";
  PrinterSurface& printer = Printers().Current();
  printer.PaperSize = kCustomPaper;
  printer.PageHeight = 5000;
  printer.PageWidth = 4000;
  Set_Printer(1, 2);
  Reset_Printer();
  EXPECT_EQ(printer.PaperSize, kPaperA4);
  EXPECT_EQ(printer.PageHeight, 0);
  EXPECT_EQ(printer.PageWidth, 0);
}

TEST_F(PrintFrame, APrinterThatCameSinceTheStartAnswersToItsName) {
  Services.FindPrinters = [this] { return PrinterList(Installed()); };
  UsePdfAlone();
  Settings.TallyPrinter = "乙";
  Set_Printer(2, 2);
  EXPECT_EQ(SavedPrinter.SavedDeviceName, "甲");
  EXPECT_EQ(Printers().Current().DeviceName(), "乙");
  EXPECT_EQ(Printers().Current().Orientation, kLandscape);
}

TEST_F(PrintFrame, AReportThatFaultsPrintsNothingAndThePrinterIsPutBack) {
  Settings.TallyPrinter = "乙";
  const auto faulty = [](PrinterSurface& Printer) {
    Printer.Print({"一"});
    throw std::runtime_error("no tally");
  };
  EXPECT_THROW(PrintReport(2, 2, faulty), std::runtime_error);
  EXPECT_EQ(Printers().Current().DeviceName(), "甲");
  Printers().MakeCurrent("乙");
  Printers().Current().EndDoc();
  EXPECT_TRUE(documents_.empty());
}

}  // namespace
}  // namespace rbt
