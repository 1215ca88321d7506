// SPDX-License-Identifier: MIT
#include "session/detail/detail_presenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/profile/ini_file.h"
#include "platform/system/paths.h"
#include "session/detail/detail_presenter_driver.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt::test {
namespace {

using testing::IsEmpty;

constexpr const char* kMain = "cmdPercent cmdHonsuu cmdTeisei cmdMeisaiPrint cmdSave cmdLoad cmdMent cmdExit";
constexpr const char* kPanel = "btnA4Y btnA4T btnSettei btnReturn";

/// A row of the table of states: what the screen shows after an intent.
struct State {
  const char* name;
  std::function<void(DetailPresenter&)> bring;
  DetailMode mode;
  const char* within_reach;
  const char* focus;
  bool fields_enabled;
};

void BeginPercent(DetailPresenter& zaimei) { zaimei.Press(DetailButton::percent); }
void BeginEditing(DetailPresenter& zaimei) { zaimei.Press(DetailButton::correct); }

TEST(DetailPresenter, ShowsItsStates) {
  const State states[] = {
      {"opened", [](auto&) {}, DetailMode::buttons, kMain, "cmdPercent", true},
      {"percent", BeginPercent, DetailMode::percent, "cmdPercent", "txtPercent", false},
      {"percent left",
       [](auto& zaimei) {
         BeginPercent(zaimei);
         zaimei.Escape();
       },
       DetailMode::buttons, kMain, "cmdPercent", true},
      {"percent taken",
       [](auto& zaimei) {
         BeginPercent(zaimei);
         zaimei.TakePercent();
       },
       DetailMode::buttons, kMain, "cmdPercent", true},
      {"editing", BeginEditing, DetailMode::editing, "", "dbgZaimei", false},
      {"a cell edited",
       [](auto& zaimei) {
         BeginEditing(zaimei);
         zaimei.EditCell(3, 7, "5");
       },
       DetailMode::editing, "", "dbgZaimei", false},
      {"editing left",
       [](auto& zaimei) {
         BeginEditing(zaimei);
         zaimei.Escape();
       },
       DetailMode::buttons, kMain, "cmdHonsuu", true},
      {"restored", [](auto& zaimei) { zaimei.Press(DetailButton::restore); }, DetailMode::buttons, kMain,
       "cmdPercent", true},
      {"print panel", [](auto& zaimei) { zaimei.Press(DetailButton::print); }, DetailMode::printing, kPanel,
       "btnA4Y", true},
      {"print panel left",
       [](auto& zaimei) {
         zaimei.Press(DetailButton::print);
         zaimei.Escape();
       },
       DetailMode::buttons, kMain, "cmdMeisaiPrint", true},
      {"saved", [](auto& zaimei) { zaimei.Press(DetailButton::save); }, DetailMode::buttons, kMain,
       "cmdPercent", true},
      {"managed", [](auto& zaimei) { zaimei.Press(DetailButton::manage); }, DetailMode::buttons, kMain,
       "cmdPercent", true},
  };
  Detailed detail;
  for (const State& state : states) {
    state.bring(detail.Open());
    const DetailView view = detail.View();
    EXPECT_EQ(view.mode, state.mode) << state.name;
    EXPECT_EQ(ButtonsWithinReach(view), state.within_reach) << state.name;
    EXPECT_EQ(view.focus, state.focus) << state.name;
    EXPECT_EQ(view.fields_enabled, state.fields_enabled) << state.name;
    EXPECT_FALSE(view.left) << state.name;
    EXPECT_EQ(detail.View().focus, "") << state.name << ": asked for once";
  }
}

TEST(DetailPresenter, EveryButtonAndKeyOutOfReachDoesNothing) {
  Detailed detail;
  const std::function<void(DetailPresenter&)> modes[] = {
      [](auto&) {}, BeginPercent, BeginEditing, [](auto& zaimei) { zaimei.Press(DetailButton::print); }};
  for (const auto& bring : modes) {
    for (const DetailButtonRow& row : DetailButtons()) {
      DetailPresenter& zaimei = detail.Open();
      bring(zaimei);
      const DetailView before = detail.View();
      if (before.IsEnabled(row.button)) continue;
      const std::size_t told = detail.Messages().size();
      zaimei.Press(row.button);
      const DetailView after = detail.View();
      EXPECT_EQ(after.mode, before.mode) << row.control;
      EXPECT_EQ(after.focus, "") << row.control;
      EXPECT_FALSE(after.left) << row.control;
      EXPECT_EQ(detail.Messages().size(), told) << row.control;
    }
  }
  EXPECT_THAT(detail.calls, IsEmpty());
}

TEST(DetailPresenter, EscLeavesAModeAndThenTheScreen) {
  Detailed detail;
  for (const auto& bring : {BeginPercent, BeginEditing}) {
    DetailPresenter& zaimei = detail.Open();
    bring(zaimei);
    zaimei.Escape();
    EXPECT_FALSE(detail.View().left);
    zaimei.Escape();
    EXPECT_TRUE(detail.View().left);
  }
}

// Load.

TEST(DetailPresenter, ShowsTheResultWithItsHeadAndSelectsAllKinds) {
  Detailed detail;
  Selection.MaterialKindMask = KindMask(1);
  detail.Open();
  const DetailView view = detail.View();
  EXPECT_EQ(Selection.MaterialKindMask, kAllKinds);
  EXPECT_EQ(view.head.site_number, "001");
  EXPECT_EQ(view.total_weight, "434 ㎏");  // 60 + 135 + 239
  EXPECT_EQ(view.material, "自給材");
  EXPECT_EQ(view.captions, DetailCaptions({}));
  EXPECT_EQ(view.rows, DetailRows(detail.counted.Grid(), {}));
  EXPECT_EQ(detail.D19(), "10");
  EXPECT_THAT(detail.Messages(), IsEmpty());
}

TEST(DetailPresenter, TellsOfSuppliedSteel) {
  Detailed detail;
  SiteContext.MasterDatabase->Execute("UPDATE 工事テーブル SET 支給形態 = 1");
  detail.Open();
  EXPECT_EQ(detail.View().material, "支給材");
}

TEST(DetailPresenter, LaysTheGridOutAsTheSettingsHaveIt) {
  Detailed detail;
  Settings.DetailShowsWeight = 1;
  Settings.Use13mColumn = 1;
  detail.Open();
  const DetailView view = detail.View();
  EXPECT_EQ(view.layout, (DetailLayout{true, true}));
  EXPECT_EQ(view.captions.size(), 26U);
  EXPECT_EQ(view.rows.size(), 26U);
  Settings.DetailShowsWeight = 2;
  EXPECT_EQ(detail.View().rows.size(), 14U);
}

// Percentage.

TEST(DetailPresenter, WarnsBeforeAPercentageIsTaken) {
  Detailed detail;
  BeginPercent(detail.Open());
  ASSERT_EQ(detail.Messages().size(), 1U);
  EXPECT_EQ(detail.Messages()[0].text, "上乗せ作業を中断する場合は、ESCキーを押して下さい");
  EXPECT_EQ(detail.Messages()[0].title, "注意");
}

TEST(DetailPresenter, ThePercentButtonBringsBackToItsBoxWithoutAnotherWarning) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginPercent(zaimei);
  zaimei.TypePercent("12");
  detail.View();
  BeginPercent(zaimei);
  EXPECT_EQ(detail.View().focus, "txtPercent");
  EXPECT_EQ(detail.View().percent, "12");
  EXPECT_EQ(detail.Messages().size(), 1U);
}

