// SPDX-License-Identifier: MIT
// The detail screen's fields and its print panel.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "session/detail/detail_presenter_driver.h"
#include "shell/config/settings.h"
#include "support/fault_of.h"
#include "tally/tally_grid.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DetailFields, StartAsTheSettingsHaveThemWithTodaysDate) {
  Detailed detail;
  detail.Open();
  DetailView view = detail.View();
  EXPECT_THAT(view.memos, ElementsAre("", "", ""));
  EXPECT_EQ(view.memo_position, "0");
  EXPECT_EQ(view.installed, "0");
  EXPECT_EQ(view.date_place, DatePlace::centre);
  EXPECT_EQ(view.print_panel.date.year, "2026");
  EXPECT_EQ(view.print_panel.date.month, "11");
  EXPECT_EQ(view.print_panel.date.day, "21");
  // Another program has changed them meanwhile.
  SaveSetting(kMemoPositionKey, 1);
  SaveSetting(kDetailPrintKey, 1);
  SaveSetting(kDetailDatePositionKey, 1);
  detail.Open();
  view = detail.View();
  EXPECT_EQ(view.memo_position, "1");
  EXPECT_EQ(view.installed, "1");
  EXPECT_EQ(view.date_place, DatePlace::right);
}

TEST(DetailFields, TheMemoPositionTakes0And1AndIsKeptAtOnce) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  EXPECT_TRUE(zaimei.TypeMemoPosition("1"));
  EXPECT_EQ(ReadSetting(kMemoPositionKey), 1);
  for (const char* other : {"2", "", "10", "a", "１"}) EXPECT_FALSE(zaimei.TypeMemoPosition(other)) << other;
  EXPECT_EQ(detail.View().memo_position, "1");
  detail.Open();
  EXPECT_EQ(detail.View().memo_position, "1");
  EXPECT_TRUE(detail.presenter->TypeMemoPosition("0"));
  EXPECT_EQ(ReadSetting(kMemoPositionKey), 0);
}

TEST(DetailFields, InstalledWeightsTake0And1AndAreNotKept) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  EXPECT_TRUE(zaimei.TypeInstalled("1"));
  for (const char* other : {"2", "", "11", "x"}) EXPECT_FALSE(zaimei.TypeInstalled(other)) << other;
  EXPECT_EQ(detail.View().installed, "1");
  EXPECT_EQ(ReadSetting(kDetailPrintKey), 0);
  detail.Open();
  EXPECT_EQ(detail.View().installed, "0");
}

TEST(DetailFields, ThePlaceOfTheDateIsKeptAtOnce) {
  Detailed detail;
  detail.Open().ChooseDatePlace(DatePlace::right);
  EXPECT_EQ(ReadSetting(kDetailDatePositionKey), 1);
  EXPECT_EQ(detail.View().date_place, DatePlace::right);
  detail.presenter->ChooseDatePlace(DatePlace::centre);
  EXPECT_EQ(ReadSetting(kDetailDatePositionKey), 0);
  EXPECT_EQ(detail.View().date_place, DatePlace::centre);
}

TEST(DetailPrintPanel, PrintsTheListWithItsFields) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  zaimei.TypeMemo(0, "第一工区");
  zaimei.TypeMemo(2, "午前中");
  zaimei.TypeMemoPosition("1");
  zaimei.TypeInstalled("1");
  zaimei.ChooseDatePlace(DatePlace::right);
  zaimei.Press(DetailButton::print);
  zaimei.PrintPanel().Date().Type(2, "5");
  zaimei.PrintPanel().SetPreview(true);
  zaimei.Press(DetailButton::a4_landscape);
  ASSERT_EQ(detail.orders.size(), 1U);
  const DetailOrder& order = detail.orders[0];
  EXPECT_EQ(order.result, zaimei.Result());
  EXPECT_EQ(order.paper, ReportPaper::a4y);
  EXPECT_EQ(order.date.day, "5");
  EXPECT_THAT(order.detail.Memos, ElementsAre("第一工区", "", "午前中"));
  EXPECT_EQ(order.detail.MemoPosition, MemoPlace::above);
  EXPECT_TRUE(order.detail.Installed);
  EXPECT_EQ(order.detail.DatePosition, DatePlace::right);
  EXPECT_TRUE(order.preview);
}

