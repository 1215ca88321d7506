// SPDX-License-Identifier: MIT
// The print buttons of the floor and part screens: sheets, questions, and where the screen stands then.
#include <gtest/gtest.h>

#include "reports/floorpart/floor_reports.h"
#include "session/floorpart/floorpart_driver.h"
#include "shell/config/settings.h"
#include "shell/context/reference_names.h"

namespace rbt::test {
namespace {

constexpr std::size_t kRange = 0;
constexpr std::size_t kEachFloor = 1;
constexpr std::size_t kTotals = 2;
constexpr std::size_t kBlocks = 3;
constexpr std::size_t kAllParts = 0;
constexpr std::size_t kEachPart = 1;
constexpr std::size_t kPartTotals = 2;

/// A screen with its print buttons open, all floors tallied.
class FloorPartPrinting : public ::testing::Test {
 protected:
  FloorPartPresented& Open(const FloorPartScreen& screen = kFloorScreen) {
    js_ = std::make_unique<FloorPartPresented>(screen);
    js_->OpenWithAll().OpenPrint();
    js_->View();
    return *js_;
  }
  /// Prints a sheet under these answers and returns the messages that came.
  std::string Print(std::size_t sheet, std::initializer_list<MessageAnswer> answers = {}) {
    const std::size_t before = js_->site.Messages().size();
    for (const MessageAnswer answer : answers) js_->site.Answer(answer);
    js_->presenter->Print(sheet);
    return js_->Told(before);
  }
  bool PanelIsOpen() { return js_->View().print_panel.open; }

