// SPDX-License-Identifier: MIT
// What a result screen prints, and what holds in every state of it.
#include <array>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "session/result/result_presenter_driver.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/fault_of.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

constexpr std::array<const char*, 3> kPapers{"A4T", "A4Y", "B5Y"};

std::string Shown(const PrintOrder& order) {
  return std::string(kPapers.at(static_cast<std::size_t>(order.paper))) + (order.ulbon ? " ulbon " : " ") +
         order.date.year + "/" + order.date.month + "/" + order.date.day + " [" + order.sub_project + "] " +
         std::to_string(order.result.ulbon_percent) + (order.preview ? " preview" : "");
}

}  // namespace

TEST(ResultPrintPanel, TakesThePlaceOfTheMainButtonsAndKeepsTheRangeOutOfReach) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.OpenWithResult().OpenPrint(SheetBody::with_ulbon);
    EXPECT_TRUE(js.View().print_panel.open) << screen->name;
    EXPECT_FALSE(js.View().main_buttons_shown);
    EXPECT_FALSE(js.View().range.enabled);
    js.presenter->ClosePrint();
    EXPECT_FALSE(js.View().print_panel.open);
    EXPECT_TRUE(js.View().main_buttons_shown);
    EXPECT_TRUE(js.View().range.enabled);
  }
}

TEST(ResultPrintPanel, ItsButtonDecidesOverTheBodyOfTheSheet) {
  Presented js(kBulkScreen);
  js.Open().OpenPrint(SheetBody::deformed_alone);
  EXPECT_EQ(RunState.ReportBody, 0);
  js.presenter->OpenPrint(SheetBody::with_ulbon);
  EXPECT_EQ(RunState.ReportBody, 1);
}

TEST(ResultPrintPanel, PrintsWhatWasAskedForAndOnlyTheBulkScreenClosesIt) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.OpenWithResult().OpenPrint(SheetBody::with_ulbon);
    js.presenter->PrintPanel().TypeMemo(" 二期 ");
    js.presenter->PrintPanel().Date().Type(2, "5");
    js.presenter->PrintPanel().TogglePreview();
    js.presenter->Print(ReportPaper::a4t);
    ASSERT_EQ(js.orders.size(), 1U);
    EXPECT_EQ(Shown(js.orders[0]), "A4T 2026/11/5 [ 二期 ] 0 preview");
    EXPECT_EQ(js.View().print_panel.open, screen != &kBulkScreen) << screen->name;
  }
}

TEST(ResultPrintPanel, PrintsTheUpliftThatTheGridShows) {
  Presented js(kBulkScreen);
  js.Open().TypeUplift("10");
  js.presenter->OpenPrint(SheetBody::with_ulbon);
  js.presenter->Print(ReportPaper::a4y);
  js.presenter->TakeUplift();
  js.presenter->OpenPrint(SheetBody::with_ulbon);
  js.presenter->Print(ReportPaper::a4y);
  ASSERT_EQ(js.orders.size(), 2U);
  EXPECT_EQ(js.orders[0].result.ulbon_percent, 0) << "typed is not taken";
  EXPECT_EQ(js.orders[1].result.ulbon_percent, 10);
}

TEST(ResultPrintPanel, PrintsTheResultThatTheGridShowsWhateverWasTalliedSince) {
  Presented js(kBulkScreen);
  js.Open().OpenPrint(SheetBody::with_ulbon);
  const TallyTable tallied = TallyGrid;
  TallyGrid = TallyTable();
  js.presenter->Print(ReportPaper::a4y);
  EXPECT_TRUE(js.orders.at(0).result.Grid() == tallied);
  EXPECT_EQ(js.orders.at(0).result.kind, TallyKind::bulk);
  EXPECT_EQ(js.Row("D19"), "135 |135 |0 |3|0|");
}

TEST(ResultPrintPanel, PrintsTheUlbonReportInTheUlbonView) {
  Presented js(kBulkScreen);
  js.Open().ShowUlbonView();
  js.presenter->OpenPrint(SheetBody::with_ulbon);
  js.presenter->Print(ReportPaper::a4t);
  EXPECT_EQ(Shown(js.orders.at(0)), "A4T ulbon 2026/11/21 [] 0");
}