// 10 bars are 11: 148.5 kg of D19, 65.67 of D13, 262.9 of D25.
TEST(DetailPresenter, APercentageRaisesTheListAndThePlaceOfTheResult) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginPercent(zaimei);
  EXPECT_TRUE(zaimei.TypePercent("10"));
  zaimei.TakePercent();
  EXPECT_EQ(detail.D19(), "11");
  EXPECT_EQ(detail.View().total_weight, "478 ㎏");  // 149 + 66 + 263
  EXPECT_EQ(zaimei.Result().origin, ResultOrigin::raised);
  EXPECT_EQ(TallyGrid, zaimei.Result().Grid());
}

TEST(DetailPresenter, ASecondPercentageCompoundsAndItsBoxIsEmptyAtFirst) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  for (const char* expected : {"15", "23"}) {  // half of 15 is 7.5, which is 8
    BeginPercent(zaimei);
    EXPECT_EQ(detail.View().percent, "");
    zaimei.TypePercent("50");
    zaimei.TakePercent();
    EXPECT_EQ(detail.D19(), expected);
  }
}

TEST(DetailPresenter, ThePercentBoxTakesTheKeysOfADecimalNumber) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginPercent(zaimei);
  EXPECT_TRUE(zaimei.TypePercent("-12.5"));
  EXPECT_FALSE(zaimei.TypePercent("-12.5x"));
  EXPECT_EQ(detail.View().percent, "-12.5");
}

