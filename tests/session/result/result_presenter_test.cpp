// SPDX-License-Identifier: MIT
#include "session/result/result_presenter.h"

#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/services.h"
#include "session/result/result_presenter_driver.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "support/result_screens.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;

// Ten bars of 6.0 m: D19 13.5 kg each, D13 5.97, D25 23.9 (three figures); U 9 is 0.5 kg/m x 60 m.
constexpr const char* kD19 = "135 |135 |0 |3|0|";
constexpr const char* kHoop = "60 |60 |0 |3|0|";
constexpr const char* kPlate = "239 |239 |0 |3|0|";
constexpr const char* kU9 = "|30 ||3||";
constexpr const char* kNone = "0 |0 |0 |0|0|";

/// A row of the table of states: what a screen shows after an intent.
struct State {
  const char* name;
  std::function<void(Presented&)> bring;
  const char* main_buttons;
  const char* filter_buttons;
  FocusRequest focus;
};

void ExpectState(Presented& js, const State& state) {
  state.bring(js);
  const ResultScreenView view = js.View();
  const std::string where = std::string(js.presenter->Screen().name) + ", " + state.name;
  EXPECT_EQ(MainButtons(view), state.main_buttons) << where;
  EXPECT_EQ(FilterButtons(view), state.filter_buttons) << where;
  EXPECT_TRUE(view.focus == state.focus) << where << ": focus " << static_cast<int>(view.focus.target);
  EXPECT_FALSE(view.busy) << where;
  EXPECT_TRUE(js.View().focus == FocusRequest{}) << where << ": asked for once";
}

/// Whether another program could change the schedule now.
bool OthersWrite() {
  return !FaultOf([] {
    Database theirs = Database::Open(SiteContext.WorkDatabase->File());
    theirs.Execute("UPDATE 加工テーブル SET 行No = 行No + 100");
  });
}

constexpr const char* kWhole = "print ulbon-view ulbon deformed restore detail add leave";
constexpr const char* kNarrowed = "ulbon-view ulbon restore detail leave";
constexpr const char* kFilters = "kinds forms hoops plates";
constexpr FocusRequest kOnGrid{FocusTarget::grid};
constexpr FocusRequest kStays{FocusTarget::stays};

}  // namespace

TEST(ResultPresenter, ShowsTheStatesOfTheBulkScreen) {
  const State states[] = {
      {"opened", [](Presented& js) { js.Open(); }, kWhole, kFilters, kOnGrid},
      {"recalculated", [](Presented& js) { js.Open().Recalculate(); }, kWhole, kFilters, kStays},
      {"hoops left out", [](Presented& js) { js.Open().CycleHoops(); }, kNarrowed, kFilters, kStays},
      {"plates left out", [](Presented& js) { js.Open().CyclePlates(); }, kNarrowed, kFilters, kStays},
      {"Ulbon view", [](Presented& js) { js.Open().ShowUlbonView(); }, "print ulbon restore detail leave",
       kFilters, kOnGrid},
      {"Ulbon view narrowed",
       [](Presented& js) {
         js.Open().ShowUlbonView();
         js.presenter->CycleHoops();
       },
       "ulbon restore detail leave", kFilters, kStays},
      {"Ulbon view left",
       [](Presented& js) {
         js.Open().ShowUlbonView();
         js.presenter->TurnBack();
       },
       kWhole, kFilters, kOnGrid},
      {"Ulbon view recalculated",
       [](Presented& js) {
         js.Open().ShowUlbonView();
         js.presenter->Recalculate();
       },
       "print ulbon restore detail leave", kFilters, kStays},
      {"uplift begun",
       [](Presented& js) { js.Open().BeginUplift(); },
       kWhole,
       kFilters,
       {FocusTarget::uplift}},
      {"uplift taken", [](Presented& js) { js.Open().TakeUplift(); }, kWhole, kFilters, kOnGrid},
      {"values restored", [](Presented& js) { js.Open().RestoreValues(); }, kWhole, kFilters, kOnGrid},
      {"print panel",
       [](Presented& js) { js.Open().OpenPrint(SheetBody::with_ulbon); },
       kWhole,
       kFilters,
       {FocusTarget::a4_landscape}},
      {"panel of the Ulbon view",
       [](Presented& js) {
         js.Open().ShowUlbonView();
         js.presenter->OpenPrint(SheetBody::with_ulbon);
       },
       "print ulbon restore detail leave",
       kFilters,
       {FocusTarget::a4_portrait}},
      {"panel closed",
       [](Presented& js) {
         js.Open().OpenPrint(SheetBody::with_ulbon);
         js.presenter->ClosePrint();
       },
       kWhole, kFilters, kOnGrid},
  };
  Presented js(kBulkScreen);
  for (const State& state : states) ExpectState(js, state);
}

