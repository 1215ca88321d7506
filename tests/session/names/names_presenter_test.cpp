// SPDX-License-Identifier: MIT
#include "session/names/names_presenter.h"

#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "session/detail/detail_presenter.h"
#include "session/names/names_screen.h"
#include "session/result/result_presenter.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(NamesScreen, BeginsWithTheNamesInTheOrderOfTheirNumbersAndNoneMarked) {
  const NamesView view = Open().View();
  EXPECT_THAT(view.rows,
              ElementsAre(ElementsAre("1", "い", "0", "270", "270"), ElementsAre("2", "あ", "0", "0", "0"),
                          ElementsAre("4", "う", "0", "135", "135")));
  EXPECT_THAT(view.selected, IsEmpty());
  EXPECT_EQ(view.head.site_number, "001");
  EXPECT_EQ(view.item, "1");
  EXPECT_EQ(view.focus, "tourokumei");
  EXPECT_TRUE(view.to_first_row);
  EXPECT_EQ(
      view.message,
      "登録名の ０ をクリックして １ としてから処理を選ぶ（連番で削除は削除 (Ｆ５) を押してから番号入力）");
  EXPECT_EQ(screen_->View().focus, "");
  EXPECT_FALSE(screen_->View().to_first_row);
}

TEST_F(NamesScreen, FlipsAMarkAndListsTheMarkedNamesByTheirNumbers) {
  Open().Flip(2);
  screen_->Flip(0);
  EXPECT_EQ(Marks(), "1い1 2あ0 4う1 ");
  EXPECT_THAT(screen_->View().selected, ElementsAre("1-い", "4-う"));
  screen_->Flip(0);
  EXPECT_EQ(Marks(), "1い0 2あ0 4う1 ");
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 0 0|4=1 135 135|");
  screen_->Flip(9);
}

TEST_F(NamesScreen, MarksNoNameWithoutANumber) {
  site_.Add(kCompanionFile, "登録名", {{"登録名", std::string("なし")}});
  Open().Flip(0);
  EXPECT_EQ(Marks(), "なし0 1い0 2あ0 4う0 ");
}

TEST_F(NamesScreen, SortsByNameAndBackAndKeepsTheMarks) {
  Open().Flip(0);
  screen_->View();
  screen_->Sort();
  EXPECT_TRUE(screen_->View().to_first_row);
  EXPECT_EQ(Marks(), "2あ0 1い1 4う0 ");
  screen_->Flip(0);
  EXPECT_THAT(screen_->View().selected, ElementsAre("1-い", "2-あ"));
  screen_->Sort();
  EXPECT_EQ(Marks(), "1い1 2あ1 4う0 ");
}

TEST_F(NamesScreen, SortsAListThatIsMarkedAllThroughAndKeepsEveryMark) {
  Open();
  EnterRange("1", "4");
  EXPECT_EQ(Marks(), "1い1 2あ1 4う1 ");
  screen_->Sort();
  EXPECT_EQ(Marks(), "2あ1 1い1 4う1 ");
  EXPECT_THAT(screen_->View().selected, ElementsAre("1-い", "2-あ", "4-う"));
  screen_->Sort();
  EXPECT_EQ(Marks(), "1い1 2あ1 4う1 ");
}

TEST_F(NamesScreen, MarksARangeOfNumbers) {
  Open();
  screen_->TypeRangeStart("2");
  screen_->EnterRangeStart();
  NamesView view = screen_->View();
  EXPECT_EQ(view.focus, "DelENo");
  EXPECT_EQ(view.message, "範囲の終了　登録名番号を入力し　Enter");
  screen_->TypeRangeEnd("9");
  screen_->EnterRangeEnd();
  view = screen_->View();
  EXPECT_EQ(Marks(), "1い0 2あ1 4う1 ");
  EXPECT_THAT(view.selected, ElementsAre("2-あ", "4-う"));
  EXPECT_EQ(view.message, "選択された登録名でよければ、集計(F1)を選択");
  EXPECT_EQ(view.focus, "btnA4Y");
}

TEST_F(NamesScreen, AnEndBelowTheStartKeepsTheFocusAndMarksNothing) {
  Open();
  EnterRange("2", "1");
  EXPECT_EQ(screen_->View().focus, "DelENo");
  EXPECT_EQ(Marks(), "1い0 2あ0 4う0 ");
  EnterRange("2", "");
  EXPECT_EQ(screen_->View().focus, "DelENo");
}

