// SPDX-License-Identifier: MIT
#include "session/archive/save_presenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure_log.h"
#include "session/archive/saved_site.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;

constexpr const char* kAsked = "保存の確認: [ 基礎 ] を保存しますか？|";
constexpr const char* kAskedToReplace =
    "同じデータがあります: 同じ名前があります\n前のデータを削除して上書きしますか?|";

class SaveDialog : public testing::Test {
 protected:
  SavePresenter& Open(TallyKind kind = TallyKind::bulk, const SavedMemos& memos = {}) {
    dialog_ = std::make_unique<SavePresenter>(SmallTally(kind), memos, parts_);
    return *dialog_;
  }
  /// Its name typed in place of the proposed one.
  SavePresenter& OpenNamed(const std::string& name) {
    Open().TypeName(name);
    dialog_->View();
    return *dialog_;
  }

  SavedSite site_;
  SaveParts parts_;
  std::unique_ptr<SavePresenter> dialog_;
};

}  // namespace

TEST_F(SaveDialog, OpensWithTheListOfItsKindAndAProposedName) {
  site_.Keep("一");
  site_.Keep("二");
  site_.Keep("他", TallyKind::shape);
  const SaveView view = Open().View();
  EXPECT_THAT(view.names, ElementsAre("二", "一"));
  EXPECT_EQ(view.name, "異ネジ高強度  2026/11/21 09:00:00");
  EXPECT_TRUE(view.focus_on_name);
  EXPECT_FALSE(view.left);
  EXPECT_FALSE(dialog_->View().focus_on_name) << "asked for once";
  EXPECT_EQ(site_.Told(), "");
}

TEST_F(SaveDialog, TellsTheKindAndOffersMemosToBeKeptOnTheDetailScreenAlone) {
  const auto kind = [&](TallyKind of) {
    const SaveView view = Open(of).View();
    return std::string(view.kind) + (view.offers_memos ? " memos" : "");
  };
  EXPECT_EQ(kind(TallyKind::bulk), "一括集計 memos");
  EXPECT_EQ(kind(TallyKind::shape), "形状別一括集計 memos");
  EXPECT_EQ(kind(TallyKind::page), "頁行別集計 memos");
  EXPECT_EQ(kind(TallyKind::page_shape), "形状別頁行別集計 memos");
  EXPECT_EQ(kind(TallyKind::floor), "階別集計");
  EXPECT_EQ(kind(TallyKind::part), "部位別集計");
}

TEST_F(SaveDialog, ProposesTheFirstMemoAsSubprojectText) {
  EXPECT_EQ(Open(TallyKind::shape, {" Ａ棟 ", "二", "三"}).View().name,
            "異ネジ高強度  2026/11/21 09:00:00  ( Ａ棟 )");
  EXPECT_THAT(dialog_->View().memos, ElementsAre(" Ａ棟 ", "二", "三"));
}

TEST_F(SaveDialog, RefusesACharacterAtItsKeystroke) {
  for (const char character : std::string(",!\"#&%;:*|$'")) {
    SavePresenter& dialog = OpenNamed("基礎");
    const std::size_t told = site_.Messages().size();
    EXPECT_FALSE(dialog.TakesName(std::string("基礎") + character));
    dialog.TypeName(std::string("基礎") + character);
    EXPECT_EQ(site_.Told(told),
              std::string("注意: 「 ") + character + " 」は使えません。他の文字に変えてください|");
    EXPECT_EQ(dialog.View().name, "基礎");
  }
}

TEST_F(SaveDialog, LetsTheCharactersOfTheProposalStand) {
  SavePresenter& dialog = Open();
  const std::string longer = dialog.Name() + "あ";
  EXPECT_TRUE(dialog.TakesName(longer));
  dialog.TypeName(longer);
  EXPECT_EQ(dialog.View().name, longer);
  EXPECT_EQ(site_.Told(), "");
}

TEST_F(SaveDialog, SavesUnderTheNameTrimmedAndEnds) {
  OpenNamed("  基礎 ").Save();
  EXPECT_EQ(site_.Told(), kAsked);
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::yes_no);
  EXPECT_TRUE(dialog_->View().left);
  EXPECT_THAT(site_.Lines("SELECT 作成日,作成時間,重量集計名称 FROM 重量集計名称"),
              ElementsAre("20261121|090000|基礎"));
  EXPECT_EQ(site_.Load(TallyKind::bulk, "基礎").result.Grid(), SmallTally().Grid());
}