TEST(ResultPresenter, ShowsTheStatesOfTheScopedScreens) {
  struct Buttons {
    const ResultScreen* screen;
    const char* input;
    const char* result;
    const char* narrowed;
    const char* filters;
  };
  const Buttons rows[] = {
      {&kPageScreen, "print (detail) (range) leave", "print detail range leave", "detail range leave",
       kFilters},
      {&kShapeScreen, "print (ulbon) (detail) leave", "print ulbon detail leave", "detail leave", kFilters},
      {&kPageShapeScreen, "print (detail) (range) leave", "print detail range leave", "detail range leave",
       "kinds hoops plates"},
  };
  for (const Buttons& row : rows) {
    const State states[] = {
        {"input", [](Presented& js) { js.Open(); }, row.input, row.filters, {FocusTarget::range}},
        {"input, print panel",
         [](Presented& js) { js.Open().OpenPrint(SheetBody::with_ulbon); },
         row.input,
         row.filters,
         {FocusTarget::settings}},
        {"result", [](Presented& js) { js.OpenWithResult(); }, row.result, row.filters, kOnGrid},
        {"narrowed", [](Presented& js) { js.OpenWithResult().CyclePlates(); }, row.narrowed, row.filters,
         kStays},
        {"asked anew",
         [](Presented& js) { js.OpenWithResult().AskForRange(); },
         row.input,
         row.filters,
         {FocusTarget::range}},
    };
    Presented js(*row.screen);
    for (const State& state : states) ExpectState(js, state);
  }
}

TEST(ResultPresenter, StageOfAScopedScreenIsItsRangeThenItsResult) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Presented js(*screen);
    js.Open();
    EXPECT_TRUE(js.View().range.shown) << screen->name;
    EXPECT_FALSE(js.View().result_shown) << screen->name;
    js.presenter->TakeRange();
    // Shapes stay above their grid.
    EXPECT_EQ(js.View().range.shown, screen == &kShapeScreen) << screen->name;
    EXPECT_TRUE(js.View().result_shown) << screen->name;
    js.presenter->AskForRange();
    EXPECT_TRUE(js.View().range.shown) << screen->name;
    EXPECT_FALSE(js.View().result_shown) << screen->name;
  }
  Presented bulk(kBulkScreen);
  bulk.Open();
  EXPECT_FALSE(bulk.View().range.shown);
  EXPECT_TRUE(bulk.View().result_shown);
}

TEST(ResultPresenter, OpensWithHeadAndEverythingIncluded) {
  Presented js(kBulkScreen);
  Selection.MaterialKindMask = KindMask(1);
  Selection.MaterialFormMask = FormMask(1);
  Selection.PrevMaterialKindMask = KindMask(1);
  Selection.IncludeUlbon = false;
  Selection.MaterialCalcChoice = CalcChoice::high_strength_alone;
  Selection.HoopMode = ShapeFilter::alone;
  Selection.AnchorPlateMode = ShapeFilter::alone;
  js.Open();
  const ResultScreenView view = js.View();
  EXPECT_EQ(view.head.site_number + view.head.site_name + view.head.client_name, "001試験工事試験商店");
  EXPECT_EQ(view.filters.kinds, "異形･高強度･ネジ･ｽﾘｯﾄ");
  EXPECT_EQ(view.filters.forms, "すべて");
  EXPECT_EQ(view.filters.warning, "");
  EXPECT_FALSE(view.filters.accumulating);
  EXPECT_EQ(js.Row("D19"), kD19);
  EXPECT_EQ(Selection.MaterialKindMask, kAllKinds);
  EXPECT_EQ(Selection.MaterialFormMask, kAllForms);
  EXPECT_EQ(Selection.PrevMaterialKindMask, kAllKinds);
  EXPECT_TRUE(Selection.IncludeUlbon);
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_with_others);
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others);
}