TEST(DetailPresenter, NothingTypedCountsAs0AndMakesWholeKilograms) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  EXPECT_NE(zaimei.Result().Grid().StockWeight[1][5],
            WholeKilograms(zaimei.Result().Grid().StockWeight[1][5]));
  BeginPercent(zaimei);
  zaimei.TakePercent();
  EXPECT_EQ(detail.D19(), "10");
  EXPECT_EQ(zaimei.Result().Grid().StockWeight[1][5], Currency::FromInteger(60));
}

TEST(DetailPresenter, EscInThePercentBoxChangesNothing) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginPercent(zaimei);
  zaimei.TypePercent("50");
  zaimei.Escape();
  zaimei.TakePercent();
  EXPECT_EQ(zaimei.Result(), detail.counted);
}

TEST(DetailPresenter, ACountBeyond32BitsLeavesTheListAndTheBoxAsTheyWere) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginPercent(zaimei);
  zaimei.TypePercent("999999999999");
  EXPECT_EQ(FaultOf([&] { zaimei.TakePercent(); }), FaultKind::overflow);
  EXPECT_EQ(zaimei.Result(), detail.counted);
  EXPECT_EQ(TallyGrid, detail.counted.Grid());
  EXPECT_EQ(detail.View().mode, DetailMode::percent);
}

// Counts in the grid.

TEST(DetailPresenter, WarnsBeforeTheGridIsEdited) {
  Detailed detail;
  BeginEditing(detail.Open());
  ASSERT_EQ(detail.Messages().size(), 1U);
  EXPECT_EQ(detail.Messages()[0].text,
            "重量は修正出来ません。本数のみ修正出来ます。\r\n"
            "本数･圧接入力作業を中断する場合は、ESCキーを押して下さい");
  EXPECT_EQ(detail.Messages()[0].title, "注意");
}

TEST(DetailPresenter, AnEditedCountShowsInTheListAndInThePlaceOfTheResult) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  EXPECT_TRUE(zaimei.EditCell(3, 7, "1,000"));
  EXPECT_EQ(detail.D19(), "1,000");
  EXPECT_EQ(detail.View().total_weight, "13,799 ㎏");  // 13500 + 60 + 239
  EXPECT_EQ(zaimei.Result().origin, ResultOrigin::corrected);
  EXPECT_EQ(TallyGrid, zaimei.Result().Grid());
  EXPECT_TRUE(zaimei.EditCell(3, 7, ""));
  EXPECT_EQ(detail.D19(), "");
}

TEST(DetailPresenter, WithWeightsACellOfTheSecondLineCannotBeEdited) {
  Detailed detail;
  Settings.DetailShowsWeight = 1;
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  EXPECT_TRUE(zaimei.MayEdit(6, 7));
  EXPECT_FALSE(zaimei.MayEdit(7, 7));
  EXPECT_TRUE(zaimei.EditCell(6, 7, "4"));
  EXPECT_FALSE(zaimei.EditCell(7, 7, "9"));
  EXPECT_EQ(detail.D19(), "4");
}

TEST(DetailPresenter, WhatIsNoCellOfCountsAndWhatIsNoCountIsRefused) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  EXPECT_FALSE(zaimei.EditCell(3, 7, "5")) << "before it is edited";
  BeginEditing(zaimei);
  for (const int column : {0, 1, 20}) EXPECT_FALSE(zaimei.EditCell(3, column, "5")) << column;
  EXPECT_FALSE(zaimei.EditCell(12, 7, "5"));
  for (const char* text : {"-1", "1.5", "x"}) EXPECT_FALSE(zaimei.EditCell(3, 7, text)) << text;
  EXPECT_EQ(zaimei.Result(), detail.counted);
}

TEST(DetailPresenter, AnEditedFittingGoesToItsMarkerToo) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  EXPECT_EQ(zaimei.Markers(), CorrectionMarkers{});
  BeginEditing(zaimei);
  zaimei.EditCell(3, 21, "11");  // welds have none
  zaimei.EditCell(3, 22, "12");
  zaimei.EditCell(3, 23, "13");
  zaimei.EditCell(3, 24, "14");
  zaimei.EditCell(5, 24, "15");
  EXPECT_EQ(zaimei.Markers(), (CorrectionMarkers{.cuts = 15, .plates = 13, .threads = 12}));
  const TallyTable& table = zaimei.Result().Grid();
  EXPECT_EQ(table.WeldCount[3], 11);
  EXPECT_EQ(table.ThreadCount[3], 12);
  EXPECT_EQ(table.PlateCount[3], 13);
  EXPECT_EQ(table.CutCount[3], 14);
  EXPECT_EQ(table.TotalCutCount, 29);
}