TEST_F(NamesScreen, AStartThatNoNameHasIsToldAndTypedAgain) {
  Open().TypeRangeStart("3");
  screen_->EnterRangeStart();
  EXPECT_EQ(Told(), "登録名なし: 該当する登録名がありません|");
  EXPECT_EQ(screen_->View().focus, "DelSNo");
}

TEST_F(NamesScreen, AStartOfNothingSkipsTheRange) {
  Open();
  for (const char* nothing : {"", "0"}) {
    screen_->TypeRangeStart(nothing);
    screen_->EnterRangeStart();
    EXPECT_EQ(screen_->View().focus, "TaihiKmkT");
  }
  screen_->TypeRangeEnd("9");
  screen_->EnterRangeEnd();
  EXPECT_EQ(screen_->View().focus, "DelSNo");
  EXPECT_EQ(Marks(), "1い0 2あ0 4う0 ");
  EXPECT_EQ(Told(), "");
}

TEST_F(NamesScreen, ANumberBeyondAllNumbersIsAFault) {
  Open().TypeRangeStart("99999999999");
  EXPECT_THROW(screen_->EnterRangeStart(), Fault);
}

TEST_F(NamesScreen, GoesBackFromTheEndOfTheRangeWithWordsOfItsOwn) {
  Open().BackToRangeStart();
  screen_->Reach("DelSNo");
  const NamesView view = screen_->View();
  EXPECT_EQ(view.focus, "DelSNo");
  EXPECT_EQ(view.message, "範囲の開始・終了　登録名番号を確認し　Enter");
}

TEST_F(NamesScreen, TellsWhatTheFocusedFieldTakes) {
  Open().Reach("DelSNo");
  EXPECT_EQ(screen_->View().message, "登録番号を範囲で選択する場合には、開始番号を入力して下さい");
  screen_->Reach("TaihiKmkT");
  EXPECT_EQ(screen_->View().message, "対比表印刷項目を 1～3 で選んで　Enter");
  screen_->Reach("tourokumei");
  EXPECT_EQ(
      screen_->View().message,
      "登録名の ０ をクリックして １ としてから処理を選ぶ（連番で削除は削除 (Ｆ５) を押してから番号入力）");
  EnterRange("1", "4");
  screen_->Reach("btnA4Y");
  EXPECT_EQ(screen_->View().message, "選択された登録名でよければ、集計(F1)を選択");
}

TEST_F(NamesScreen, KeepsAComparisonItemOfOneToThreeAndNoOther) {
  Open().TypeItem("3");
  screen_->EnterItem();
  EXPECT_EQ(ReadSetting(kComparisonKindKey), 3);
  EXPECT_EQ(Settings.ComparisonKind, 3);
  EXPECT_EQ(screen_->View().focus, "tourokumei");
  for (const char* other : {"", "0", "4"}) {
    screen_->TypeItem(other);
    screen_->EnterItem();
    EXPECT_EQ(screen_->View().focus, "TaihiKmkT") << other;
    EXPECT_EQ(ReadSetting(kComparisonKindKey), 3) << other;
  }
}

TEST_F(NamesScreen, WithoutAMarkRunsNoTally) {
  Open().Tally();
  screen_->TallyShapes();
  EXPECT_EQ(Told(), "登録名未選択: 登録名を選択して下さい\r　　|登録名未選択: 登録名を選択して下さい\r　　|");
  EXPECT_EQ(opened_, "");
}

TEST_F(NamesScreen, SendsItsMarksToTheTallyAndGoesOnWithThem) {
  Open().Flip(0);
  bool busy = false;
  screen_->OnShow([&] { busy = screen_->View().busy; });
  screen_->Tally();
  EXPECT_EQ(opened_, "JS ");
  EXPECT_EQ(kind_, TallyKind::names);
  EXPECT_EQ(bars_, 20);
  EXPECT_TRUE(busy);
  EXPECT_FALSE(screen_->View().busy);
  EXPECT_EQ(Marks(), "1い1 2あ0 4う0 ");
  screen_->Flip(2);
  EXPECT_EQ(Marks(), "1い1 2あ0 4う1 ");
}

TEST_F(NamesScreen, ShowsTheComparisonItemThatWasChosenBelowATally) {
  Open().Flip(0);
  meanwhile_ = [] { Settings.ComparisonKind = 3; };
  screen_->Tally();
  EXPECT_EQ(screen_->View().item, "3");
}