TEST(ResultPresenter, WhileSitesAreAddedUpTheCalculationChoiceStaysAndTheBulkScreenTellsIt) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    RunState.AccumulateFlag = 1;
    Selection.MaterialCalcChoice = CalcChoice::high_strength_alone;
    js.Open();
    EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_alone) << screen->name;
    EXPECT_EQ(js.View().filters.accumulating, screen == &kBulkScreen) << screen->name;
  }
}

TEST(ResultPresenter, CyclesHoopsAndPlatesThroughIncludedLeftOutAndAlone) {
  struct Step {
    const char* caption;
    const char* hoops_note;
    const char* hoop;
    const char* plate;
    const char* other;
  };
  const Step hoops[] = {{"含まず", "(形状No87)を", kNone, kPlate, kD19},
                        {"のみ", "(形状No87)", kHoop, kNone, kNone},
                        {"含む", "(形状No87)を", kHoop, kPlate, kD19}};
  const Step plates[] = {{"含まず", "(形状No87)を", kHoop, kNone, kD19},
                         {"のみ", "(形状No87)を", kNone, kPlate, kNone},
                         {"含む", "(形状No87)を", kHoop, kPlate, kD19}};
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.OpenWithResult();
    for (const bool of_plates : {false, true}) {
      for (const Step& step : of_plates ? plates : hoops) {
        if (of_plates) js.presenter->CyclePlates();
        if (!of_plates) js.presenter->CycleHoops();
        const FilterView filters = js.View().filters;
        EXPECT_EQ(of_plates ? filters.cycle_plates.caption : filters.cycle_hoops.caption, step.caption);
        EXPECT_EQ(filters.hoops_note, step.hoops_note);
        EXPECT_EQ(js.Row("D13"), step.hoop) << screen->name << step.caption;
        EXPECT_EQ(js.Row("D25"), step.plate) << screen->name << step.caption;
        EXPECT_EQ(js.Row("D19"), step.other) << screen->name << step.caption;
      }
    }
  }
}

TEST(ResultPresenter, OffersHoopsAndPlatesWhereTheFirstRunFoundSuchShapes) {
  Presented js(kPageScreen);
  js.Open();
  js.Enter({2, 1, 2, 1});
  EXPECT_EQ(FilterButtons(js.View()), "kinds forms");
  EXPECT_FALSE(js.View().filters.tells_hoops);
  EXPECT_FALSE(js.View().filters.tells_plates);
  js.presenter->AskForRange();
  js.Enter({1, 2, 1, 2});
  EXPECT_EQ(FilterButtons(js.View()), "kinds forms hoops");
  js.presenter->CycleHoops();
  EXPECT_EQ(FilterButtons(js.View()), "kinds forms hoops") << "the mode must be taken back";
  for (const std::int32_t mode : {1, 3, 4}) {
    Presented other(kBulkScreen, mode);
    other.Open();
    EXPECT_EQ(FilterButtons(other.View()), "kinds forms") << mode;
  }
}

TEST(ResultPresenter, TellsTheKindsAfterAChoiceOfThemAndDropsTheSlitWordByStartMode) {
  struct Case {
    const ResultScreen* screen;
    std::int32_t start_mode;
    const char* kinds;
  };
  const Case cases[] = {{&kBulkScreen, -1, "異形"},
                        {&kBulkScreen, 0, "異形･スリット"},
                        {&kBulkScreen, 4, "異形"},
                        {&kPageScreen, -1, "異形･スリット"},
                        {&kPageScreen, 4, "異形"},
                        {&kShapeScreen, 1, "異形"},
                        {&kPageShapeScreen, -1, "異形･スリット"}};
  for (const Case& row : cases) {
    Presented js(*row.screen, row.start_mode);
    js.kinds = [] { Selection.MaterialKindMask = KindMask(9); };
    js.OpenWithResult().ChooseKinds();
    EXPECT_EQ(js.View().filters.kinds, row.kinds) << row.screen->name << row.start_mode;
    EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(9));
    EXPECT_THAT(js.calls, ElementsAre("kinds"));
  }
}

