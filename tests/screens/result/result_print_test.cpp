// SPDX-License-Identifier: MIT
// The print buttons of the result screens, from the key to the sheet.
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/print/print_trace.h"
#include "screens/result/result_forms.h"
#include "screens/result/result_print_driver.h"
#include "support/result_screens.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kOpen = Qt::Key_F1;
constexpr int kA4Landscape = Qt::Key_F1;
constexpr int kA4Portrait = Qt::Key_F3;
constexpr int kB5Landscape = Qt::Key_F5;
constexpr int kPaperKeys[] = {kA4Landscape, kA4Portrait, kB5Landscape};
constexpr int kPreviewKey = Qt::Key_F8;

/// The columns of the grid that a kind of comparison shows.
std::vector<int> GridColumns(int kind) {
  if (kind == 1) return {1, 2, 3, 4, 5};
  return {kind == 2 ? 1 : 2, 4, 5};
}

/// Every figure of a sheet against the grid that it was printed from.
void ExpectFiguresOfTheGrid(const PrintDriver& js, int kind) {
  const Sheet sheet = js.LastPrinted();
  const auto expect_row = [&](const std::string& label, const std::string& grid_label) {
    std::vector<std::string> cells;
    for (const int column : GridColumns(kind)) cells.push_back(js.Cell(grid_label, column));
    EXPECT_EQ(sheet.Row(label), cells) << label << ", kind " << kind;
  };
  for (const char* diameter :
       {"D10", "D13", "D16", "D19", "D22", "D25", "D29", "D32", "D35", "D38", "D41", "D51"}) {
    expect_row(diameter, diameter);
  }
  const bool a4_landscape = sheet.Document().orientation == kLandscape && sheet.Document().paper_code == 9;
  const std::string total = WithoutBlanks(js.Grid()->Cell(12, 0));
  expect_row(kind == 1 && a4_landscape ? "異形合計" : "合計", total);
  EXPECT_THAT(sheet.Row("ウルボン合計"), ElementsAre(js.Cell("ウルボン合計", 2), js.Cell("ウルボン合計", 4)));
  EXPECT_EQ(WholeOf(sheet.Find("総重量").text),
            WholeOf(js.Cell(total, kind == 3 ? 2 : 1)) + WholeOf(js.Cell("ウルボン合計", 2)));
}

std::string LastTrace(const PrintDriver& js) { return TraceText(js.printed.back()); }

}  // namespace

TEST(ResultPrinting, F1OpensThePanelAndItsKeysPrintThePapersOfTheirCaptions) {
  struct Paper {
    int key;
    std::int32_t code;
    std::int32_t orientation;
  };
  PrintDriver js;
  js.Start();
  for (const Paper& paper :
       {Paper{kA4Landscape, 9, 2}, Paper{kA4Portrait, 9, 1}, Paper{kB5Landscape, 13, 2}}) {
    js.Key(kOpen);
    ASSERT_TRUE(js.Shows("SSPanel3"));
    js.Key(paper.key);
    ASSERT_FALSE(js.printed.empty());
    EXPECT_EQ(js.printed.back().device_name, "甲");
    EXPECT_EQ(js.printed.back().paper_code, paper.code);
    EXPECT_EQ(js.printed.back().orientation, paper.orientation);
  }
  EXPECT_EQ(js.printed.size(), 3U);
  EXPECT_TRUE(js.shown.empty());
  EXPECT_TRUE(js.site.Messages().empty());
}

TEST(ResultPrinting, TheBulkScreenReturnsToItsListAfterASheet) {
  PrintDriver js;
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  EXPECT_TRUE(js.Shows("SSPanel2"));
  EXPECT_FALSE(js.Shows("SSPanel3"));
  EXPECT_EQ(js.Focused(), "dbgJS");
}

TEST(ResultPrinting, EveryPaperAndKindPrintsTheFiguresOfTheGrid) {
  PrintDriver js;
  js.Start();
  // Else stock and installed weight would be told apart by nothing.
  ASSERT_NE(js.Cell("D16", 1), js.Cell("D16", 2));
  ASSERT_NE(js.Cell("D16", 5), "0");
  for (const int kind : {1, 2, 3}) {
    SaveSetting(kComparisonKindKey, kind);
    for (const int paper : kPaperKeys) {
      js.Keys({kOpen, paper});
      ExpectFiguresOfTheGrid(js, kind);
    }
  }
  EXPECT_EQ(js.printed.size(), 9U);
}

