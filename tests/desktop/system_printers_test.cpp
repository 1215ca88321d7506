// SPDX-License-Identifier: MIT
#include "desktop/system_printers.h"

#include <list>
#include <string>
#include <utility>
#include <vector>

#include <QByteArray>
#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

/// A machine on which no print server answers. What an answering one leads to is tested end to end.
class WithoutPrintServer : public ::testing::Test {
 protected:
  WithoutPrintServer() { qputenv("CUPS_SERVER", "/nonexistent/cups.sock"); }

  std::vector<PrintedDocument> documents_;
};

TEST_F(WithoutPrintServer, PdfAloneIsThereAndHasItsDelivery) {
  PrinterList printers =
      SystemPrinters([this](const PrintedDocument& document) { documents_.push_back(document); });
  ASSERT_EQ(printers.Installed().size(), 1U);
  PrinterSurface& printer = printers.Current();
  EXPECT_EQ(printer.DeviceName(), "PDF");
  EXPECT_EQ(printer.Kind(), DeviceKind::pdf);
  printer.Print({"一"});
  printer.EndDoc();
  EXPECT_EQ(documents_.size(), 1U);
}

TEST_F(WithoutPrintServer, ADocumentForAPrinterThatWentIsAFaultThatNamesThePrinter) {
  const PrintedDocument document{
      "甲", kPaperA4, kPortrait, {{PrintedText{0, 0, "一", "IPAGothic", 10, false}}}};
  try {
    PrintDocument("甲", document);
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    EXPECT_EQ(std::string(fault.what()).rfind("甲: ", 0), 0U) << fault.what();
  }
}

}  // namespace
}  // namespace rbt