TEST(ResultPrintPanel, ASheetThatWasSentIsToldUntilTheNextOneOrTheNextTally) {
  Presented js(kBulkScreen);
  js.printer = "甲";
  const auto print = [&] {
    js.presenter->OpenPrint(SheetBody::with_ulbon);
    EXPECT_EQ(js.View().notice, "");
    js.presenter->Print(ReportPaper::a4y);
  };
  js.Open();
  print();
  EXPECT_EQ(js.View().notice, "「甲」に送りました。");
  js.presenter->CycleHoops();
  EXPECT_EQ(js.View().notice, "");
  js.presenter->CycleHoops();
  js.presenter->CycleHoops();
  js.printer = "";
  print();
  EXPECT_EQ(js.View().notice, "") << "what is looked at was not sent";
}

TEST(ResultPrintPanel, ARefusedDatePrintsNothingSaysWhyAndGetsTheFocus) {
  Presented js(kBulkScreen);
  SaveSetting(kDateStyleKey, 2);
  js.Open().OpenPrint(SheetBody::with_ulbon);
  js.presenter->PrintPanel().Date().Type(0, "32");
  js.presenter->Print(ReportPaper::a4y);
  EXPECT_TRUE(js.orders.empty());
  EXPECT_TRUE((js.View().focus == FocusRequest{FocusTarget::year}));
  EXPECT_EQ(js.Message(), "和暦の年は 31 までです。");
  EXPECT_EQ(js.site.Messages().back().title, "重量集計");
  EXPECT_TRUE(js.View().print_panel.open);
  js.presenter->PrintPanel().Date().Type(0, "31");
  js.presenter->PrintPanel().Date().Type(1, "13");
  js.presenter->Print(ReportPaper::a4y);
  EXPECT_TRUE((js.View().focus == FocusRequest{FocusTarget::year, 1}));
  js.presenter->PrintPanel().Date().Type(1, "4");
  js.presenter->PrintPanel().Date().Type(2, "31");
  js.presenter->Print(ReportPaper::a4y);
  EXPECT_TRUE((js.View().focus == FocusRequest{FocusTarget::year, 2}));
  EXPECT_EQ(js.Message(), "4 月は 30 日までです。");
  EXPECT_TRUE(js.orders.empty());
  js.presenter->PrintPanel().Date().Type(2, "30");
  js.presenter->Print(ReportPaper::a4y);
  EXPECT_EQ(js.orders.size(), 1U);
}

TEST(ResultPrintPanel, AFaultOfTheReportLeavesItOpen) {
  Presented js(kBulkScreen);
  js.parts.print = [](const PrintOrder&) -> std::string {
    throw Fault(FaultKind::overflow, "UlbonWeldCount");
  };
  js.Open().OpenPrint(SheetBody::with_ulbon);
  EXPECT_EQ(FaultOf([&] { js.presenter->Print(ReportPaper::a4y); }), FaultKind::overflow);
  EXPECT_TRUE(js.View().print_panel.open);
}

TEST(ResultPrintPanel, WithoutAPrinterOfSheetsItStaysOpenAfterTheMessage) {
  Presented js(kBulkScreen);
  js.parts.print = nullptr;
  js.Open().OpenPrint(SheetBody::with_ulbon);
  js.presenter->Print(ReportPaper::a4y);
  EXPECT_EQ(js.Message(), "「印字」は、まだご利用いただけません。");
  EXPECT_TRUE(js.View().print_panel.open);
}

TEST(ResultPrintPanel, TheSettingsChosenInItShowInGridAndYear) {
  Presented js(kBulkScreen);
  js.settings = [] {
    SaveSetting(kDateStyleKey, 2);
    Settings.AlternateRowColours = 0;
  };
  js.Open().OpenPrint(SheetBody::with_ulbon);
  EXPECT_TRUE((js.View().colours == RowColours{Settings.GridRowBackColor, Settings.GridRowForeColor}));
  js.presenter->OpenSettings();
  EXPECT_FALSE(js.View().colours.has_value());
  EXPECT_EQ(js.View().print_panel.date.year, "08");
}

TEST(ShapeScreen, PrintsTheUlbonReportOfTodayWithoutThePanel) {
  Presented js(kShapeScreen);
  js.OpenWithResult();
  js.presenter->PrintPanel().TypeMemo("三期");
  js.presenter->PrintPanel().Date().Type(0, "1999");
  RunState.ReportBody = 0;
  js.presenter->PrintUlbonOfToday();
  EXPECT_EQ(Shown(js.orders.at(0)), "A4Y ulbon 2026/11/21 [三期] 0");
  EXPECT_EQ(RunState.ReportBody, 1);
  EXPECT_FALSE(js.View().print_panel.open);
}