TEST_F(SaveDialog, SavesNothingWithoutAYes) {
  site_.Answer(MessageAnswer::no);
  OpenNamed("基礎").Save();
  EXPECT_EQ(site_.Told(), kAsked);
  const SaveView view = dialog_->View();
  EXPECT_FALSE(view.left);
  EXPECT_TRUE(view.focus_on_name);
  EXPECT_EQ(view.name, "基礎");
  EXPECT_EQ(site_.Names(), "");
}

TEST_F(SaveDialog, KeepsMemosWhereTheyAreToBeKept) {
  Open(TallyKind::bulk, {"一", "", "三"}).TypeMemo(1, "二");
  dialog_->Save();
  EXPECT_THAT(site_.Lines("SELECT メモ１,メモ２,メモ３ FROM 重量集計名称"), ElementsAre("一|二|三"));
}

TEST_F(SaveDialog, KeepsNoMemosWhereTheTickIsOff) {
  Open(TallyKind::bulk, {"一", "二", "三"}).KeepMemos(false);
  dialog_->Save();
  EXPECT_THAT(site_.Lines("SELECT メモ１,メモ２,メモ３ FROM 重量集計名称"), ElementsAre("null|null|null"));
}

TEST_F(SaveDialog, ANameThatIsTooLongEmptiesTheBox) {
  std::string name;
  for (int i = 0; i < 61; ++i) name += "あ";
  OpenNamed(name).Save();
  EXPECT_EQ(site_.Told(), "入力確認: 名前が長すぎます\n全角６０文字までとしてください|");
  const SaveView view = dialog_->View();
  EXPECT_EQ(view.name, "");
  EXPECT_TRUE(view.focus_on_name);
  EXPECT_FALSE(view.left);
}

TEST_F(SaveDialog, ANameOfExactlySixtyFullWidthCharactersIsSaved) {
  std::string name;
  for (int i = 0; i < 60; ++i) name += "あ";
  OpenNamed(name).Save();
  EXPECT_EQ(site_.Names(), name + "|");
}

TEST_F(SaveDialog, AnEmptyNameIsRefused) {
  for (const char* name : {"", "   "}) {
    const std::size_t told = site_.Messages().size();
    OpenNamed(name).Save();
    EXPECT_EQ(site_.Told(told), "入力確認: 何も入力されていません\n名前を入力してください|");
    EXPECT_TRUE(dialog_->View().focus_on_name);
  }
  EXPECT_EQ(site_.Names(), "");
}

TEST_F(SaveDialog, AnEmptyBoxTakesTheSelectedEntry) {
  site_.Keep("一");
  site_.Keep("基礎");
  OpenNamed("").Select(0);
  dialog_->Save();
  EXPECT_EQ(site_.Told(), std::string(kAskedToReplace) + kAsked);
  EXPECT_EQ(site_.Names(), "基礎|一|");
  EXPECT_THAT(site_.Lines("SELECT 作成日 FROM 重量集計名称 WHERE 重量集計名称='基礎'"),
              ElementsAre("20261121"));
}

TEST_F(SaveDialog, ANameInTheBoxGoesBeforeTheSelectedEntry) {
  site_.Keep("一");
  OpenNamed("基礎").Select(0);
  dialog_->Save();
  EXPECT_EQ(site_.Told(), kAsked);
}

// Overwriting.

TEST_F(SaveDialog, ReplacesTheTalliesOfTheNameAfterAYes) {
  site_.Keep(" 基礎");
  site_.Keep("基礎");
  OpenNamed("基礎").Save();
  EXPECT_EQ(site_.Told(), std::string(kAskedToReplace) + kAsked);
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::yes_no_cancel);
  EXPECT_THAT(site_.Lines("SELECT 作成日,重量集計名称 FROM 重量集計名称"), ElementsAre("20261121|基礎"));
  EXPECT_THAT(site_.Lines("SELECT 作成日 FROM 重量集計"), ElementsAre("20261121"));
}

TEST_F(SaveDialog, ANoAsksForAnotherNameInTheBox) {
  site_.Keep("基礎");
  site_.Answer(MessageAnswer::no);
  OpenNamed("基礎").Save();
  EXPECT_EQ(site_.Told(), kAskedToReplace);
  const SaveView view = dialog_->View();
  EXPECT_EQ(view.name, "違う名前を入力してください");
  EXPECT_TRUE(view.focus_on_name);
  EXPECT_FALSE(view.left);
  EXPECT_THAT(site_.Lines("SELECT 作成日 FROM 重量集計名称"), ElementsAre("20261101"));
}

TEST_F(SaveDialog, ACancelLeavesEverythingAsItIs) {
  site_.Keep("基礎");
  site_.Answer(MessageAnswer::cancel);
  OpenNamed("基礎").Save();
  const SaveView view = dialog_->View();
  EXPECT_EQ(view.name, "基礎");
  EXPECT_FALSE(view.left);
  EXPECT_THAT(site_.Lines("SELECT 作成日 FROM 重量集計名称"), ElementsAre("20261101"));
}

