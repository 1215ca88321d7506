// SPDX-License-Identifier: MIT
#include "reports/forms/report_forms.h"

#include <list>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "data/reference.h"
#include "platform/fault.h"
#include "platform/print/print_trace.h"
#include "platform/system/printing.h"
#include "reports/frame/print_frame.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/site_fixture.h"
#include "tally/floorpart/floor_list.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

/// The PDF device alone, and the site of the fixture.
class ReportFormsTest : public ::testing::Test {
 protected:
  ReportFormsTest() {
    Services.Printers = PdfDeviceAlone([this](const PrintedDocument& document) {
      documents_.push_back(document);
      traces_.push_back(TraceText(document));
    });
    SelectSite(test::kScheduleFile);
    OpenMasterDatabase();
    TallyTable table;
    table.TotalStockWeight = Currency::FromInteger(500);
    table.TotalInstalledWeight = Currency::FromInteger(400);
    result_.tables = table;
  }

  std::string Print(ReportPaper paper, std::int32_t kind) {
    SaveSetting(kComparisonKindKey, kind);
    PrintForm(ChosenComparison(paper), {" 二期 ", " 2026 ", "1", "2", 1, 0}, result_);
    return traces_.back();
  }

  test::SiteFixture site_;
  TallyResult result_;
  std::vector<PrintedDocument> documents_;
  std::vector<std::string> traces_;
};

TEST_F(ReportFormsTest, ButtonsSetOrientationAndPaper) {
  Print(ReportPaper::a4t, 1);
  EXPECT_EQ(documents_.back().orientation, 1);
  EXPECT_EQ(documents_.back().paper_code, 9);
  Print(ReportPaper::a4y, 1);
  EXPECT_EQ(documents_.back().orientation, 2);
  EXPECT_EQ(documents_.back().paper_code, 9);
  Print(ReportPaper::b5y, 1);
  EXPECT_EQ(documents_.back().orientation, 2);
  EXPECT_EQ(documents_.back().paper_code, 13);
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
}

TEST_F(ReportFormsTest, TheSettingChoosesTheKindAndAnyOtherValueIsC) {
  EXPECT_NE(Print(ReportPaper::a4t, 1).find("差　　引"), std::string::npos);
  EXPECT_NE(Print(ReportPaper::a4t, 2).find("定　　尺"), std::string::npos);
  EXPECT_NE(Print(ReportPaper::a4t, 3).find("取　　付"), std::string::npos);
  EXPECT_NE(Print(ReportPaper::a4t, 0).find("取　　付"), std::string::npos);
}

TEST_F(ReportFormsTest, TextsAreTrimmed) {
  const std::string trace = Print(ReportPaper::b5y, 3);
  EXPECT_NE(trace.find("（二期）"), std::string::npos);
  EXPECT_NE(trace.find("\t2026 年  1 月"), std::string::npos);
}

TEST_F(ReportFormsTest, FiguresTooWideForTheirFieldsAreToldInOneMessage) {
  std::vector<std::string> told;
  Services.Messages = [&](std::string_view text, std::string_view, MessageButtons) {
    if (text.starts_with("欄に")) told.emplace_back(text);  // the company is too short for its place
    return MessageAnswer::ok;
  };
  Print(ReportPaper::a4t, 1);
  EXPECT_TRUE(told.empty());
  TallyTable table;
  table.WeldCount[9] = 12345678;
  table.TotalWeldCount = 12345678;
  result_.tables = table;
  Print(ReportPaper::a4t, 1);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_NE(told[0].find("1頁 D38 圧接：12,345,678\n1頁 合計 圧接：12,345,678"), std::string::npos)
      << told[0];
}

TEST_F(ReportFormsTest, TheUlbonReportIsA4Landscape) {
  PrintForm(UlbonForm(), {"", "2026", "1", "2", 1, 0}, result_);
  EXPECT_EQ(documents_.back().orientation, 2);
  EXPECT_EQ(documents_.back().paper_code, 9);
  EXPECT_NE(traces_.back().find("ウ ル ボ ン 重 量 表"), std::string::npos);
}