TEST(ResultPresenter, KindsWithoutHoopsTakeTheHoopsModeBack) {
  Presented js(kBulkScreen);
  js.kinds = [] { Selection.MaterialKindMask = KindMask(2); };
  js.Open();
  js.presenter->CycleHoops();
  js.presenter->CycleHoops();
  js.presenter->ChooseKinds();
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_EQ(js.View().filters.cycle_hoops.caption, "含む");
}

TEST(ResultPresenter, KindsWithoutPlatesTakeThePlatesModeBackBeforeTheTally) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.kinds = [] { Selection.MaterialKindMask = KindMask(12); };
    js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 予備2 = 3 WHERE 太さ = 19");
    js.OpenWithResult();
    js.presenter->CyclePlates();
    js.presenter->CyclePlates();
    EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::alone);
    EXPECT_EQ(js.Row("D19"), kNone) << screen->name;
    js.presenter->ChooseKinds();
    EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others) << screen->name;
    EXPECT_EQ(js.Row("D19"), kD19) << screen->name;
  }
}

TEST(ResultPresenter, AFilterRoundTakesInWhatOtherProgramsHaveMadeOfTheSchedule) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.OpenWithResult();
    EXPECT_EQ(js.Row("D19"), kD19) << screen->name;
    // As thin bars, which D19 never are: the classes have to be worked out again.
    js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 予備2 = 2 WHERE 太さ = 19");
    js.presenter->Recalculate();
    EXPECT_EQ(js.Row("D19"), kD19) << screen->name;
    EXPECT_EQ(js.site.Rows(kScheduleFile, "SELECT 予備2 FROM 加工テーブル WHERE 太さ = 19")[0][0],
              Value{std::int64_t{1}});
    js.site.Execute(kScheduleFile, "UPDATE 加工テーブル SET 本数 = 0, 合計 = 0, 伸総計 = 0 WHERE 太さ = 19");
    js.presenter->Recalculate();
    EXPECT_NE(js.Row("D19"), kD19) << screen->name;
  }
}

TEST(ResultPresenter, HoldsTheScheduleForATallyAndLetsItGo) {
  Services.LockPatience = std::chrono::milliseconds(0);
  static bool writes_meanwhile;
  writes_meanwhile = true;
  ResultScreen screen = kShapeScreen;
  screen.before_first_run = [] { writes_meanwhile = OthersWrite(); };
  Presented js(screen);
  js.OpenWithResult();
  EXPECT_FALSE(writes_meanwhile);
  EXPECT_TRUE(OthersWrite());
}

TEST(ResultPresenter, AChoiceOfFormsSetsTheCalculationFromTheKinds) {
  const std::pair<std::int32_t, CalcChoice> cases[] = {{15, CalcChoice::high_strength_with_others},
                                                       {4, CalcChoice::high_strength_alone},
                                                       {3, CalcChoice::without_high_strength}};
  Presented js(kBulkScreen);
  for (const auto& [kinds, choice] : cases) {
    js.forms = [] { Selection.MaterialFormMask = FormMask(3); };
    js.Open();
    Selection.MaterialKindMask = KindMask(kinds);
    js.presenter->ChooseForms();
    EXPECT_EQ(Selection.MaterialCalcChoice, choice) << kinds;
    EXPECT_EQ(js.View().filters.forms, "生･生加");
  }
}