TEST(DetailPrintPanel, EachPaperHasItsButtonAndThePanelClosesBehindIt) {
  Detailed detail;
  for (const auto& [button, paper] : {std::pair(DetailButton::a4_landscape, ReportPaper::a4y),
                                      std::pair(DetailButton::a4_portrait, ReportPaper::a4t)}) {
    DetailPresenter& zaimei = detail.Open();
    zaimei.Press(DetailButton::print);
    zaimei.Press(button);
    EXPECT_EQ(detail.orders.back().paper, paper);
    const DetailView view = detail.View();
    EXPECT_EQ(view.mode, DetailMode::buttons);
    EXPECT_EQ(view.focus, "cmdMeisaiPrint");
  }
}

TEST(DetailPrintPanel, PrintsTheListThatTheGridShowsWhateverWasTalliedSince) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::correct);
  zaimei.EditCell(3, 7, "20");
  zaimei.Escape();
  TallyGrid = {};
  zaimei.Press(DetailButton::print);
  zaimei.Press(DetailButton::a4_portrait);
  EXPECT_EQ(detail.orders.back().result.Grid().BarCount[3][5], 20);
}

TEST(DetailPrintPanel, ADateThatIsNoneIsToldPrintsNothingAndGetsTheFocus) {
  Detailed detail;
  SaveSetting(kDateStyleKey, 2);
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::print);
  zaimei.PrintPanel().Date().Type(0, "32");
  zaimei.Press(DetailButton::a4_landscape);
  EXPECT_THAT(detail.orders, IsEmpty());
  EXPECT_EQ(detail.View().focus, "txtYear");
  EXPECT_EQ(detail.View().mode, DetailMode::printing);
  EXPECT_EQ(detail.Messages().back().title, "材料明細表");
  zaimei.PrintPanel().Date().Type(0, "31");
  zaimei.PrintPanel().Date().Type(1, "13");
  zaimei.Press(DetailButton::a4_landscape);
  EXPECT_EQ(detail.View().focus, "txtMonth");
  EXPECT_THAT(detail.orders, IsEmpty());
  zaimei.PrintPanel().Date().Type(1, "12");
  zaimei.Press(DetailButton::a4_landscape);
  EXPECT_EQ(detail.orders.size(), 1U);
}

TEST(DetailPrintPanel, TellsThePrinterThatTookTheSheetUntilItIsOpenedAgain) {
  Detailed detail;
  detail.printer = "甲";
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::print);
  zaimei.Press(DetailButton::a4_landscape);
  EXPECT_EQ(detail.View().notice, "「甲」に送りました。");
  zaimei.Press(DetailButton::print);
  EXPECT_EQ(detail.View().notice, "");
  detail.printer = "";
  zaimei.Press(DetailButton::a4_landscape);
  EXPECT_EQ(detail.View().notice, "") << "it was looked at";
}

TEST(DetailPrintPanel, AFaultOfTheReportLeavesItOpen) {
  Detailed detail;
  detail.parts.print = [](const DetailOrder&) -> std::string { throw Fault(FaultKind::file, "no paper"); };
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::print);
  EXPECT_EQ(FaultOf([&] { zaimei.Press(DetailButton::a4_landscape); }), FaultKind::file);
  EXPECT_EQ(detail.View().mode, DetailMode::printing);
}

TEST(DetailPrintPanel, EmptyDateBoxesAreFilledWhenItOpens) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  zaimei.PrintPanel().Date().Type(1, "");
  zaimei.PrintPanel().Date().Type(2, "7");
  zaimei.Press(DetailButton::print);
  EXPECT_EQ(detail.View().print_panel.date.month, "11");
  EXPECT_EQ(detail.View().print_panel.date.day, "7");
}

TEST(DetailPrintPanel, TheSettingsChosenInItShowInGridAndYear) {
  Detailed detail;
  detail.settings = [] {
    Settings.DetailShowsWeight = 1;
    SaveSetting(kDateStyleKey, 2);
  };
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::print);
  zaimei.Press(DetailButton::settings);
  const DetailView view = detail.View();
  EXPECT_EQ(view.mode, DetailMode::printing);
  EXPECT_EQ(view.rows.size(), 26U);
  EXPECT_EQ(view.print_panel.date.year, "08");
}

TEST(DetailPrintPanel, MemosStayWhenItIsOpenedAgain) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  zaimei.TypeMemo(1, "現場直送");
  zaimei.Press(DetailButton::print);
  zaimei.Press(DetailButton::close_print);
  zaimei.Press(DetailButton::print);
  EXPECT_EQ(detail.View().memos[1], "現場直送");
}

}  // namespace
}  // namespace rbt::test