TEST_F(ReportFormsTest, ThePurchaseListIsWithWeightsWhereTheDetailScreenShowsThem) {
  Settings.DetailShowsWeight = 1;
  EXPECT_EQ(ChosenDetail(ReportPaper::a4t).word, "meisai-a4t");
  EXPECT_EQ(ChosenDetail(ReportPaper::a4y).word, "meisai-a4y");
  for (const std::int32_t other : {0, 2}) {
    Settings.DetailShowsWeight = other;
    EXPECT_EQ(ChosenDetail(ReportPaper::a4t).word, "meisai-a4t-count");
    EXPECT_EQ(ChosenDetail(ReportPaper::a4y).word, "meisai-a4y-count");
  }
  EXPECT_THROW(ChosenDetail(ReportPaper::b5y), Fault);
}

TEST_F(ReportFormsTest, TheSheetOfAllFloorsIsWithWeightsUnlessTheSettingLeavesThemOut) {
  EXPECT_EQ(ChosenFloorDetail().word, "kai-meisai");
  SaveSetting(kFloorDetailPrintKey, 0);
  EXPECT_EQ(ChosenFloorDetail().word, "kai-meisai-honsu");
  SaveSetting(kFloorDetailPrintKey, 1);
  EXPECT_EQ(ChosenFloorDetail().word, "kai-meisai");
}

TEST_F(ReportFormsTest, MemosAreTrimmedLikeTheOtherTexts) {
  ReportArguments arguments{"", "2026", "1", "2", 1, 0};
  arguments.Detail.Memos = {" 一 ", "", "  "};
  PrintForm(FindReportForm("meisai-a4t"), arguments, result_);
  EXPECT_NE(traces_.back().find("\t一\n"), std::string::npos);
}

TEST_F(ReportFormsTest, AWordThatNoFormHasIsAFault) { EXPECT_THROW(FindReportForm("taihi-a-a3t"), Fault); }

/// An empty result of the tables that a form is drawn from.
TallyResult ResultOf(ReportFamily family) {
  TallyResult result;
  if (family == ReportFamily::floor) {
    FloorTables tables;
    ListFloors(tables, {1});
    result.tables = tables;
  } else if (family == ReportFamily::part) {
    result.tables = PartTables();
  }
  return result;
}

TEST_F(ReportFormsTest, EveryFormIsFoundByItsWordAndSetsItsPaper) {
  for (const ReportForm& form : ReportForms()) {
    EXPECT_EQ(&FindReportForm(form.word), &form) << form.word;
    ReportArguments arguments{"", "2026", "1", "2", 1, 0};
    arguments.FloorOrPart = 1;
    PrintForm(form, arguments, ResultOf(form.family));
    EXPECT_EQ(documents_.back().orientation, SettingOf(form.paper).orientation) << form.word;
    EXPECT_EQ(documents_.back().paper_code, PaperCodeOfKind(SettingOf(form.paper).paper_kind)) << form.word;
  }
}

TEST_F(ReportFormsTest, ASheetShowsItsResultWhateverWasTalliedSince) {
  const std::string before = Print(ReportPaper::a4t, 1);
  TallyGrid.TotalStockWeight = Currency::FromInteger(999);
  EXPECT_EQ(Print(ReportPaper::a4t, 1), before);
}

TEST_F(ReportFormsTest, TheHeadShowsTheClientAndNameOfTheSite) {
  const std::string trace = Print(ReportPaper::a4t, 1);
  const SiteHead head = ReadSiteHead(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  EXPECT_NE(trace.find(head.name), std::string::npos);
  EXPECT_NE(trace.find("取引先  " + ClientName(*SiteContext.MasterDatabase, head.client_code)),
            std::string::npos);
  SiteContext.LongSiteName = "長い工事名の新築工事";
  EXPECT_NE(Print(ReportPaper::a4t, 1).find("長い工事名の新築工事"), std::string::npos);
}

}  // namespace
}  // namespace rbt