TEST(ResultPresenter, DialogsOpenBeforeTheBusyNotice) {
  for (const bool forms : {true, false}) {
    Presented js(kBulkScreen);
    bool opened = false;
    const auto look = [&] {
      opened = true;
      EXPECT_FALSE(js.View().busy);
      EXPECT_TRUE(js.meanwhile.empty());
    };
    (forms ? js.forms : js.kinds) = look;
    js.Open();
    js.meanwhile.clear();
    forms ? js.presenter->ChooseForms() : js.presenter->ChooseKinds();
    EXPECT_TRUE(opened);
    ASSERT_FALSE(js.meanwhile.empty());
    EXPECT_TRUE(js.meanwhile.front().busy) << "behind the dialog";
  }
}

TEST(ResultPresenter, OnlyTheWholePictureIsPrintedAndAddedUp) {
  struct Case {
    std::int32_t kinds;
    std::int16_t forms;
    ShapeFilter hoops;
    ShapeFilter plates;
    bool whole;
  };
  constexpr ShapeFilter kWith = ShapeFilter::with_others;
  const Case cases[] = {{15, 15, kWith, kWith, true},
                        {15, 0, kWith, kWith, true},
                        {7, 15, kWith, kWith, false},
                        {15, 14, kWith, kWith, false},
                        {15, 15, ShapeFilter::left_out, kWith, false},
                        {15, 15, ShapeFilter::alone, kWith, false},
                        {15, 15, kWith, ShapeFilter::left_out, false},
                        {15, 15, kWith, ShapeFilter::alone, false}};
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    for (const Case& row : cases) {
      js.OpenWithResult().OpenPrint(SheetBody::with_ulbon);
      Selection.MaterialKindMask = KindMask(row.kinds);
      Selection.PrevMaterialKindMask = KindMask(row.kinds);
      Selection.MaterialFormMask = FormMask(row.forms);
      Selection.HoopMode = row.hoops;
      Selection.AnchorPlateMode = row.plates;
      js.presenter->Recalculate();
      const ResultScreenView view = js.View();
      EXPECT_EQ(view.print.shown, row.whole) << screen->name;
      EXPECT_EQ(view.print_deformed.shown, row.whole && screen == &kBulkScreen);
      EXPECT_EQ(view.toggle_accumulation.shown, row.whole && screen == &kBulkScreen);
      EXPECT_EQ(view.print_panel.papers, row.whole ? Papers::all : Papers::none);
    }
  }
}

TEST(ResultPresenter, ATallyRunsBehindTheBusyNoticeWithEverythingOutOfReach) {
  const std::pair<const ResultScreen*, const char*> busy[] = {
      {&kBulkScreen, "(print) ulbon-view (ulbon) (deformed) restore (detail) (add) (leave)"},
      {&kPageScreen, "(print) (detail) (range) (leave)"},
      {&kShapeScreen, "(print) (ulbon) (detail) (leave)"},
      {&kPageShapeScreen, "(print) (detail) (range) (leave)"}};
  for (const auto& [screen, buttons] : busy) {
    Presented js(*screen);
    bool busy_before_dialog = false;
    js.forms = [&] { busy_before_dialog = !js.meanwhile.empty() && js.meanwhile.back().busy; };
    js.OpenWithResult().ChooseForms();
    EXPECT_FALSE(busy_before_dialog) << "the wait notice would lie over the dialog";
    ASSERT_EQ(js.meanwhile.size(), 1U);
    const ResultScreenView& view = js.meanwhile.front();
    EXPECT_EQ(MainButtons(view), buttons) << screen->name;
    EXPECT_EQ(FilterButtons(view), "");
    EXPECT_FALSE(view.range.enabled);
    EXPECT_TRUE(view.result_shown) << "the result before stays in sight";
    EXPECT_FALSE(js.View().busy);
    EXPECT_TRUE(js.View().range.enabled);
  }
}

TEST(ResultPresenter, TheFirstRunOfAPageRangeShowsNeitherRangeNorGrid) {
  Presented js(kPageScreen);
  js.Open().TakeRange();
  ASSERT_EQ(js.meanwhile.size(), 1U);
  EXPECT_TRUE(js.meanwhile.front().busy);
  EXPECT_FALSE(js.meanwhile.front().range.shown);
  EXPECT_FALSE(js.meanwhile.front().result_shown);
}