TEST(DetailPresenter, AnEditedCountBeyond32BitsLeavesEverythingAsItWas) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  EXPECT_EQ(FaultOf([&] { zaimei.EditCell(3, 24, "2147483648"); }), FaultKind::overflow);
  EXPECT_EQ(zaimei.Result(), detail.counted);
  EXPECT_EQ(zaimei.Markers(), CorrectionMarkers{});
}

// Restoring.

TEST(DetailPresenter, RestoringTalliesOnceMore) {
  for (const TallyKind kind : {TallyKind::bulk, TallyKind::shape}) {
    Detailed detail(kind);
    DetailPresenter& zaimei = detail.Open();
    BeginPercent(zaimei);
    zaimei.TypePercent("50");
    zaimei.TakePercent();
    BeginEditing(zaimei);
    zaimei.EditCell(3, 24, "9");
    zaimei.Escape();
    zaimei.Press(DetailButton::restore);
    EXPECT_EQ(detail.Messages().back().text, "全てのデータを上乗せ前の値に戻します。");
    EXPECT_EQ(detail.Messages().back().title, "材料明細表");
    EXPECT_EQ(detail.Messages().back().buttons, MessageButtons::yes_no);
    EXPECT_EQ(zaimei.Result().Grid(), detail.counted.Grid());
    EXPECT_EQ(zaimei.Result().origin, ResultOrigin::counted);
    EXPECT_EQ(zaimei.Result().kind, kind);
    EXPECT_EQ(zaimei.Markers(), CorrectionMarkers{});
    EXPECT_EQ(TallyGrid, detail.counted.Grid());
  }
}

TEST(DetailPresenter, RestoringAnsweredWithNoChangesNothing) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  zaimei.EditCell(3, 24, "9");
  zaimei.Escape();
  detail.site.Answer(MessageAnswer::no);
  zaimei.Press(DetailButton::restore);
  EXPECT_EQ(zaimei.Result().Grid().CutCount[3], 9);
  EXPECT_EQ(zaimei.Markers().cuts, 9);
}

TEST(DetailPresenter, AResultOfPagesCannotBeRestored) {
  for (const TallyKind kind : {TallyKind::page, TallyKind::page_shape}) {
    Detailed detail(kind);
    DetailPresenter& zaimei = detail.Open();
    BeginEditing(zaimei);
    zaimei.EditCell(3, 24, "9");
    zaimei.Escape();
    zaimei.Press(DetailButton::restore);
    EXPECT_EQ(detail.Messages().back().text,
              "値戻しは出来ません。\r\n再度頁行を指定して計算し直してください。");
    EXPECT_EQ(detail.Messages().back().title, "値戻し出来ません");
    EXPECT_EQ(detail.Messages().back().buttons, MessageButtons::ok);
    EXPECT_EQ(zaimei.Result().Grid().CutCount[3], 9);
  }
}

// The filters of the selection still stand; the kinds have become all of them.
TEST(DetailPresenter, RestoringTalliesUnderTheSelectionAsItStands) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  Selection.HoopMode = ShapeFilter::left_out;
  zaimei.Press(DetailButton::restore);
  EXPECT_EQ(zaimei.Result().Grid().BarCount[1][5], 0);  // the hoop of D13
  EXPECT_EQ(zaimei.Result().selection.MaterialKindMask, kAllKinds);
}

TEST(DetailPresenter, RestoringKeepsTheUpliftOfUlbon) {
  Detailed detail;
  detail.counted = WithUlbonRaised(detail.counted, 5);
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::restore);
  EXPECT_EQ(zaimei.Result().ulbon_percent, 5);
}

TEST(DetailPresenter, AFaultOfTheTallyLeavesTheListAsItWas) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  zaimei.EditCell(3, 7, "20");
  zaimei.Escape();
  const TallyResult before = zaimei.Result();
  SiteContext.WorkDatabase->Execute("DROP TABLE 加工テーブル");
  zaimei.OnShow([] { TallyGrid = {}; });  // as a tally that has begun leaves it
  EXPECT_TRUE(FaultOf([&] { zaimei.Press(DetailButton::restore); }));
  EXPECT_EQ(zaimei.Result(), before);
  EXPECT_EQ(TallyGrid, before.Grid());
}