  std::unique_ptr<FloorPartPresented> js_;
};

constexpr MessageAnswer kYes = MessageAnswer::yes;
constexpr MessageAnswer kNo = MessageAnswer::no;

TEST_F(FloorPartPrinting, TheRangesSheetHasWeightsUnlessTheSettingLeavesThemOut) {
  Open();
  Print(kRange);
  SaveSetting(kDetailPrintKey, 0);
  Print(kRange);
  SaveSetting(kDetailPrintKey, 1);
  Print(kRange);
  EXPECT_EQ(js_->printed, "kai-meisai|kai-meisai-honsu|kai-meisai|");
  EXPECT_TRUE(PanelIsOpen());
}

TEST_F(FloorPartPrinting, TheListOfFloorsLeavesThePrintButtons) {
  Open();
  EXPECT_EQ(FilterButtons(js_->View()), "");
  Print(kTotals);
  EXPECT_EQ(js_->printed, "kai-goukei|");
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(MainButtons(js_->View()), "print floors weights save load manage leave");
  EXPECT_EQ(FilterButtons(js_->View()), "kinds forms hoops plates");
}

TEST_F(FloorPartPrinting, TheListOfFloorsOverACorrectionLeavesTheSelectionOutOfReach) {
  js_ = std::make_unique<FloorPartPresented>(kFloorScreen);
  js_->OpenForCorrection().EndCorrection();
  EXPECT_EQ(FilterButtons(js_->View()), "kinds forms hoops plates");
  js_->presenter->OpenPrint();
  Print(kTotals);
  EXPECT_EQ(FilterButtons(js_->View()), "");
  js_->presenter->AskForFloors();
  js_->presenter->EnterAllFloors();
  js_->presenter->Run();
  EXPECT_EQ(FilterButtons(js_->View()), "kinds forms hoops plates");
}

TEST_F(FloorPartPrinting, TheBlocksStayWithThePrintButtons) {
  Open();
  Print(kBlocks);
  EXPECT_EQ(js_->printed, "kai-bui-futo|");
  EXPECT_TRUE(PanelIsOpen());
}

TEST_F(FloorPartPrinting, EachFloorIsAskedForAndSoIsGoingOn) {
  Open();
  EXPECT_EQ(Print(kEachFloor, {kYes, kYes, kNo, kYes, kYes}),
            "印刷確認: 1階を印刷しますか？|印刷確認: 印刷をつづけますか？|"
            "印刷確認: 2階を印刷しますか？|印刷確認: 印刷をつづけますか？|"
            "印刷確認: 3階を印刷しますか？|");
  EXPECT_EQ(js_->printed, "kai-kakukai 1|kai-kakukai 3|");
  EXPECT_TRUE(PanelIsOpen()) << "behind the last floor nothing is asked, and the buttons stay";
}

TEST_F(FloorPartPrinting, GoingOnIsAskedWithNoAsTheDefaultWhichLeavesThePrintButtons) {
  Open();
  Print(kEachFloor, {kYes});
  EXPECT_EQ(js_->site.Messages().back().buttons, MessageButtons::yes_no_default_no);
  EXPECT_EQ(js_->printed, "kai-kakukai 1|");
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(FilterButtons(js_->View()), "kinds forms hoops plates");
}

TEST_F(FloorPartPrinting, NotGoingOnBringsTheSelectionBackThatTheListOfFloorsTookAway) {
  js_ = std::make_unique<FloorPartPresented>(kFloorScreen);
  js_->OpenForCorrection().EndCorrection();
  js_->presenter->OpenPrint();
  Print(kTotals);
  js_->presenter->OpenPrint();
  js_->presenter->ClosePrint();
  EXPECT_EQ(FilterButtons(js_->View()), "") << "closing the print buttons alone does not";
  js_->presenter->OpenPrint();
  Print(kEachFloor, {kNo, kNo});
  EXPECT_EQ(FilterButtons(js_->View()), "kinds forms hoops plates");
}

TEST_F(FloorPartPrinting, AFloorWithoutWeightIsPassedOverAndGoingOnStillAsked) {
  js_ = std::make_unique<FloorPartPresented>(kFloorScreen);
  js_->site.AddRow(On(5, 1, TenBars(19, 1, 0)));
  js_->OpenWithAll().OpenPrint();
  EXPECT_EQ(Print(kEachFloor, {kNo, kYes, kNo, kYes, kNo, kYes, MessageAnswer::ok, kYes, kYes}),
            "印刷確認: 1階を印刷しますか？|印刷確認: 印刷をつづけますか？|"
            "印刷確認: 2階を印刷しますか？|印刷確認: 印刷をつづけますか？|"
            "印刷確認: 3階を印刷しますか？|印刷確認: 印刷をつづけますか？|"
            "印刷確認: 4階を飛ばします|印刷確認: 印刷をつづけますか？|"
            "印刷確認: 5階を印刷しますか？|");
  EXPECT_EQ(js_->printed, "kai-kakukai 5|");
}

TEST_F(FloorPartPrinting, SpecialFloorsAreAskedForByTheirNames) {
  js_ = std::make_unique<FloorPartPresented>(kFloorScreen);
  js_->site.AddSpecialFloors();
  js_->OpenWithAll().OpenPrint();
  const std::string told = Print(kEachFloor, {kNo, kYes, kNo, kYes, kNo, kYes, kYes, kYes, kYes, kYes, kYes});
  EXPECT_NE(told.find("Ｒ階を印刷しますか？"), std::string::npos);
  EXPECT_NE(told.find("ＰＨ階を印刷しますか？"), std::string::npos);
  EXPECT_NE(told.find("階なしを印刷しますか？"), std::string::npos);
  EXPECT_EQ(js_->printed, "kai-kakukai 76|kai-kakukai 77|kai-kakukai 78|");
}

TEST_F(FloorPartPrinting, EachPartIsAskedForWithWeightOrNot) {
  Open(kPartScreen);
  const std::string told = Print(kEachPart, {kYes, kYes, kNo,  kYes, kNo,  kYes, kNo,  kYes, kNo,  kYes, kNo,
                                             kYes, kNo,  kYes, kNo,  kYes, kNo,  kYes, kNo,  kYes, kYes});
  EXPECT_EQ(js_->printed, "bui-kakubui 1|bui-kakubui 11|");
  EXPECT_NE(told.find("その他の印刷確認: その他を印刷しますか？|"), std::string::npos);
  EXPECT_EQ(told.find("飛ばします"), std::string::npos);
  EXPECT_TRUE(told.ends_with("その他を印刷しますか？|")) << "nothing is asked behind the last part";
  EXPECT_TRUE(PanelIsOpen());
}

TEST_F(FloorPartPrinting, TheQuestionForAPartBearsItsName) {
  js_ = std::make_unique<FloorPartPresented>(kPartScreen);
  js_->OpenWithAll().OpenPrint();
  const std::string name = NamesOfParts()[0];
  EXPECT_EQ(Print(kEachPart, {kNo, kNo}),
            name + "の印刷確認: " + name + "を印刷しますか？|印刷確認: 印刷をつづけますか？|");
  EXPECT_EQ(js_->printed, "");
  EXPECT_FALSE(PanelIsOpen());
}

TEST_F(FloorPartPrinting, GoingOnToTheNextPartIsAskedWithYesAsTheDefault) {
  Open(kPartScreen);
  Print(kEachPart, {kNo, kNo});
  EXPECT_EQ(js_->site.Messages().back().text, "印刷をつづけますか？");
  EXPECT_EQ(js_->site.Messages().back().buttons, MessageButtons::yes_no);
}

TEST_F(FloorPartPrinting, AllPartsAreToldByTheSmallWindowAndTheTotalsLeaveThePrintButtons) {
  Open(kPartScreen);
  Print(kAllParts);
  EXPECT_EQ(js_->printed, "bui-zenbui telling|");
  EXPECT_TRUE(PanelIsOpen());
  Print(kPartTotals);
  EXPECT_EQ(js_->printed, "bui-zenbui telling|bui-goukei|");
  EXPECT_FALSE(PanelIsOpen());
}

TEST_F(FloorPartPrinting, SheetsBearTheDateAsItIsTyped) {
  Open();
  js_->presenter->PrintPanel().Date().Type(2, "5");
  Print(kBlocks);
  EXPECT_EQ(js_->last_date.year, "2026");
  EXPECT_EQ(js_->last_date.day, "5");
}

TEST_F(FloorPartPrinting, ADateThatIsNoneIsToldAndItsBoxHasTheFocus) {
  const std::tuple<std::size_t, const char*, FloorPartFocus> wrong[] = {
      {0, "32", FloorPartFocus::year}, {1, "13", FloorPartFocus::month}, {2, "31", FloorPartFocus::day}};
  for (const auto& [box, text, focus] : wrong) {
    js_.reset();  // one root at a time
    js_ = std::make_unique<FloorPartPresented>(kFloorScreen);
    SaveSetting(kDateStyleKey, 2);
    js_->OpenWithAll().OpenPrint();
    js_->View();
    js_->presenter->PrintPanel().Date().Type(box, text);
    EXPECT_NE(Print(kBlocks), "") << text;
    EXPECT_EQ(js_->printed, "");
    EXPECT_EQ(js_->View().focus, focus) << text;
  }
}

TEST_F(FloorPartPrinting, SheetsShowTheResultOfTheScreenWhateverWasTalliedSince) {
  Open();
  FloorTally = {};
  Print(kBlocks);
  EXPECT_EQ(js_->last_total, Currency::FromInteger(135 + 239 + 60));
}

TEST_F(FloorPartPrinting, AFaultEndsThePrintAndKeepsThePrintButtons) {
  Open();
  js_->spoils_print = true;
  EXPECT_THROW(js_->presenter->Print(kTotals), Fault);
  EXPECT_TRUE(PanelIsOpen());
}

}  // namespace
}  // namespace rbt::test