TEST(ResultPresenter, TheUpliftRaisesTheRowsOnceItIsTakenAndAFilterKeepsIt) {
  Presented js(kBulkScreen);
  js.Open().BeginUplift();
  EXPECT_TRUE(js.View().filters.uplift.shown);
  js.presenter->TypeUplift("150");
  EXPECT_EQ(js.Row("U 9"), kU9);
  js.presenter->TakeUplift();
  // 30 + 30 x 150 / 100 = 75.
  EXPECT_EQ(js.Row("U 9"), "|75 ||3||");
  EXPECT_EQ(js.Row("D19"), kD19);
  EXPECT_TRUE(js.View().filters.uplift.shown);
  EXPECT_FALSE(js.View().filters.uplift.enabled);
  js.presenter->CycleHoops();
  EXPECT_EQ(js.Row("U 9"), "|75 ||3||");
  js.presenter->BeginUplift();
  EXPECT_TRUE(js.View().filters.uplift.enabled);
  js.presenter->RestoreValues();
  EXPECT_EQ(js.Row("U 9"), kU9);
  EXPECT_FALSE(js.View().filters.uplift.shown);
  EXPECT_EQ(js.View().filters.uplift.text, "");
}

TEST(ResultPresenter, TurningBackLeavesTheUpliftAsItWasTakenLast) {
  Presented js(kBulkScreen);
  js.Open().BeginUplift();
  js.presenter->TypeUplift("50");
  js.presenter->TurnBack();
  EXPECT_FALSE(js.View().filters.uplift.shown);
  EXPECT_FALSE(js.View().left);
  js.presenter->BeginUplift();
  js.presenter->TypeUplift("100");
  js.presenter->TakeUplift();
  js.presenter->BeginUplift();
  js.presenter->TypeUplift("7");
  js.presenter->TurnBack();
  EXPECT_EQ(js.View().filters.uplift.text, "100");
  EXPECT_TRUE(js.View().filters.uplift.shown);
  EXPECT_FALSE(js.View().filters.uplift.enabled);
  EXPECT_EQ(js.Row("U 9"), "|60 ||3||");
  js.presenter->TurnBack();
  EXPECT_TRUE(js.View().left);
}

TEST(ResultPresenter, AFilterRoundInTheUlbonViewBringsItsPrintKeyBack) {
  Presented js(kBulkScreen);
  js.Open().ShowUlbonView();
  for (int step = 0; step < 3; ++step) js.presenter->CycleHoops();
  EXPECT_TRUE(js.View().print.shown);
  EXPECT_EQ(js.View().print.caption, "ｳﾙﾎﾞﾝ印字(F1)");
  EXPECT_FALSE(js.View().print_deformed.shown);
  js.presenter->TurnBack();
  EXPECT_FALSE(js.View().left);
  EXPECT_FALSE(js.View().ulbon_view);
  EXPECT_EQ(js.View().print.caption, "合計表印字(F1)");
}

TEST(ResultPresenter, AnEmptyUpliftCountsAsNothing) {
  Presented js(kBulkScreen);
  js.Open().TypeUplift("");
  js.presenter->TakeUplift();
  EXPECT_EQ(js.Row("U 9"), kU9);
}

TEST(ResultPresenter, TheUlbonViewShowsThinBarsAloneUnderItsOwnPrintCaption) {
  Presented js(kBulkScreen);
  js.Open();
  EXPECT_EQ(js.View().print.caption, "合計表印字(F1)");
  js.presenter->ShowUlbonView();
  EXPECT_TRUE(js.View().ulbon_view);
  EXPECT_EQ(js.View().rows.size(), 7U);
  EXPECT_EQ(js.View().print.caption, "ｳﾙﾎﾞﾝ印字(F1)");
  js.presenter->OpenPrint(SheetBody::with_ulbon);
  EXPECT_EQ(js.View().print_panel.papers, Papers::ulbon);
}