TEST(DetailPresenter, ATallyAnewIsShownAsBusyAndForgetsTheLastSheet) {
  Detailed detail;
  detail.printer = "甲";
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::print);
  zaimei.Press(DetailButton::a4_landscape);
  EXPECT_EQ(detail.View().notice, "「甲」に送りました。");
  std::vector<DetailView> meanwhile;
  zaimei.OnShow([&] {
    meanwhile.push_back(zaimei.View());
    zaimei.Escape();
    zaimei.Press(DetailButton::percent);
  });
  zaimei.Press(DetailButton::restore);
  ASSERT_EQ(meanwhile.size(), 1U);
  EXPECT_TRUE(meanwhile[0].busy);
  EXPECT_EQ(ButtonsWithinReach(meanwhile[0]), "");
  EXPECT_FALSE(meanwhile[0].fields_enabled);
  const DetailView after = detail.View();
  EXPECT_FALSE(after.busy);
  EXPECT_FALSE(after.left);
  EXPECT_EQ(after.mode, DetailMode::buttons);
  EXPECT_EQ(after.notice, "");
  EXPECT_EQ(ButtonsWithinReach(after), kMain);
}

TEST(DetailPresenter, AFaultOfTheTallyIsNoLongerBusy) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  SiteContext.WorkDatabase->Execute("DROP TABLE 加工テーブル");
  EXPECT_TRUE(FaultOf([&] { zaimei.Press(DetailButton::restore); }));
  EXPECT_FALSE(detail.View().busy);
  EXPECT_EQ(ButtonsWithinReach(detail.View()), kMain);
}

// Saved tallies, and the way out.

TEST(DetailPresenter, ButtonsThatAreNotReadySaySo) {
  Detailed detail;
  detail.parts = {};
  const auto told = [&](DetailButton button) {
    DetailPresenter& zaimei = detail.Open();
    if (RowOf(button).in_print_panel) zaimei.Press(DetailButton::print);
    zaimei.Press(button);
    EXPECT_EQ(detail.Messages().size(), 1U);
    EXPECT_EQ(detail.Messages().back().title, "材料明細表");
    return detail.Messages().back().text;
  };
  EXPECT_EQ(told(DetailButton::save), "「保存」は、まだご利用いただけません。");
  EXPECT_EQ(told(DetailButton::load), "「読込」は、まだご利用いただけません。");
  EXPECT_EQ(told(DetailButton::settings), "「設定」は、まだご利用いただけません。");
  EXPECT_EQ(told(DetailButton::a4_landscape), "「印字」は、まだご利用いただけません。");
  EXPECT_EQ(detail.View().mode, DetailMode::printing);
}

TEST(DetailPresenter, SavesTheListAsItStandsWithItsMemos) {
  Detailed detail;
  std::optional<TallyResult> saved;
  SavedMemos memos;
  detail.parts.save = [&](const TallyResult& result, const SavedMemos& of_screen) {
    saved = result;
    memos = of_screen;
  };
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  zaimei.EditCell(3, 7, "20");
  zaimei.Escape();
  zaimei.TypeMemo(1, "控え");
  zaimei.Press(DetailButton::save);
  EXPECT_EQ(saved, zaimei.Result());
  EXPECT_EQ(memos, (SavedMemos{"", "控え", ""}));
}

TEST(DetailPresenter, ShowsTheTallyThatIsLoadedWithItsMemos) {
  Detailed detail(TallyKind::shape);
  std::optional<LoadedTally> stored;
  detail.parts.load = [&](TallyKind kind) {
    EXPECT_EQ(kind, TallyKind::shape);
    return stored;
  };
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  zaimei.EditCell(3, 7, "20");
  zaimei.EditCell(3, 24, "5");
  zaimei.Escape();
  zaimei.Press(DetailButton::load);
  EXPECT_EQ(detail.D19(), "20") << "none was chosen";
  stored = LoadedTally{.result = detail.counted, .memos = {"一", "", "三"}, .has_rows = true};
  stored->result.origin = ResultOrigin::loaded;
  zaimei.Press(DetailButton::load);
  EXPECT_EQ(detail.D19(), "10");
  EXPECT_EQ(zaimei.Result().origin, ResultOrigin::loaded);
  EXPECT_EQ(zaimei.Markers(), CorrectionMarkers());
  EXPECT_EQ(detail.View().memos, (SavedMemos{"一", "", "三"}));
  EXPECT_EQ(TallyGrid, stored->result.Grid());
}