TEST(ResultPrinting, SpiralsHaveTheirRowAndTheInstalledTotalIsTheGrandTotalOfTheGrid) {
  PrintDriver js;
  const auto spiral = [&js](std::int64_t material, std::int64_t diameter, double weight) {
    js.site.Add(kCompanionFile, "スパイラル",
                {{"材質", material}, {"径", diameter}, {"全重量", Currency::FromDouble(weight)}});
  };
  spiral(1, 10, 100.0);
  spiral(2, 9, 20.0);
  js.Start();
  SaveSetting(kComparisonKindKey, 3);
  for (const int paper : kPaperKeys) {
    js.Keys({kOpen, paper});
    const Sheet sheet = js.LastPrinted();
    EXPECT_THAT(sheet.Row("スパイラル合計"), ElementsAre("120"));
    EXPECT_THAT(sheet.Row("ウルボン合計"), ElementsAre("50", "3"));
    EXPECT_EQ(js.Cell("スパイラル合計", 2), "120");
    EXPECT_EQ(NumberIn(sheet.Find("総重量").text), js.Cell("総合計", 2));
  }
}

TEST(ResultPrinting, TheSettingsChosenInThePanelHoldForTheNextSheet) {
  PrintDriver js;
  js.parts.open_settings = [] {
    SaveSetting(kComparisonKindKey, 3);
    SaveSetting(kDateStyleKey, 2);
  };
  js.Start();
  js.Keys({kOpen, Qt::Key_F7, kA4Landscape});
  ExpectFiguresOfTheGrid(js, 3);
  EXPECT_TRUE(js.LastPrinted().Has("令和 08 年 11 月 21 日"));
}

TEST(ResultPrinting, TheHeadHasTheMemoAndTheDateOfTheBoxes) {
  PrintDriver js;
  js.Start();
  js.Key(kOpen);
  js.Box("txtSubKojNa")->setText(" 二期 工区 ");
  js.Box("txtMonth")->setText("3");
  js.Box("txtDay")->setText("4");
  js.Key(kA4Landscape);
  const Sheet sheet = js.LastPrinted();
  EXPECT_TRUE(sheet.Has("（二期 工区）"));
  EXPECT_TRUE(sheet.Has("2026 年  3 月  4 日"));
  EXPECT_TRUE(sheet.Has("試験工事"));
  EXPECT_TRUE(sheet.Has("取引先  試験商店"));
}

TEST(ResultPrinting, EraDatesHaveTheNameOfTheEraAndTheYearAsTyped) {
  PrintDriver js;
  SaveSetting(kDateStyleKey, 2);
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  EXPECT_TRUE(js.LastPrinted().Has("令和 08 年 11 月 21 日"));
  js.Key(kOpen);
  js.Box("txtYear")->setText("31");
  js.Box("txtMonth")->setText("4");
  js.Box("txtDay")->setText("30");
  js.Key(kB5Landscape);
  EXPECT_TRUE(js.LastPrinted().Has("平成 31 年  4 月 30 日"));
}

TEST(ResultPrinting, ARefusedEraYearPrintsNothingAndGetsTheFocus) {
  PrintDriver js;
  SaveSetting(kDateStyleKey, 2);
  js.Start();
  js.Key(kOpen);
  js.Box("txtYear")->setText("32");
  for (const int paper : kPaperKeys) js.Key(paper);
  EXPECT_TRUE(js.printed.empty());
  EXPECT_EQ(js.Focused(), "txtYear");
  EXPECT_TRUE(js.Shows("SSPanel3"));
  js.Box("txtYear")->setText("31");
  js.Key(kA4Landscape);
  EXPECT_EQ(js.printed.size(), 1U);
}

