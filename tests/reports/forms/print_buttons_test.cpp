// SPDX-License-Identifier: MIT
#include "reports/forms/print_buttons.h"

#include <list>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "data/reference.h"
#include "platform/fault.h"
#include "platform/print/print_trace.h"
#include "platform/system/printing.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/site_fixture.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

/// The PDF device alone, and the site of the fixture.
class PrintButtonsTest : public ::testing::Test {
 protected:
  PrintButtonsTest() {
    Services.Printers = PdfDeviceAlone([this](const PrintedDocument& document) {
      documents_.push_back(document);
      traces_.push_back(TraceText(document));
    });
    SelectSite(test::kScheduleFile);
    OpenMasterDatabase();
    TallyGrid.TotalStockWeight = Currency::FromInteger(500);
    TallyGrid.TotalInstalledWeight = Currency::FromInteger(400);
  }

  std::string Print(const char* control, std::int32_t kind) {
    SaveSetting(kComparisonKindKey, kind);
    PrintComparison(FindPrintButton(control), {" 二期 ", " 2026 ", "1", "2", 1, 0});
    return traces_.back();
  }

  test::SiteFixture site_;
  std::vector<PrintedDocument> documents_;
  std::vector<std::string> traces_;
};

TEST_F(PrintButtonsTest, ButtonsSetOrientationAndPaper) {
  Print("btnA4T", 1);
  EXPECT_EQ(documents_.back().orientation, 1);
  EXPECT_EQ(documents_.back().paper_code, 9);
  Print("btnA4Y", 1);
  EXPECT_EQ(documents_.back().orientation, 2);
  EXPECT_EQ(documents_.back().paper_code, 9);
  Print("btnB5Y", 1);
  EXPECT_EQ(documents_.back().orientation, 2);
  EXPECT_EQ(documents_.back().paper_code, 13);
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
}

TEST_F(PrintButtonsTest, TheSettingChoosesTheKindAndAnyOtherValueIsC) {
  EXPECT_NE(Print("btnA4T", 1).find("差　　引"), std::string::npos);
  EXPECT_NE(Print("btnA4T", 2).find("定　　尺"), std::string::npos);
  EXPECT_NE(Print("btnA4T", 3).find("取　　付"), std::string::npos);
  EXPECT_NE(Print("btnA4T", 0).find("取　　付"), std::string::npos);
}

TEST_F(PrintButtonsTest, TextsAreTrimmed) {
  const std::string trace = Print("btnB5Y", 3);
  EXPECT_NE(trace.find("（二期）"), std::string::npos);
  EXPECT_NE(trace.find("\t2026 年  1 月"), std::string::npos);
}

TEST_F(PrintButtonsTest, TheUlbonReportIsA4Landscape) {
  PrintUlbonReport({"", "2026", "1", "2", 1, 0});
  EXPECT_EQ(documents_.back().orientation, 2);
  EXPECT_EQ(documents_.back().paper_code, 9);
  EXPECT_NE(traces_.back().find("ウ ル ボ ン 重 量 表"), std::string::npos);
}

TEST_F(PrintButtonsTest, AButtonThatThereIsNotIsAFault) { EXPECT_THROW(FindPrintButton("btnA3T"), Fault); }

TEST_F(PrintButtonsTest, TheHeadShowsTheClientAndNameOfTheSite) {
  const std::string trace = Print("btnA4T", 1);
  const SiteHead head = ReadSiteHead(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  EXPECT_NE(trace.find(head.name), std::string::npos);
  EXPECT_NE(trace.find("取引先  " + ClientName(*SiteContext.MasterDatabase, head.client_code)),
            std::string::npos);
  SiteContext.LongSiteName = "長い工事名の新築工事";
  EXPECT_NE(Print("btnA4T", 1).find("長い工事名の新築工事"), std::string::npos);
}

}  // namespace
}  // namespace rbt
