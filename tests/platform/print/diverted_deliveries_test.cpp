// SPDX-License-Identifier: MIT
#include "platform/print/diverted_deliveries.h"

#include <list>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/print/printer_list.h"

namespace rbt {
namespace {

using From = DivertedDeliveries::From;

/// A printer and the PDF device, which note what they are given.
class DivertedDeliveriesTest : public ::testing::Test {
 protected:
  PrinterList TwoDevices() {
    const auto note = [this](const PrintedDocument& document) { delivered_.push_back(document.device_name); };
    std::list<PrinterSurface> printers;
    printers.emplace_back("甲", DeviceKind::installed_printer, note);
    printers.emplace_back("PDF", DeviceKind::pdf, note);
    return PrinterList(std::move(printers));
  }

  /// One document from each device.
  void PrintOnBoth() {
    for (PrinterSurface& printer : printers_.Installed()) {
      printer.Print({"一"});
      printer.EndDoc();
    }
  }

  static std::vector<std::string> Names(const std::vector<PrintedDocument>& documents) {
    std::vector<std::string> names;
    for (const PrintedDocument& document : documents) names.push_back(document.device_name);
    return names;
  }

  std::vector<std::string> delivered_;
  PrinterList printers_ = TwoDevices();
};

using Texts = std::vector<std::string>;

TEST_F(DivertedDeliveriesTest, KeepTheDocumentsOfEveryDevice) {
  DivertedDeliveries diverted(printers_, From::every_device);
  PrintOnBoth();
  EXPECT_EQ(delivered_, Texts{});
  const std::vector<PrintedDocument> kept = diverted.Take();
  EXPECT_EQ(Names(kept), (Texts{"甲", "PDF"}));
  ASSERT_EQ(kept[0].pages.size(), 1U);
  EXPECT_EQ(std::get<PrintedText>(kept[0].pages[0].at(0)).text, "一");
  EXPECT_TRUE(diverted.Take().empty());
}

TEST_F(DivertedDeliveriesTest, CanLeaveInstalledPrintersAlone) {
  DivertedDeliveries diverted(printers_, From::pdf_device);
  PrintOnBoth();
  EXPECT_EQ(delivered_, Texts{"甲"});
  EXPECT_EQ(Names(diverted.Take()), Texts{"PDF"});
}

TEST_F(DivertedDeliveriesTest, EndWithTheirScope) {
  { const DivertedDeliveries diverted(printers_, From::every_device); }
  PrintOnBoth();
  EXPECT_EQ(delivered_, (Texts{"甲", "PDF"}));
}

TEST_F(DivertedDeliveriesTest, KeepThoseOfAPrinterThatCameMeanwhile) {
  printers_ = PdfDeviceAlone([](const PrintedDocument&) {});
  DivertedDeliveries diverted(printers_, From::every_device);
  printers_.Update(TwoDevices());
  PrintOnBoth();
  EXPECT_EQ(delivered_, Texts{});
  EXPECT_EQ(Names(diverted.Take()), (Texts{"甲", "PDF"}));
}

TEST_F(DivertedDeliveriesTest, OneInsideAnotherGivesBackWhatTheOtherSet) {
  DivertedDeliveries outer(printers_, From::every_device);
  {
    DivertedDeliveries inner(printers_, From::pdf_device);
    PrintOnBoth();
    EXPECT_EQ(Names(inner.Take()), Texts{"PDF"});
    EXPECT_EQ(delivered_, Texts{});
  }
  PrintOnBoth();
  EXPECT_EQ(Names(outer.Take()), (Texts{"甲", "甲", "PDF"}));
  EXPECT_EQ(delivered_, Texts{});
}

}  // namespace
}  // namespace rbt