TEST(ResultPrinting, AnUpliftRaisesTheUlbonRowAndTheTotal) {
  PrintDriver js;
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  const std::int64_t plain = WholeOf(js.LastPrinted().Find("総重量").text);
  EXPECT_THAT(js.LastPrinted().Row("ウルボン合計"), ElementsAre("30", "3"));
  js.Key(Qt::Key_F3);
  js.Type("txtPercent", "10");
  js.Keys({Qt::Key_Return, kOpen, kA4Portrait});
  EXPECT_THAT(js.LastPrinted().Row("ウルボン合計"), ElementsAre("33", "3"));
  EXPECT_EQ(WholeOf(js.LastPrinted().Find("総重量").text), plain + 3);
  ExpectFiguresOfTheGrid(js, 1);
}

TEST(ResultPrinting, AnUpliftThatTheGridDoesNotShowYetIsNotPrinted) {
  PrintDriver js;
  js.Start();
  js.Key(Qt::Key_F3);
  js.Type("txtPercent", "10");
  js.Keys({kOpen, kA4Portrait});
  ASSERT_EQ(js.Cell("ウルボン合計", 2), "30");
  ExpectFiguresOfTheGrid(js, 1);
}

TEST(ResultPrinting, TheDeformedReportLeavesUlbonOut) {
  PrintDriver js;
  js.Start();
  js.Click("cmdPrint2");
  js.Key(kA4Landscape);
  const Sheet sheet = js.LastPrinted();
  EXPECT_FALSE(sheet.Has("ウルボン合計"));
  EXPECT_EQ(NumberIn(sheet.Find("総重量").text), js.Cell(WithoutBlanks(js.Grid()->Cell(12, 0)), 1));
}

TEST(ResultPrinting, TheUlbonViewPrintsTheUlbonReportFromItsOneButtonOnA4Landscape) {
  PrintDriver js;
  js.Start();
  js.Key(Qt::Key_F3);
  js.Type("txtPercent", "10");
  js.Keys({Qt::Key_Return, Qt::Key_F2, kOpen});
  js.Keys({kA4Landscape, kB5Landscape});
  EXPECT_TRUE(js.printed.empty());
  js.Key(kA4Portrait);
  ASSERT_EQ(js.printed.size(), 1U);
  const Sheet sheet = js.LastPrinted();
  EXPECT_EQ(sheet.Document().orientation, 2);
  EXPECT_EQ(sheet.Document().paper_code, 9);
  EXPECT_TRUE(sheet.Has("ウ ル ボ ン 重 量 表"));
  EXPECT_THAT(sheet.Row("U9"), ElementsAre(js.Cell("U9", 2), "3"));
  EXPECT_THAT(sheet.Row("U9"), ElementsAre("33", "3"));
  EXPECT_THAT(sheet.Row("合計"), ElementsAre("30", "3"));  // the total stays as tallied
}

TEST(ResultPrinting, TheShapeScreenPrintsTheUlbonReportOfTodayWithF3) {
  PrintDriver js(kShapeScreen);
  js.Start();
  js.Keys({kOpen});
  js.Box("txtYear")->setText("1999");
  js.Box("txtSubKojNa")->setText(" 三期 ");
  js.Keys({Qt::Key_Escape, Qt::Key_F3});
  ASSERT_EQ(js.printed.size(), 1U);
  const Sheet sheet = js.LastPrinted();
  EXPECT_TRUE(sheet.Has("ウ ル ボ ン 重 量 表"));
  EXPECT_EQ(sheet.Document().orientation, 2);
  EXPECT_EQ(sheet.Document().paper_code, 9);
  EXPECT_TRUE(sheet.Has("2026 年 11 月 21 日"));
  EXPECT_TRUE(sheet.Has("（三期）"));
  EXPECT_THAT(sheet.Row("U9"), ElementsAre(js.Cell("U9", 2), js.Cell("U9", 4)));
  EXPECT_EQ(js.Box("txtYear")->text(), "2026");
  EXPECT_FALSE(js.Shows("SSPanel3"));
}