// The dialog clears the place of the current result before it reads.
TEST(DetailPresenter, ASavedTallyThatIsNotReadLeavesTheListAndItsPlace) {
  Detailed detail;
  detail.parts.load = [](TallyKind) {
    TallyGrid = {};
    return std::optional<LoadedTally>();
  };
  DetailPresenter& zaimei = detail.Open();
  zaimei.TypeMemo(0, "控え");
  zaimei.Press(DetailButton::load);
  EXPECT_EQ(zaimei.Result(), detail.counted);
  EXPECT_EQ(TallyGrid, detail.counted.Grid());
  EXPECT_EQ(detail.View().memos[0], "控え");
}

TEST(DetailPresenter, ASavedTallyWithoutRowsLeavesAnEmptyList) {
  Detailed detail;
  detail.parts.load = [](TallyKind kind) {
    LoadedTally empty;
    empty.result.kind = kind;
    empty.result.origin = ResultOrigin::loaded;
    return std::optional(empty);
  };
  detail.Open().Press(DetailButton::load);
  EXPECT_EQ(detail.D19(), "");
  EXPECT_EQ(detail.View().total_weight, "0 ㎏");
  EXPECT_EQ(TallyGrid, TallyTable());
}

// What was loaded is no longer there: the site's schedule is tallied under the selection that came with it.
TEST(DetailPresenter, RestoringALoadedTallyTalliesTheSchedule) {
  Detailed detail;
  detail.parts.load = [&](TallyKind) {
    LoadedTally saved{.result = detail.counted, .memos = {}, .has_rows = true};
    saved.result.origin = ResultOrigin::loaded;
    saved.result.saved_as_corrected = true;
    saved.result.Grid().BarCount[3][5] = 77;
    return std::optional(saved);
  };
  DetailPresenter& zaimei = detail.Open();
  zaimei.Press(DetailButton::load);
  EXPECT_EQ(detail.D19(), "77");
  zaimei.Press(DetailButton::restore);
  EXPECT_EQ(zaimei.Result(), detail.counted);
}

TEST(DetailPresenter, LeavingAnswersACallOfAnotherProgramForTheDetail) {
  Detailed detail;
  const auto pending = [&] { return GetProfileText(MapPath(kNextPrgIni), "データ", "材料明細", "none"); };
  detail.site.SetIni(kNextPrgFile, "データ", "材料明細", "1");
  detail.Open().Press(DetailButton::leave);
  EXPECT_TRUE(detail.View().left);
  EXPECT_EQ(pending(), "0");
  for (const char* other : {"0", "2", ""}) {
    detail.site.SetIni(kNextPrgFile, "データ", "材料明細", other);
    detail.Open().Escape();
    EXPECT_EQ(pending(), other);
  }
}

TEST(DetailPresenter, LeavingInTheMiddleOfAModeAnswersTheCallToo) {
  Detailed detail;
  const auto pending = [&] { return GetProfileText(MapPath(kNextPrgIni), "データ", "材料明細", "none"); };
  for (const auto& bring : {BeginPercent, BeginEditing}) {
    detail.site.SetIni(kNextPrgFile, "データ", "材料明細", "1");
    DetailPresenter& zaimei = detail.Open();
    bring(zaimei);
    zaimei.Leave();
    EXPECT_TRUE(detail.View().left);
    EXPECT_EQ(pending(), "0");
    detail.site.SetIni(kNextPrgFile, "データ", "材料明細", "1");
    zaimei.Leave();
    EXPECT_EQ(pending(), "1") << "left once";
  }
}

TEST(DetailPresenter, LeavingKeepsTheChangesForTheScreenThatOpenedIt) {
  Detailed detail;
  DetailPresenter& zaimei = detail.Open();
  BeginEditing(zaimei);
  zaimei.EditCell(3, 7, "20");
  zaimei.Escape();
  zaimei.Escape();
  EXPECT_EQ(zaimei.Result().Grid().BarCount[3][5], 20);
  EXPECT_EQ(TallyGrid, zaimei.Result().Grid());
}

}  // namespace
}  // namespace rbt::test