TEST(ResultPresenter, WarnsOfAStockLengthWithoutAColumnWhereTheScreenTellsIt) {
  for (const ResultScreen* screen : {&kBulkScreen, &kPageScreen}) {
    Presented js(*screen);
    Cells odd = TenBars(19, 1, 0);
    odd[6].second = 12.5;
    js.site.AddRow(At(odd, 5, 1));
    SaveSetting(kStockCheckKey, 1);
    Settings.StockCheck = 1;
    js.OpenWithResult();
    EXPECT_EQ(js.View().filters.warning, " 5頁の1行目の定尺を確認") << screen->name;
  }
}

TEST(ResultPresenter, AFaultOfTheTallyLeavesTheBulkScreenUsable) {
  Presented js(kBulkScreen);
  js.Open();
  SiteContext.WorkDatabase->Execute("UPDATE 加工テーブル SET 太さ=14 WHERE 太さ=19");
  EXPECT_EQ(FaultOf([&] { js.presenter->CycleHoops(); }), FaultKind::subscript_out_of_range);
  EXPECT_FALSE(js.View().busy);
  EXPECT_EQ(MainButtons(js.View()), kWhole);
  EXPECT_EQ(FilterButtons(js.View()), kFilters);
  js.presenter->OpenPrint(SheetBody::with_ulbon);
  EXPECT_EQ(js.View().print_panel.papers, Papers::none) << "there is no whole tally";
}

TEST(ResultPresenter, AFaultOfTheTallyAsksAScopedScreenForItsRangeAgain) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Presented js(*screen);
    js.OpenWithResult();
    SiteContext.WorkDatabase->Execute("UPDATE 加工テーブル SET 太さ=14 WHERE 太さ=19");
    EXPECT_EQ(FaultOf([&] { js.presenter->CycleHoops(); }), FaultKind::subscript_out_of_range);
    const ResultScreenView view = js.View();
    EXPECT_FALSE(view.busy) << screen->name;
    EXPECT_FALSE(view.result_shown);
    EXPECT_TRUE(view.range.shown);
    EXPECT_TRUE((view.focus == FocusRequest{FocusTarget::range}));
    EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  }
}

TEST(ResultPresenter, WhatIsNotReadyYetSaysSo) {
  const std::pair<void (ResultPresenter::*)(), const char*> intents[] = {
      {&ResultPresenter::ChooseKinds, "「材質変更」は、まだご利用いただけません。"},
      {&ResultPresenter::ChooseForms, "「材料変更」は、まだご利用いただけません。"},
      {&ResultPresenter::ShowDetail, "「明細表示」は、まだご利用いただけません。"},
      {&ResultPresenter::ToggleAccumulation, "「集計加算」は、まだご利用いただけません。"},
      {&ResultPresenter::OpenSettings, "「設定」は、まだご利用いただけません。"},
      {&ResultPresenter::PrintUlbonOfToday, "「印字」は、まだご利用いただけません。"}};
  Presented js(kBulkScreen);
  js.parts = {};
  js.Open();
  for (const auto& [intent, message] : intents) {
    (*js.presenter.*intent)();
    EXPECT_EQ(js.Message(), message);
    EXPECT_EQ(js.site.Messages().back().title, "重量集計");
  }
}

TEST(ResultPresenter, DetailAndTheChoiceOfASiteAreHandedOn) {
  Presented js(kBulkScreen);
  js.Open().ShowDetail();
  js.presenter->ToggleAccumulation();
  EXPECT_THAT(js.calls, ElementsAre("detail", "site"));
}

TEST(ResultPresenter, LeavingSetsTheSelectionAsTheMenuExpectsItOnce) {
  Presented js(kBulkScreen);
  js.Open();
  Selection.MaterialFormMask = FormMask(1);
  js.presenter->Leave();
  EXPECT_TRUE(js.View().left);
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::without_high_strength);
  EXPECT_EQ(Selection.MaterialFormMask, kAllForms);
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
  Selection.MaterialCalcChoice = CalcChoice::high_strength_with_others;
  js.presenter->Leave();
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_with_others);
}

}  // namespace rbt::test
