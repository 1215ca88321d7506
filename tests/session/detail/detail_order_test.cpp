// SPDX-License-Identifier: MIT
#include "session/detail/detail_order.h"

#include <list>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "platform/print/print_trace.h"
#include "platform/system/services.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

class DetailOrders : public ::testing::Test {
 protected:
  DetailOrders() {
    SelectSite(kScheduleFile);
    OpenMasterDatabase();
    order_.result.Grid().StockWeightByDia[0] = Currency::FromInteger(10);
    order_.date = {"2026", "11", "21"};
  }

  /// The trace of what came to be shown.
  std::string Shown() {
    std::string trace;
    CarryOut(order_,
             [&](const std::vector<PrintedDocument>& documents) { trace = TraceText(documents.at(0)); });
    return trace;
  }

  SiteFixture site_;
  DetailOrder order_;
};

TEST_F(DetailOrders, TheListOfThePaperIsDrawnWithItsMemosAndDate) {
  order_.paper = ReportPaper::a4t;
  order_.detail.Memos[0] = "第一工区";
  const std::string trace = Shown();
  EXPECT_TRUE(trace.starts_with("document\tPDF\t9\t1\n")) << trace;
  EXPECT_NE(trace.find("第一工区"), std::string::npos);
  EXPECT_NE(trace.find("2026 年 11 月 21 日"), std::string::npos);
}

TEST_F(DetailOrders, WeightsByLengthAreDrawnWhereTheScreenShowsThem) {
  EXPECT_EQ(Shown().find("重 量"), std::string::npos);
  Settings.DetailShowsWeight = 1;
  EXPECT_NE(Shown().find("重 量"), std::string::npos);
}

TEST_F(DetailOrders, AListForAnInstalledPrinterIsLookedAtOnlyWhenThatIsWanted) {
  int printed = 0;
  std::list<PrinterSurface> printers;
  printers.emplace_back("laser", DeviceKind::installed_printer, [&](const PrintedDocument&) { ++printed; });
  Services.Printers = PrinterList(std::move(printers));
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(printed, 1);
  order_.preview = true;
  EXPECT_NE(Shown(), "");
  EXPECT_EQ(printed, 1);
}

TEST_F(DetailOrders, AFaultPrintsAndShowsNothing) {
  SiteContext.SelectedDbName = "GENBA999.MDB";
  bool shown = false;
  EXPECT_EQ(FaultOf([&] { CarryOut(order_, [&](const auto&) { shown = true; }); }), FaultKind::database);
  EXPECT_FALSE(shown);
}

}  // namespace
}  // namespace rbt::test