namespace {

using Intent = std::function<void(ResultPresenter&)>;

/// Every intent, with the button that it hangs on; one that always can be asked for has none.
struct Offered {
  const char* name;
  Intent act;
  std::function<bool(const ResultScreenView&)> can_be_asked_for;
};

bool Reachable(const ButtonView& button) { return button.shown && button.enabled; }

std::function<bool(const ResultScreenView&)> Main(ButtonView ResultScreenView::*button) {
  return
      [button](const ResultScreenView& view) { return view.main_buttons_shown && Reachable(view.*button); };
}
std::function<bool(const ResultScreenView&)> Filter(ButtonView FilterView::*button) {
  return
      [button](const ResultScreenView& view) { return view.result_shown && Reachable(view.filters.*button); };
}
bool InPrintPanel(const ResultScreenView& view) { return view.print_panel.open; }

std::vector<Offered> AllIntents() {
  using P = ResultPresenter;
  return {
      {"OpenPrint", [](P& js) { js.OpenPrint(SheetBody::with_ulbon); }, Main(&ResultScreenView::print)},
      {"OpenDeformedPrint", [](P& js) { js.OpenPrint(SheetBody::deformed_alone); },
       Main(&ResultScreenView::print_deformed)},
      {"ShowUlbonView", &P::ShowUlbonView, Main(&ResultScreenView::show_ulbon_view)},
      {"UlbonButton", [](P& js) { js.Screen().offers.uplift ? js.BeginUplift() : js.PrintUlbonOfToday(); },
       Main(&ResultScreenView::ulbon)},
      {"TakeUplift", &P::TakeUplift,
       [](const ResultScreenView& view) { return view.filters.uplift.shown && view.filters.uplift.enabled; }},
      {"RestoreValues", &P::RestoreValues, Main(&ResultScreenView::restore_values)},
      {"AskForRange", &P::AskForRange, Main(&ResultScreenView::change_range)},
      {"TakeRange", &P::TakeRange,
       [](const ResultScreenView& view) { return view.range.shown && view.range.enabled; }},
      {"ChooseKinds", &P::ChooseKinds, Filter(&FilterView::choose_kinds)},
      {"ChooseForms", &P::ChooseForms, Filter(&FilterView::choose_forms)},
      {"CycleHoops", &P::CycleHoops, Filter(&FilterView::cycle_hoops)},
      {"CyclePlates", &P::CyclePlates, Filter(&FilterView::cycle_plates)},
      {"Print", [](P& js) { js.Print(ReportPaper::a4t); },
       [](const ResultScreenView& view) {
         return InPrintPanel(view) && view.print_panel.papers != Papers::none;
       }},
      {"OpenSettings", &P::OpenSettings, InPrintPanel},
      {"ClosePrint", &P::ClosePrint, InPrintPanel},
  };
}

/// What holds whatever the user has done.
void ExpectSoundView(const ResultScreenView& view, const ResultScreen& screen, const std::string& walk) {
  EXPECT_FALSE(view.busy) << walk;
  EXPECT_NE(view.main_buttons_shown, view.print_panel.open) << walk;
  EXPECT_TRUE(view.result_shown || (screen.IsScoped() && view.range.shown)) << walk;
  const bool whole = ShowsWholePicture(Selection);
  if (!whole) {
    EXPECT_FALSE(view.print.shown) << walk;
    EXPECT_FALSE(view.toggle_accumulation.shown) << walk;
  }
  if (view.print_panel.open) {
    EXPECT_EQ(view.print_panel.papers == Papers::none, !whole || !view.result_shown) << walk;
  }
  EXPECT_FALSE(view.ulbon_view && view.toggle_accumulation.shown) << walk;
  EXPECT_TRUE(view.leave.shown && view.leave.enabled) << walk;
  if (view.result_shown) {
    EXPECT_EQ(view.rows.size(), view.ulbon_view ? 7U : 22U) << walk;
  }
}

}  // namespace

TEST(EveryWalkOfThreeIntents, LeavesASoundView) {
  const std::vector<Offered> intents = AllIntents();
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    const std::size_t all = intents.size();
    for (std::size_t number = 0; number < all * all * all; number += 7) {
      ResultPresenter& presenter = js.Open();
      std::string walk(screen->name);
      std::size_t rest = number;
      for (int step = 0; step < 3; ++step, rest /= all) {
        const Offered& intent = intents[rest % all];
        if (!intent.can_be_asked_for(js.View())) continue;
        intent.act(presenter);
        walk += std::string(" ") + intent.name;
        ExpectSoundView(js.View(), *screen, walk);
      }
      if (testing::Test::HasFailure()) return;
    }
  }
  EXPECT_FALSE(::testing::Test::HasFailure());
}

}  // namespace rbt::test
