// SPDX-License-Identifier: MIT
#include "session/archive/load_presenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/archive/saved_site.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LoadDialog : public testing::Test {
 protected:
  /// Three entries, the newest first: 三 with a memo, 二, 一.
  LoadPresenter& Open() {
    site_.Keep("一");
    site_.Keep("二");
    site_.Keep("三", TallyKind::bulk, "控え");
    return OpenOnWhatThereIs();
  }
  LoadPresenter& OpenOnWhatThereIs() {
    dialog_ = std::make_unique<LoadPresenter>(TallyKind::bulk);
    return *dialog_;
  }
  /// A new name is being asked for, of the first entry.
  LoadPresenter& OpenForNaming() {
    Open().Select({0});
    dialog_->Rename();
    dialog_->View();
    return *dialog_;
  }
  void ExpectFocus(LoadFocus focus) { EXPECT_EQ(dialog_->View().focus, focus); }

  SavedSite site_;
  std::unique_ptr<LoadPresenter> dialog_;
};

}  // namespace

TEST_F(LoadDialog, ListsNamesAndFirstMemosOfItsKind) {
  site_.Keep("他", TallyKind::shape);
  const LoadView view = Open().View();
  EXPECT_THAT(view.entries, ElementsAre("三  控え", "二  ", "一  "));
  EXPECT_EQ(view.notice, "");
  EXPECT_EQ(view.rename_caption, "名前変更(F3)");
  EXPECT_EQ(view.focus, LoadFocus::list);
  EXPECT_FALSE(view.naming);
}

TEST_F(LoadDialog, SaysSoWhereNothingIsSaved) {
  const LoadView view = OpenOnWhatThereIs().View();
  EXPECT_THAT(view.entries, IsEmpty());
  EXPECT_EQ(view.notice, "過去のデータがありません");
}

TEST_F(LoadDialog, AsksForASelection) {
  Open();
  void (LoadPresenter::*const intents[])() = {&LoadPresenter::Load, &LoadPresenter::Delete,
                                              &LoadPresenter::Rename};
  for (const auto intent : intents) {
    const std::size_t told = site_.Messages().size();
    dialog_->View();
    (dialog_.get()->*intent)();
    EXPECT_EQ(site_.Told(told), "未選択: データが選択されていません。|");
    const LoadView view = dialog_->View();
    EXPECT_EQ(view.focus, LoadFocus::list);
    EXPECT_FALSE(view.naming);
    EXPECT_FALSE(view.left);
  }
}

// Loading.

TEST_F(LoadDialog, LoadsTheSelectedOneAfterAYes) {
  Open().Select({0});
  dialog_->Load();
  EXPECT_EQ(site_.Told(), "読み込みの確認 :  [ 三 ]  を読み込みます|");
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::yes_no);
  EXPECT_TRUE(dialog_->View().left);
  const auto loaded = dialog_->TakeLoaded();
  ASSERT_TRUE(loaded);
  EXPECT_TRUE(loaded->has_rows);
  EXPECT_EQ(loaded->result.Grid(), SmallTally().Grid());
  EXPECT_THAT(loaded->memos, ElementsAre("控え", "", ""));
}

TEST_F(LoadDialog, LoadsNothingAfterANo) {
  TallyGrid.BarCount[0][0] = 7;
  site_.Answer(MessageAnswer::no);
  Open().Select({0});
  dialog_->Load();
  EXPECT_FALSE(dialog_->View().left);
  EXPECT_FALSE(dialog_->TakeLoaded());
  EXPECT_EQ(TallyGrid.BarCount[0][0], 7);
}

TEST_F(LoadDialog, ANameWithoutRowsIsToldAndLeavesAnEmptyGrid) {
  Open().Select({1});
  site_.Execute(kScheduleFile, "DELETE * FROM 重量集計");
  dialog_->Load();
  EXPECT_EQ(site_.Told(1), "データなし: データがありません|");
  EXPECT_TRUE(dialog_->View().left);
  const auto loaded = dialog_->TakeLoaded();
  ASSERT_TRUE(loaded);
  EXPECT_FALSE(loaded->has_rows);
  EXPECT_EQ(loaded->result.Grid(), TallyTable());
}