TEST(ResultPrinting, ScopedScreensPrintTheirGridAndStayInThePanel) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    PrintDriver js(*screen);
    js.Start();
    js.Key(kOpen);
    for (const int paper : kPaperKeys) {
      js.Key(paper);
      ExpectFiguresOfTheGrid(js, 1);
      EXPECT_TRUE(js.Shows("SSPanel3"));
    }
    EXPECT_EQ(js.printed.size(), 3U);
  }
}

TEST(ResultPrinting, AnotherInstalledPrinterKeepsItsPaperAndOrientation) {
  PrintDriver js;
  js.Install({{"乙", DeviceKind::installed_printer}});
  Printers().Current().PaperSize = kPaperA3;
  Printers().Current().Orientation = kPortrait;
  js.Start();
  js.Keys({kOpen, kB5Landscape});
  EXPECT_EQ(js.printed.at(0).device_name, "乙");
  EXPECT_EQ(js.printed.at(0).paper_code, kPaperA3);
  EXPECT_EQ(js.printed.at(0).orientation, kPortrait);
}

TEST(ResultPrinting, ThePrinterOfTheSettingPrintsAndTheCurrentOneComesBack) {
  PrintDriver js;
  js.Install({{"乙", DeviceKind::installed_printer}, {"甲", DeviceKind::installed_printer}});
  js.Start();
  js.Keys({kOpen, kB5Landscape});
  EXPECT_EQ(js.printed.at(0).device_name, "甲");
  EXPECT_EQ(Printers().Current().DeviceName(), "乙");
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
}

TEST(ResultPrinting, PaperComesBackAfterwardsAndOrientationStays) {
  PrintDriver js;
  js.Start();
  js.Keys({kOpen, kB5Landscape});
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
  EXPECT_EQ(Printers().Current().Orientation, kLandscape);
}

TEST(ResultPrinting, ASheetPrintedTwiceIsTheSameSheet) {
  PrintDriver js(kPageScreen);
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  const std::string first = LastTrace(js);
  js.Keys({kB5Landscape, kA4Portrait});
  EXPECT_EQ(js.printed.size(), 3U);
  EXPECT_EQ(LastTrace(js), first);
}

TEST(ResultPrinting, AHeldKeyPrintsOneSheet) {
  PrintDriver js(kPageScreen);
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  Press(*js.form, kA4Portrait, Qt::NoModifier, true);
  EXPECT_EQ(js.printed.size(), 1U);
}

TEST(ResultPrinting, PrintsTheResultThatTheScreenShowsWhateverWasTalliedSince) {
  PrintDriver js;
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  TallyGrid = TallyTable();
  js.Keys({kOpen, kA4Portrait});
  ASSERT_EQ(js.printed.size(), 2U);
  EXPECT_EQ(TraceText(js.printed[0]), TraceText(js.printed[1]));
}

TEST(ResultPrinting, AFaultInAReportPrintsNothingAndLeavesFormAndPrinterUsable) {
  PrintDriver js;
  js.Start();
  js.Key(kOpen);
  js.spoils_result = true;
  js.Key(kB5Landscape);
  EXPECT_TRUE(js.printed.empty());
  ASSERT_EQ(js.site.Messages().size(), 1U);
  EXPECT_THAT(js.site.Messages()[0].text, HasSubstr("UlbonWeldCount"));
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
  EXPECT_TRUE(js.Shows("SSPanel3"));
  js.spoils_result = false;
  js.Key(kA4Portrait);
  ASSERT_EQ(js.printed.size(), 1U);
  EXPECT_EQ(js.printed[0].pages.size(), 1U);
}

TEST(ResultPrinting, AFaultHalfwayDownAPageLeavesNothingOfItOnTheNext) {
  PrintDriver js(kShapeScreen);
  js.Start();
  js.spoils_result = true;
  js.Key(Qt::Key_F3);  // faults at the total row
  EXPECT_EQ(js.site.Messages().size(), 1U);
  EXPECT_TRUE(js.printed.empty());
  js.spoils_result = false;
  js.Keys({Qt::Key_F3, Qt::Key_F3});
  ASSERT_EQ(js.printed.size(), 2U);
  EXPECT_EQ(TraceText(js.printed[0]), TraceText(js.printed[1]));
}

