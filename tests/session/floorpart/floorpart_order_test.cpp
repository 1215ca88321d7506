// SPDX-License-Identifier: MIT
#include "session/floorpart/floorpart_order.h"

#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/print/print_trace.h"
#include "platform/system/printing.h"
#include "session/floorpart/floorpart_driver.h"
#include "shell/context/reference_names.h"

namespace rbt::test {
namespace {

/// Sheets of the part screen on the PDF device.
class FloorPartOrders : public ::testing::Test {
 protected:
  FloorPartOrders() : js_(kPartScreen) {
    js_.parts.print = [this](const FloorPartOrder& order) { Print(order); };
    Services.Printers = PdfDeviceAlone([](const PrintedDocument& /*document*/) {});
    js_.OpenWithAll().OpenPrint();
  }
  void Print(const FloorPartOrder& order) {
    CarryOut(
        order,
        [this](const std::vector<PrintedDocument>& documents) {
          happened_ += "shown|";
          for (const PrintedDocument& document : documents) trace_ += TraceText(document);
        },
        [this](bool prints) { happened_ += prints ? "window|" : "no window|"; });
  }

  FloorPartPresented js_;
  std::string happened_;
  std::string trace_;
};

TEST_F(FloorPartOrders, TheSmallWindowIsGoneBeforeTheSheetIsLookedAt) {
  js_.presenter->Print(0);
  EXPECT_EQ(happened_, "window|no window|shown|");
  EXPECT_NE(trace_.find("部位別合計数量表"), std::string::npos);
}

TEST_F(FloorPartOrders, OtherSheetsHaveNoSmallWindow) {
  js_.presenter->Print(2);
  EXPECT_EQ(happened_, "shown|");
  EXPECT_NE(trace_.find("部 位 別 合 計 数 量 表"), std::string::npos);
}

TEST_F(FloorPartOrders, AFaultTakesTheSmallWindowAwayAndShowsNothing) {
  const TallyResult of_another_family;
  EXPECT_THROW(Print({.form = FindReportForm("bui-zenbui"),
                      .result = of_another_family,
                      .date = {},
                      .tells_printing = true}),
               std::bad_variant_access);
  EXPECT_EQ(happened_, "window|no window|");
}

TEST_F(FloorPartOrders, ASheetOfOnePartTellsThatPartUnderTheDateOfThePanel) {
  js_.presenter->PrintPanel().Date().Type(2, " 5 ");
  js_.site.Answer(MessageAnswer::yes);
  js_.presenter->Print(1);
  EXPECT_NE(trace_.find("［" + NamesOfParts()[0] + "］分"), std::string::npos);
  EXPECT_NE(trace_.find("2026 年 11 月  5 日"), std::string::npos);
}

}  // namespace
}  // namespace rbt::test