// Deleting.

TEST_F(LoadDialog, DeletesTheSelectedOneAfterAYes) {
  Open().Select({1});
  dialog_->Delete();
  EXPECT_EQ(site_.Told(),
            "削除の確認: [ 二 ] のデータを削除しますか?|削除終了: [ 二 ] のデータを削除しました|");
  const LoadView view = dialog_->View();
  EXPECT_THAT(view.entries, ElementsAre("三  控え", "一  "));
  EXPECT_THAT(view.selected, IsEmpty());
  EXPECT_EQ(view.focus, LoadFocus::list);
  EXPECT_EQ(site_.Count("重量集計"), 2U);
}

TEST_F(LoadDialog, DeletesNothingAfterANo) {
  site_.Answer(MessageAnswer::no);
  Open().Select({1});
  dialog_->Delete();
  EXPECT_EQ(site_.Names(), "三|二|一|");
  EXPECT_THAT(dialog_->View().selected, ElementsAre(1U));
}

TEST_F(LoadDialog, DeletesSeveralAfterOneQuestion) {
  Open().Select({0, 2});
  dialog_->Delete();
  EXPECT_EQ(site_.Told(),
            "削除の確認: 選択された複数のデータを削除しますか?|削除終了: [ 三 ] のデータを削除しました|"
            "削除終了: [ 一 ] のデータを削除しました|");
  EXPECT_EQ(site_.Names(), "二|");
}

TEST_F(LoadDialog, TwoSavesOfOneNameNeedTwoDeletesTheNewestFirst) {
  site_.Keep("同名", TallyKind::bulk, "前");
  site_.Keep("同名", TallyKind::bulk, "後");
  OpenOnWhatThereIs().Select({1});
  dialog_->Delete();
  EXPECT_THAT(dialog_->View().entries, ElementsAre("同名  前"));
  dialog_->Select({0});
  dialog_->Delete();
  EXPECT_THAT(dialog_->View().entries, IsEmpty());
}

TEST_F(LoadDialog, BothSavesOfOneNameGoWhereBothAreSelected) {
  site_.Keep("同名");
  site_.Keep("同名");
  OpenOnWhatThereIs().Select({0, 1});
  dialog_->Delete();
  EXPECT_EQ(site_.Names(), "");
}

TEST_F(LoadDialog, ADeleteThatFailsShowsTheStoresMessageAndReadsTheListAgain) {
  Open().Select({0});
  site_.Execute(kScheduleFile, "DELETE * FROM 重量集計名称 WHERE 重量集計名称='三'");
  dialog_->Delete();
  EXPECT_THAT(site_.Told(1), HasSubstr("データの読込: "));
  EXPECT_THAT(site_.Told(1), HasSubstr("三: データがありません"));
  EXPECT_THAT(dialog_->View().entries, ElementsAre("二  ", "一  "));
}

TEST_F(LoadDialog, AnotherProgramsLockOnADeleteIsTold) {
  Services.LockPatience = std::chrono::milliseconds(0);
  Open().Select({0});
  Database other = site_.Open();
  const Transaction writing(other);
  dialog_->Delete();
  EXPECT_THAT(site_.Told(1), HasSubstr("another program holds the file"));
  EXPECT_THAT(dialog_->View().entries, ElementsAre("三  控え", "二  ", "一  "));
}

// Renaming.

TEST_F(LoadDialog, RenamesOneAtATime) {
  Open().Select({0, 1});
  dialog_->Rename();
  EXPECT_EQ(site_.Told(), "一つにしてください: 名前の変更は一つしかできません|");
  EXPECT_FALSE(dialog_->View().naming);
}