TEST(ResultPrinting, APrinterThatFailsIsToldAndTheNextSheetPrints) {
  PrintDriver js;
  bool out_of_paper = true;
  std::list<PrinterSurface> printers;
  printers.emplace_back("甲", DeviceKind::installed_printer, [&](const PrintedDocument& document) {
    if (out_of_paper) throw Fault(FaultKind::file, "甲: no paper");
    js.printed.push_back(document);
  });
  Services.Printers = PrinterList(std::move(printers));
  js.Start();
  js.Keys({kOpen, kB5Landscape});
  ASSERT_EQ(js.site.Messages().size(), 1U);
  EXPECT_THAT(js.site.Messages()[0].text, HasSubstr("no paper"));
  EXPECT_EQ(Printers().Current().PaperSize, kPaperA4);
  out_of_paper = false;
  js.Key(kB5Landscape);
  EXPECT_EQ(js.printed.size(), 1U);
}

TEST(ResultPrinting, WithoutACompanyNameAMessageAsksForOneAndTheSheetPrints) {
  PrintDriver js;
  js.site.SetIni(kSteelFile, "自社名", "会社名", "");
  js.Start();
  js.Keys({kOpen, kA4Portrait});
  ASSERT_EQ(js.site.Messages().size(), 1U);
  EXPECT_EQ(js.site.Messages()[0].title, "入力エラー");
  EXPECT_EQ(js.printed.size(), 1U);
  EXPECT_TRUE(js.Shows("SSPanel2"));
}

TEST(ResultPreview, IsOffAtFirstAndTurnedOverWithF8) {
  PrintDriver js;
  js.Start();
  js.Key(kOpen);
  EXPECT_FALSE(js.PreviewBox()->isChecked());
  EXPECT_EQ(js.PreviewBox()->text(), "プレビュー （F8）");
  js.Key(kPreviewKey);
  EXPECT_TRUE(js.PreviewBox()->isChecked());
  js.Key(kPreviewKey);
  EXPECT_FALSE(js.PreviewBox()->isChecked());
  js.PreviewBox()->click();
  EXPECT_TRUE(js.PreviewBox()->isChecked());
}

TEST(ResultPreview, ShowsTheSheetInPlaceOfPrintingIt) {
  PrintDriver js;
  js.Start();
  js.Keys({kOpen, kA4Portrait, kOpen, kPreviewKey, kA4Portrait});
  ASSERT_EQ(js.shown.size(), 1U);
  EXPECT_EQ(js.printed.size(), 1U);
  EXPECT_EQ(TraceText(js.shown[0]), LastTrace(js));
  EXPECT_TRUE(js.Shows("SSPanel2"));
}

TEST(ResultPreview, IsRememberedWhileTheFormIsOpen) {
  PrintDriver js;
  js.Start();
  js.Keys({kOpen, kPreviewKey, kA4Portrait, kOpen, kB5Landscape});
  EXPECT_EQ(js.shown.size(), 2U);
  EXPECT_TRUE(js.printed.empty());
  js.Keys({kOpen, kPreviewKey, kB5Landscape});
  EXPECT_EQ(js.shown.size(), 2U);
  EXPECT_EQ(js.printed.size(), 1U);
}

TEST(ResultPreview, OpensWhenThePrinterIsBackAsItWas) {
  PrintDriver js;
  js.Install({{"乙", DeviceKind::installed_printer}, {"甲", DeviceKind::installed_printer}});
  js.while_shown = [&js] {
    PrinterSurface& current = Printers().Current();
    EXPECT_EQ(current.DeviceName(), "乙");
    // What the preview sends to a printer gets there.
    current.Print({"一"});
    current.EndDoc();
    EXPECT_EQ(js.printed.size(), 1U);
  };
  js.Start();
  js.Keys({kOpen, kPreviewKey, kB5Landscape});
  ASSERT_EQ(js.shown.size(), 1U);
  EXPECT_EQ(js.shown[0].device_name, "甲");
  EXPECT_EQ(js.shown[0].paper_code, 13);
  EXPECT_EQ(js.printed.size(), 1U);
}

