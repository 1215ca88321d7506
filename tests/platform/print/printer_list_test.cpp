// SPDX-License-Identifier: MIT
#include "platform/print/printer_list.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace rbt {
namespace {

void Lose(const PrintedDocument&) {}

std::list<PrinterSurface> TwoPrinters() {
  std::list<PrinterSurface> printers;
  printers.emplace_back("甲", DeviceKind::installed_printer, Lose);
  printers.emplace_back("乙", DeviceKind::installed_printer, Lose);
  return printers;
}

TEST(PrinterList, TheFirstPrinterIsCurrentUntilAnotherIsNamed) {
  PrinterList printers(TwoPrinters());
  EXPECT_EQ(printers.Current().DeviceName(), "甲");
  EXPECT_TRUE(printers.MakeCurrent("乙"));
  EXPECT_EQ(printers.Current().DeviceName(), "乙");
  EXPECT_FALSE(printers.MakeCurrent("丙"));
  EXPECT_EQ(printers.Current().DeviceName(), "乙");
}

PrinterList ListOf(const std::vector<const char*>& installed) {
  std::list<PrinterSurface> printers;
  for (const char* name : installed) printers.emplace_back(name, DeviceKind::installed_printer, Lose);
  printers.emplace_back(std::string(kPdfDeviceName), DeviceKind::pdf, Lose);
  return PrinterList(std::move(printers));
}

std::vector<std::string> Names(PrinterList& printers) {
  std::vector<std::string> names;
  for (const PrinterSurface& printer : printers.Installed()) names.push_back(printer.DeviceName());
  return names;
}

TEST(PrinterList, PrintersThatComeAndGoAreTakenOverInTheirOrder) {
  PrinterList printers = ListOf({"甲", "乙"});
  printers.Update(ListOf({"丙", "甲"}));
  EXPECT_EQ(Names(printers), (std::vector<std::string>{"丙", "甲", "PDF"}));
}

TEST(PrinterList, APrinterThatStaysKeepsItsPaperAndWhatIsDrawnOnIt) {
  std::vector<PrintedDocument> documents;
  std::list<PrinterSurface> one;
  one.emplace_back("甲", DeviceKind::installed_printer,
                   [&](const PrintedDocument& document) { documents.push_back(document); });
  PrinterList printers(std::move(one));
  PrinterSurface& before = printers.Current();
  before.PaperSize = kPaperB5;
  before.Orientation = kLandscape;
  before.Print({"一"});
  printers.Update(ListOf({"乙", "甲"}));
  EXPECT_EQ(&printers.Current(), &before);
  printers.Current().EndDoc();
  ASSERT_EQ(documents.size(), 1U);
  EXPECT_EQ(documents[0].paper_code, kPaperB5);
  EXPECT_EQ(documents[0].orientation, kLandscape);
}

TEST(PrinterList, TheCurrentPrinterStaysCurrentWhereverItStandsAndWhateverIsNamedAlike) {
  PrinterList printers = ListOf({"甲"});
  ASSERT_TRUE(printers.MakeCurrent("PDF"));
  printers.Update(ListOf({"PDF", "甲"}));
  EXPECT_EQ(printers.Current().Kind(), DeviceKind::pdf);
}

TEST(PrinterList, WhenTheCurrentPrinterWentTheFirstIsCurrent) {
  PrinterList printers = ListOf({"甲", "乙"});
  printers.MakeCurrent("乙");
  printers.Update(ListOf({"甲", "丙"}));
  EXPECT_EQ(printers.Current().DeviceName(), "甲");
}

TEST(PrinterList, ThePdfDeviceThatStoodAloneGivesWayToThePrinterThatCame) {
  PrinterList printers = ListOf({});
  printers.Update(ListOf({"甲"}));
  EXPECT_EQ(printers.Current().DeviceName(), "甲");
}

TEST(PrinterList, AListOfNoPrintersIsRefused) {
  EXPECT_THROW(PrinterList(std::list<PrinterSurface>{}), std::invalid_argument);
}

TEST(PrinterList, ACopyKeepsItsCurrentPrinter) {
  PrinterList printers(TwoPrinters());
  printers.MakeCurrent("乙");
  PrinterList copy = printers;
  printers.MakeCurrent("甲");
  EXPECT_EQ(copy.Current().DeviceName(), "乙");
  copy.Current().PaperSize = kPaperA3;
  EXPECT_TRUE(printers.MakeCurrent("乙"));
  EXPECT_EQ(printers.Current().PaperSize, kPaperA4);
}

}  // namespace
}  // namespace rbt
