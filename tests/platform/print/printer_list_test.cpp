// SPDX-License-Identifier: MIT
#include "platform/print/printer_list.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/print/pdf_writer.h"

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

TEST(PrinterList, AListOfNoPrintersIsRefused) {
  EXPECT_THROW(PrinterList(std::list<PrinterSurface>{}), std::invalid_argument);
}

TEST(PrinterList, PutInForceItKeepsItsCurrentPrinter) {
  PrinterList printers(TwoPrinters());
  printers.MakeCurrent("乙");
  PrinterList before = SetPrinters(std::move(printers));
  EXPECT_EQ(Printers().Current().DeviceName(), "乙");
  SetPrinters(std::move(before));
  EXPECT_EQ(Printers().Current().DeviceName(), "PDF");
}

TEST(PrinterList, WithoutASetUpPrinterADocumentHasNowhereToGo) {
  PrinterSurface& printer = Printers().Current();
  EXPECT_EQ(printer.Kind(), DeviceKind::pdf);
  printer.Print({"一"});
  EXPECT_THROW(printer.EndDoc(), Fault);
}

TEST(PdfWriter, WithoutOneAFaultNamesTheFile) {
  ASSERT_FALSE(CanWritePdf());
  try {
    WritePdf({}, "/tmp/a.pdf");
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    EXPECT_NE(std::string(fault.what()).find("/tmp/a.pdf"), std::string::npos);
  }
}

}  // namespace
}  // namespace rbt