TEST(ResultPreview, OpensByItselfForThePdfDevice) {
  PrintDriver js;
  js.Install({{"PDF", DeviceKind::pdf}});
  js.Start();
  js.Keys({kOpen, kB5Landscape});
  EXPECT_TRUE(js.printed.empty());
  ASSERT_EQ(js.shown.size(), 1U);
  EXPECT_EQ(js.shown[0].paper_code, 13);
  EXPECT_EQ(js.shown[0].orientation, 2);
}

TEST(ResultPreview, OfAPrinterThatIsFoundOnlyNowPrintsNothingEither) {
  PrintDriver js;
  js.Install({{"PDF", DeviceKind::pdf}});
  Services.FindPrinters = [&js] {
    return js.Devices({{"甲", DeviceKind::installed_printer}, {"PDF", DeviceKind::pdf}});
  };
  js.Start();
  js.Keys({kOpen, kPreviewKey, kB5Landscape});
  EXPECT_TRUE(js.printed.empty());
  ASSERT_EQ(js.shown.size(), 1U);
  EXPECT_EQ(js.shown[0].device_name, "甲");
}

TEST(ResultPreview, APdfDeviceBesideAPrinterThatPrintsStaysOutOfIt) {
  PrintDriver js;
  js.Install({{"甲", DeviceKind::installed_printer}, {"PDF", DeviceKind::pdf}});
  js.Start();
  js.Keys({kOpen, kB5Landscape});
  EXPECT_EQ(js.printed.size(), 1U);
  EXPECT_TRUE(js.shown.empty());
}

TEST(ResultPreview, CountsForTheUlbonButtonOfTheShapeScreenToo) {
  PrintDriver js(kShapeScreen);
  js.Start();
  js.Keys({kOpen, kPreviewKey, Qt::Key_Escape, Qt::Key_F3});
  EXPECT_TRUE(js.printed.empty());
  ASSERT_EQ(js.shown.size(), 1U);
  EXPECT_TRUE(js.LastShown().Has("ウ ル ボ ン 重 量 表"));
}

TEST(ResultPreview, OfAReportThatFaultsShowsNothing) {
  PrintDriver js;
  js.Start();
  js.spoils_result = true;
  js.Keys({kOpen, kPreviewKey, kB5Landscape});
  EXPECT_EQ(js.site.Messages().size(), 1U);
  EXPECT_TRUE(js.shown.empty());
  js.spoils_result = false;
  js.Keys({kPreviewKey, kB5Landscape});
  EXPECT_EQ(js.printed.size(), 1U);  // on the printer again
}

TEST(ResultPreview, CannotBeChosenWhileThereIsNothingToPrint) {
  PrintDriver js(kPageScreen);
  js.Open(kPageScreen);
  js.Keys({kOpen, kPreviewKey});
  EXPECT_FALSE(js.PreviewBox()->isChecked());
}

TEST(ResultForms, AreMadeWithTheirPrintButtonsAndThePreviewInPlace) {
  for (const ResultScreen* const screen : ResultScreens()) {
    PrintDriver js;
    js.Start();  // loads the site
    js.form.reset();
    const std::unique_ptr<QWidget> form = MakeResultForm(*screen);
    form->show();
    form->activateWindow();
    Settle();
    static_cast<ResultForm&>(*form).TakeRange();
    Settle();
    const std::string name = form->objectName().toStdString();
    std::vector<std::string> modal;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&modal] {
      QWidget* window = QApplication::activeModalWidget();
      if (window == nullptr) return;
      modal.push_back(window->objectName().toStdString());
      window->hide();
    });
    closer.start(5);
    for (const int key : {kOpen, kPreviewKey, kA4Portrait}) Press(*form, key);
    EXPECT_THAT(modal, ElementsAre("PreviewForm")) << name;
    EXPECT_TRUE(js.printed.empty()) << name;
    if (name == "JS") Press(*form, kOpen);  // back in its list
    for (const int key : {kPreviewKey, kA4Portrait}) Press(*form, key);
    EXPECT_EQ(js.printed.size(), 1U) << name;
    EXPECT_EQ(modal.size(), 1U) << name;
  }
}

}  // namespace rbt::test
