// SPDX-License-Identifier: MIT
#include "screens/archive/load_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/archive/dialog_driver.h"

namespace rbt::test {

namespace {

class LoadFilesForm : public testing::Test {
 protected:
  /// Three entries: 三 with a memo, 二, 一.
  DialogDriver<LoadFiles> Open() {
    site_.Keep("一");
    site_.Keep("二");
    site_.Keep("三", TallyKind::bulk, "控え");
    return OpenOnWhatThereIs();
  }
  static DialogDriver<LoadFiles> OpenOnWhatThereIs() {
    return DialogDriver<LoadFiles>(std::make_unique<LoadFiles>(TallyKind::bulk));
  }
  static void Click(const DialogDriver<LoadFiles>& form, std::initializer_list<int> rows) {
    form.List()->clearSelection();
    for (const int row : rows) form.List()->item(row)->setSelected(true);
  }

  SavedSite site_;
};

}  // namespace

TEST_F(LoadFilesForm, BearsItsCaptions) {
  const auto form = Open();
  EXPECT_EQ(form.dialog->windowTitle(), "データの読込");
  EXPECT_EQ(form.Label("Label1"),
            "操作したいデータをクリックして選択した後、下の操作ボタンをクリックしてください。");
  EXPECT_EQ(form.Button("LoadButton")->text(), "読込(Ｆ１)");
  EXPECT_EQ(form.Button("DelButton")->text(), "削除(F2)");
  EXPECT_EQ(form.Button("RenameButton")->text(), "名前変更(F3)");
  EXPECT_EQ(form.Button("ExitButton")->text(), "終了(ESC)");
  EXPECT_EQ(form.Entries(), "三  控え|二  |一  |");
  EXPECT_EQ(form.Focused(), "List1");
  EXPECT_FALSE(form.Shows("FileNameText"));
}

TEST_F(LoadFilesForm, ANoticeInTheListCannotBeSelected) {
  auto form = OpenOnWhatThereIs();
  EXPECT_EQ(form.Entries(), "過去のデータがありません|");
  form.Key(Qt::Key_Down);
  form.Key(Qt::Key_Space);
  form.Key(Qt::Key_F1);
  EXPECT_EQ(site_.Told(), "未選択: データが選択されていません。|");
  EXPECT_EQ(form.Focused(), "List1");
}

TEST_F(LoadFilesForm, F1LoadsTheEntryThatTheArrowsChose) {
  auto form = Open();
  form.Key(Qt::Key_Down);
  form.Key(Qt::Key_Down);
  form.Key(Qt::Key_Up);
  form.Key(Qt::Key_F1);
  EXPECT_THAT(site_.Told(), testing::HasSubstr("[ 三 ]  を読み込みます"));
  EXPECT_FALSE(form.dialog->isVisible());
  const auto loaded = form.dialog->TakeLoaded();
  ASSERT_TRUE(loaded);
  EXPECT_EQ(loaded->result.Grid(), SmallTally().Grid());
}

TEST_F(LoadFilesForm, AListOfOneIsWorkedByTheKeyboardAlone) {
  site_.Keep("一");
  for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up}) {
    auto form = OpenOnWhatThereIs();
    EXPECT_TRUE(form.List()->selectedItems().isEmpty());
    form.Key(arrow);
    EXPECT_TRUE(form.List()->item(0)->isSelected());
    form.Key(Qt::Key_F3);
    EXPECT_TRUE(form.Shows("FileNameText"));
  }
}

TEST_F(LoadFilesForm, F2DeletesAllThatAreSelected) {
  auto form = Open();
  Click(form, {0, 2});
  form.Key(Qt::Key_F2);
  EXPECT_EQ(site_.Names(), "二|");
  EXPECT_EQ(form.Entries(), "二  |");
  EXPECT_TRUE(form.List()->selectedItems().isEmpty());
  EXPECT_EQ(form.Focused(), "List1");
}

TEST_F(LoadFilesForm, TheLastEntryGoneTheNoticeTakesItsPlace) {
  site_.Keep("一");
  auto form = OpenOnWhatThereIs();
  Click(form, {0});
  form.Key(Qt::Key_F2);
  EXPECT_EQ(form.Entries(), "過去のデータがありません|");
}

TEST_F(LoadFilesForm, F3AsksForTheNewNameAndGivesItAtTheSecondPress) {
  auto form = Open();
  Click(form, {1});
  form.Key(Qt::Key_F3);
  EXPECT_TRUE(form.Shows("FileNameText"));
  EXPECT_EQ(form.Focused(), "FileNameText");
  EXPECT_EQ(form.Button("RenameButton")->text(), "更新(Ｆ３)");
  EXPECT_FALSE(form.Button("LoadButton")->isEnabled());
  EXPECT_FALSE(form.Button("DelButton")->isEnabled());
  form.Type("新*");
  EXPECT_EQ(site_.Told(), "注意: 「 * 」は使えません。他の文字に変えてください|");
  EXPECT_EQ(form.Text("FileNameText"), "新");
  form.Key(Qt::Key_F3);
  EXPECT_EQ(form.Entries(), "三  控え|新  |一  |");
  EXPECT_FALSE(form.Shows("FileNameText"));
  EXPECT_EQ(form.Button("RenameButton")->text(), "名前変更(F3)");
  EXPECT_EQ(form.Focused(), "List1");
  EXPECT_EQ(site_.Names(), "三|新|一|");
}

TEST_F(LoadFilesForm, ARefusedNewNameKeepsTheFocusOnIt) {
  auto form = Open();
  Click(form, {1});
  form.Key(Qt::Key_F3);
  form.Type("一");
  form.Button("RenameButton")->setFocus();
  form.Key(Qt::Key_F3);
  EXPECT_EQ(site_.Messages().back().title, "データ名の変更");
  EXPECT_EQ(form.Focused(), "FileNameText");
}

TEST_F(LoadFilesForm, EscGoesBackFromTheNewNameFirst) {
  auto form = Open();
  Click(form, {1});
  form.Key(Qt::Key_F3);
  form.Key(Qt::Key_Escape);
  EXPECT_TRUE(form.dialog->isVisible());
  EXPECT_FALSE(form.Shows("FileNameText"));
  EXPECT_EQ(form.Focused(), "List1");
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.dialog->isVisible());
  EXPECT_FALSE(form.dialog->TakeLoaded());
}

TEST_F(LoadFilesForm, TheSelectionStaysThroughANo) {
  auto form = Open();
  Click(form, {1});
  site_.Answer(MessageAnswer::no);
  form.Key(Qt::Key_F2);
  EXPECT_TRUE(form.List()->item(1)->isSelected());
  form.Key(Qt::Key_F2);
  EXPECT_EQ(site_.Names(), "三|一|");
}

}  // namespace rbt::test