TEST_F(LoadDialog, TheFirstPressAsksForTheNewName) {
  Open().Select({0});
  dialog_->Rename();
  const LoadView view = dialog_->View();
  EXPECT_TRUE(view.naming);
  EXPECT_EQ(view.new_name, "三");
  EXPECT_EQ(view.rename_caption, "更新(Ｆ３)");
  EXPECT_EQ(view.focus, LoadFocus::new_name);
  EXPECT_EQ(site_.Told(), "");
}

TEST_F(LoadDialog, NothingElseIsDoneMeanwhile) {
  OpenForNaming().Load();
  dialog_->Delete();
  EXPECT_EQ(site_.Told(), "");
  EXPECT_TRUE(dialog_->View().naming);
}

TEST_F(LoadDialog, TheSecondPressRenames) {
  OpenForNaming().TypeNewName(" 新しい ");
  dialog_->Rename();
  EXPECT_EQ(site_.Told(), "名前の変更:  [ 新しい ] に変更しました|");
  const LoadView view = dialog_->View();
  EXPECT_FALSE(view.naming);
  EXPECT_EQ(view.rename_caption, "名前変更(F3)");
  EXPECT_THAT(view.entries, ElementsAre("新しい  控え", "二  ", "一  "));
  EXPECT_EQ(view.focus, LoadFocus::list);
}

TEST_F(LoadDialog, AnEmptyNewNameIsRefused) {
  for (const char* name : {"", "  "}) {
    OpenForNaming().TypeNewName(name);
    const std::size_t told = site_.Messages().size();
    dialog_->Rename();
    EXPECT_EQ(site_.Told(told), "名前未入力: 名前が入力されていません|");
    EXPECT_TRUE(dialog_->View().naming);
  }
}

TEST_F(LoadDialog, ANewNameThatIsInTheListIsRefused) {
  for (const char* name : {"二", " 一 ", "三"}) {
    OpenForNaming().TypeNewName(name);
    const std::size_t told = site_.Messages().size();
    dialog_->Rename();
    EXPECT_EQ(site_.Told(told), "データ名の変更: 同じ名前があります\n違う名前を入力してください|");
    ExpectFocus(LoadFocus::new_name);
  }
}

TEST_F(LoadDialog, ANewNameThatIsTooLongIsRefused) {
  std::string name;
  for (int i = 0; i < 61; ++i) name += "あ";
  OpenForNaming().TypeNewName(name);
  dialog_->Rename();
  EXPECT_EQ(site_.Told(), "入力確認: 名前が長すぎます\n全角６０文字までとしてください|");
  const LoadView view = dialog_->View();
  EXPECT_EQ(view.new_name, "");
  EXPECT_EQ(view.focus, LoadFocus::new_name);
}

TEST_F(LoadDialog, RefusesACharacterOfTheNewNameAtItsKeystroke) {
  EXPECT_FALSE(OpenForNaming().TakesNewName("三,"));
  dialog_->TypeNewName("三,");
  EXPECT_EQ(site_.Told(), "注意: 「 , 」は使えません。他の文字に変えてください|");
  EXPECT_EQ(dialog_->View().new_name, "三");
}

TEST_F(LoadDialog, ARenameThatFailsShowsTheStoresMessageAndReadsTheListAgain) {
  OpenForNaming().TypeNewName("新しい");
  site_.Execute(kScheduleFile, "DELETE * FROM 重量集計名称 WHERE 重量集計名称='三'");
  dialog_->Rename();
  EXPECT_THAT(site_.Told(), HasSubstr("三: データがありません"));
  const LoadView view = dialog_->View();
  EXPECT_FALSE(view.naming);
  EXPECT_THAT(view.entries, ElementsAre("二  ", "一  "));
}

TEST_F(LoadDialog, EscGoesOneStepBack) {
  OpenForNaming().Leave();
  LoadView view = dialog_->View();
  EXPECT_FALSE(view.naming);
  EXPECT_FALSE(view.left);
  EXPECT_EQ(view.focus, LoadFocus::list);
  dialog_->Leave();
  EXPECT_TRUE(dialog_->View().left);
}

}  // namespace rbt::test