TEST_F(SaveDialog, TheOldTallyStaysWhereTheSaveIsNotConfirmed) {
  site_.Keep("基礎");
  site_.Answer(MessageAnswer::yes);
  site_.Answer(MessageAnswer::no);
  OpenNamed("基礎").Save();
  EXPECT_EQ(site_.Told(), std::string(kAskedToReplace) + kAsked);
  EXPECT_THAT(site_.Lines("SELECT 作成日 FROM 重量集計"), ElementsAre("20261101"));
}

TEST_F(SaveDialog, NamesDifferInMoreThanLetterCase) {
  site_.Keep("ab");
  OpenNamed("AB").Save();
  EXPECT_THAT(site_.Told(), testing::HasSubstr("同じデータがあります"));
}

TEST_F(SaveDialog, ATallyOfAnotherKindWithTheNameIsNeitherAskedAboutNorTouched) {
  site_.Keep("基礎", TallyKind::shape);
  OpenNamed("基礎").Save();
  EXPECT_EQ(site_.Told(), kAsked);
  EXPECT_EQ(site_.Names(TallyKind::shape), "基礎|");
  EXPECT_EQ(site_.Names(), "基礎|");
}

// Failure, and the other buttons.

TEST_F(SaveDialog, AFailedWriteIsToldAndEndsTheDialogWithNothingWritten) {
  site_.Keep("一");
  const auto before = site_.Dump();
  const std::int64_t logged = LoggedFailures();
  SavePresenter& dialog = OpenNamed("基礎");
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計");
  dialog.Save();
  EXPECT_EQ(site_.Told(), std::string(kAsked) + "データの保存: 書き込みに失敗しました。終了します。|");
  EXPECT_TRUE(dialog.View().left);
  EXPECT_EQ(LoggedFailures(), logged + 1) << "why it failed";
  EXPECT_EQ(site_.Lines("SELECT * FROM 重量集計名称"), before.front());
}

TEST_F(SaveDialog, TheSecondOfTwoSavesInOneSecondIsToldAndLeavesTheFirst) {
  OpenNamed("一").Save();
  OpenNamed("二").Save();
  EXPECT_THAT(site_.Told(), testing::EndsWith("データの保存: 書き込みに失敗しました。終了します。|"));
  EXPECT_EQ(site_.Names(), "一|");
  EXPECT_TRUE(site_.Load(TallyKind::bulk, "一").has_rows);
}

TEST_F(SaveDialog, TheClockIsReadWhenTheSaveIsConfirmed) {
  SavePresenter& dialog = OpenNamed("基礎");
  Services.Clock = StandingClock({2026, 11, 22, 1, 2, 3});
  dialog.Save();
  EXPECT_THAT(site_.Lines("SELECT 作成日,作成時間 FROM 重量集計名称"), ElementsAre("20261122|010203"));
}

TEST_F(SaveDialog, ATallyWithoutFiguresIsTold) {
  TallyResult empty;
  empty.kind = TallyKind::floor;
  empty.tables = FloorTables();
  SavePresenter dialog(empty, {});
  dialog.Save();
  EXPECT_EQ(site_.Messages().back().title, "データなし");
  EXPECT_EQ(site_.Messages().back().text, "データがありません");
  EXPECT_TRUE(dialog.View().left);
  EXPECT_EQ(site_.Names(TallyKind::floor), "");
}

TEST_F(SaveDialog, TheCsvButtonOpensTheCsvDialogOrSaysThatItIsNotReady) {
  Open().ExportCsv();
  EXPECT_EQ(site_.Told(), "データの保存: 「CSV保存」は、まだご利用いただけません。|");
  CsvOfTally exported;
  parts_.export_csv = [&](CsvOfTally tally) { exported = std::move(tally); };
  Open(TallyKind::page, {"一", "", "三"}).TypeMemo(1, "二");
  dialog_->TypeName(" 基礎 ");
  dialog_->ExportCsv();
  EXPECT_EQ(exported.result, SmallTally(TallyKind::page));
  EXPECT_THAT(exported.memos, ElementsAre("一", "二", "三"));
  EXPECT_EQ(exported.data_name, "基礎");
  EXPECT_FALSE(dialog_->View().left);
}

TEST_F(SaveDialog, LeavingSavesNothing) {
  OpenNamed("基礎").Leave();
  EXPECT_TRUE(dialog_->View().left);
  EXPECT_EQ(site_.Names(), "");
}

}  // namespace rbt::test