TEST_F(NamesScreen, SaysThatARangeIsTakenOnlyAsLongAsTheTallyIsAtHand) {
  constexpr std::string_view kTaken = "選択された登録名でよければ、集計(F1)を選択";
  const std::string usual(Open().Message());
  for (const char* elsewhere : {"tourokumei", "DelENo", "btnReturn"}) {
    EnterRange("1", "4");
    screen_->Reach("btnA4Y");
    EXPECT_EQ(screen_->Message(), kTaken);
    screen_->Reach(elsewhere);
    EXPECT_EQ(screen_->Message(), usual) << elsewhere;
  }
  const std::vector<std::function<void()>> intents{[this] { screen_->Flip(0); }, [this] { screen_->Sort(); },
                                                   [this] { screen_->Tally(); }};
  for (const auto& intent : intents) {
    EnterRange("1", "4");
    EXPECT_EQ(screen_->Message(), kTaken);
    intent();
    EXPECT_EQ(screen_->Message(), usual);
  }
}

TEST_F(NamesScreen, SendsToTheShapeTallyToo) {
  Open().Flip(0);
  screen_->TallyShapes();
  EXPECT_EQ(opened_, "KEIJOJS ");
  EXPECT_EQ(kind_, TallyKind::shape);
}

TEST_F(NamesScreen, ItsTallyScreenShowsTheMarkedNamesAndAddsUpNoSites) {
  Open().Flip(0);
  ResultPresenter tally(kNameScreen, {});
  const ResultScreenView view = tally.View();
  EXPECT_EQ(view.rows.at(3).at(1), "270 ");
  EXPECT_TRUE(view.print.shown);
  EXPECT_FALSE(view.toggle_accumulation.shown);
}

TEST_F(NamesScreen, APurchaseListOfNamesIsNeitherKeptNorBroughtBack) {
  Open().Flip(0);
  SiteContext.WorkDatabase->LetGo();
  DetailPresenter detail(CountTally(TallyKind::names), {});
  EXPECT_FALSE(detail.View().IsEnabled(DetailButton::save));
  EXPECT_FALSE(detail.View().IsEnabled(DetailButton::load));
  EXPECT_TRUE(detail.View().IsEnabled(DetailButton::restore));
}

TEST_F(NamesScreen, APurchaseListOfNamesIsRestoredToTheTallyOfItsMarks) {
  constexpr int kCutColumn = 24;
  Open().Flip(0);
  SiteContext.WorkDatabase->LetGo();
  const TallyResult tallied = CountTally(TallyKind::names);
  DetailPresenter detail(tallied, {});
  detail.Press(DetailButton::correct);
  detail.EditCell(3, kCutColumn, "9");
  detail.Escape();
  EXPECT_EQ(detail.Result().Grid().CutCount[3], 9);
  detail.Press(DetailButton::restore);
  EXPECT_EQ(detail.Result().Grid(), tallied.Grid());
  EXPECT_EQ(detail.Result().Grid().BarCount[3][5], 20);
}

TEST_F(NamesScreen, WritesAllNamesByTheirNumbersToACsvFileHoweverTheyAreListedAndMarked) {
  NamesPresenter& screen = Open();
  screen.Flip(1);
  screen.Sort();
  screen.SaveCsv();
  EXPECT_EQ(listed_, "い0 あ1 う0 ");
}

TEST_F(NamesScreen, WhatIsNotReadySaysSo) {
  NameSite::Load();
  NamesPresenter screen({});
  screen.Flip(0);
  screen.SaveCsv();
  EXPECT_EQ(Told(), "登録名加工帳: 「CSV保存」は、まだご利用いただけません。|");
}

TEST_F(NamesScreen, ShowsNoWeightsWhereTheyCannotBeWorkedOutAndTellsNothing) {
  Open();
  screen_->Leave();
  site_.LeaveOutColumns({"登録名"});
  const NamesView view = Open().View();
  EXPECT_THAT(view.rows.at(0), ElementsAre("1", "い", "0", "0", "0"));
  EXPECT_EQ(Told(), "");
}

TEST_F(NamesScreen, LeavesNoWorkTableBehindASiteThatHasBeenClosed) {
  Open();
  EXPECT_TRUE(site_.HasTable(kScheduleFile, "WorkTable"));
  SiteContext.WorkDatabase.reset();
  screen_->Leave();
  EXPECT_FALSE(site_.HasTable(kScheduleFile, "WorkTable"));
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
}

TEST_F(NamesScreen, KeepsItsMarksWhenItIsLeftAndClosesTheSite) {
  Open().Flip(1);
  screen_->Leave();
  EXPECT_TRUE(screen_->View().left);
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
  EXPECT_EQ(SiteContext.NameDatabase, nullptr);
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=1 0 0|4=0 135 135|");
  screen_->Leave();
}

}  // namespace
}  // namespace rbt::test
