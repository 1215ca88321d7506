// SPDX-License-Identifier: MIT
#include "platform/system/printing.h"

#include <list>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/fault_of.h"
#include "support/kept_services.h"

namespace rbt {
namespace {

PrinterList ListOf(const char* printer) {
  std::list<PrinterSurface> printers;
  printers.emplace_back(printer, DeviceKind::installed_printer, [](const PrintedDocument&) {});
  return PrinterList(std::move(printers));
}

TEST(Printers, ARefreshAsksTheSourceAndAStartDoesNot) {
  const test::KeptServices services;
  int asked = 0;
  Services.FindPrinters = [&] {
    ++asked;
    return ListOf("甲");
  };
  EXPECT_EQ(Printers().Current().DeviceName(), "PDF");
  EXPECT_EQ(asked, 0);
  RefreshPrinters();
  EXPECT_EQ(Printers().Current().DeviceName(), "甲");
  Services.FindPrinters = {};
  RefreshPrinters();
  EXPECT_EQ(asked, 1);
}

TEST(Printers, WithoutASetUpPrinterADocumentHasNowhereToGo) {
  PrinterSurface& printer = Printers().Current();
  EXPECT_EQ(printer.Kind(), DeviceKind::pdf);
  printer.Print({"一"});
  EXPECT_THROW(printer.EndDoc(), Fault);
}

TEST(WritePdf, PaintsWhereThereIsAPainter) {
  const test::KeptServices services;
  std::filesystem::path painted;
  Services.PaintPdf = [&](std::span<const PrintedDocument>, const std::filesystem::path& file) {
    painted = file;
  };
  WritePdf({}, "/tmp/a.pdf");
  EXPECT_EQ(painted, "/tmp/a.pdf");
}

TEST(WritePdf, WithoutAPainterAFaultNamesTheFile) {
  EXPECT_EQ(test::FaultTextOf([] { WritePdf({}, "/tmp/a.pdf"); }),
            "/tmp/a.pdf: PDF is not available, this program was built without it");
}

}  // namespace
}  // namespace rbt
