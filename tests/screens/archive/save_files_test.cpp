// SPDX-License-Identifier: MIT
#include "screens/archive/save_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/archive/dialog_driver.h"

namespace rbt::test {

namespace {

constexpr const char* kProposed = "異ネジ高強度  2026/11/21 09:00:00";

class SaveFilesForm : public testing::Test {
 protected:
  DialogDriver<SaveFiles> Open(TallyKind kind = TallyKind::bulk, const SavedMemos& memos = {}) {
    return DialogDriver<SaveFiles>(std::make_unique<SaveFiles>(SmallTally(kind), memos, parts_));
  }

  SavedSite site_;
  SaveParts parts_;
};

}  // namespace

TEST_F(SaveFilesForm, BearsItsCaptions) {
  const auto form = Open(TallyKind::page);
  EXPECT_EQ(form.dialog->windowTitle(), "データの保存");
  EXPECT_EQ(form.Label("lblKind"), "頁行別集計");
  EXPECT_EQ(form.Label("NameLabel"), "名前を入力してください");
  EXPECT_EQ(form.Label("lblMemo_0") + form.Label("lblMemo_1") + form.Label("lblMemo_2"),
            "メモ１メモ２メモ３");
  EXPECT_EQ(form.Button("SaveButton")->text(), "保存（F1）");
  EXPECT_EQ(form.Button("csvSave")->text(), "CSV保存（F2）");
  EXPECT_EQ(form.Button("QuitButoon")->text(), "終了（ESC）");
  EXPECT_EQ(form.dialog->findChild<QCheckBox*>("SaveMemoChk")->text(), "メモを保存");
}

TEST_F(SaveFilesForm, OpensOnTheProposedNameAllOfItSelected) {
  site_.Keep("一");
  site_.Keep("二");
  const auto form = Open();
  EXPECT_EQ(form.Focused(), "SaveNameText");
  EXPECT_EQ(form.Box("SaveNameText")->selectedText().toStdString(), "異ネジ高強度  2026/11/21 09:00:00");
  EXPECT_EQ(form.Entries(), "二|一|");
  EXPECT_TRUE(form.Shows("SaveMemoChk"));
}

TEST_F(SaveFilesForm, OfFloorsAndPartsHasNoTickForMemos) {
  EXPECT_FALSE(Open(TallyKind::floor).Shows("SaveMemoChk"));
  EXPECT_FALSE(Open(TallyKind::part).Shows("SaveMemoChk"));
}

TEST_F(SaveFilesForm, ACommaIsRefusedAtTheKeystroke) {
  auto form = Open();
  form.Type("基,");
  EXPECT_EQ(site_.Told(), "注意: 「 , 」は使えません。他の文字に変えてください|");
  EXPECT_EQ(form.Text("SaveNameText"), "基");
  EXPECT_EQ(form.Focused(), "SaveNameText");
  form.Type("礎");
  EXPECT_EQ(form.Text("SaveNameText"), "基礎");
}

TEST_F(SaveFilesForm, ARefusedCharacterIsGoneWhileItsMessageIsShown) {
  auto form = Open();
  std::string shown;
  Services.Messages = [&](std::string_view, std::string_view, MessageButtons) {
    shown = form.Text("SaveNameText");
    return MessageAnswer::ok;
  };
  form.Type("基,");
  EXPECT_EQ(shown, "基");
}

TEST_F(SaveFilesForm, ARefusedCharacterLeavesTheCursorWhereItWas) {
  auto form = Open();
  form.Type("基礎");
  form.Key(Qt::Key_Left);
  form.Type("'");
  form.Type("本");
  EXPECT_EQ(form.Text("SaveNameText"), "基本礎");
}

TEST_F(SaveFilesForm, ARefusedCharacterOverASelectionLeavesTheName) {
  auto form = Open();
  form.Type("#");
  EXPECT_EQ(form.Text("SaveNameText"), kProposed);
}

TEST_F(SaveFilesForm, APastedTextWithARefusedCharacterIsRefusedWhole) {
  auto form = Open();
  form.Type("基礎");
  form.Paste("本;体");
  EXPECT_EQ(site_.Told(), "注意: 「 ; 」は使えません。他の文字に変えてください|");
  EXPECT_EQ(form.Text("SaveNameText"), "基礎");
}

TEST_F(SaveFilesForm, F1SavesWhatWasTypedAndCloses) {
  auto form = Open(TallyKind::page, {"一", "", ""});
  form.Type("基礎");
  form.Box("txtMemo_1")->setText("二");
  form.Key(Qt::Key_F1);
  EXPECT_FALSE(form.dialog->isVisible());
  EXPECT_THAT(site_.Lines("SELECT 重量集計名称,集計区分,メモ１,メモ２,メモ３ FROM 重量集計名称"),
              testing::ElementsAre("基礎|2|一|二|null"));
}

TEST_F(SaveFilesForm, WithoutTheTickNoMemoIsKept) {
  auto form = Open(TallyKind::page, {"一", "", ""});
  form.dialog->findChild<QCheckBox*>("SaveMemoChk")->click();
  form.Key(Qt::Key_F1);
  EXPECT_THAT(site_.Lines("SELECT メモ１ FROM 重量集計名称"), testing::ElementsAre("null"));
}

TEST_F(SaveFilesForm, TheProposedNameIsSavedAsItStands) {
  auto form = Open();
  form.Key(Qt::Key_F1);
  EXPECT_EQ(site_.Names(), std::string(kProposed) + "|");
}

TEST_F(SaveFilesForm, MessagesLeadBackToTheName) {
  auto form = Open();
  form.Box("txtMemo_0")->setFocus();
  site_.Answer(MessageAnswer::no);
  form.Key(Qt::Key_F1);
  EXPECT_EQ(form.Focused(), "SaveNameText");
  form.Box("SaveNameText")->clear();
  form.Type(" ");
  form.Box("txtMemo_0")->setFocus();
  form.Key(Qt::Key_F1);
  EXPECT_EQ(site_.Messages().back().title, "入力確認");
  EXPECT_EQ(form.Focused(), "SaveNameText");
}

TEST_F(SaveFilesForm, ANoToTheOverwriteTellsInTheBoxAndSelectsIt) {
  site_.Keep("基礎");
  site_.Answer(MessageAnswer::no);
  auto form = Open();
  form.Type("基礎");
  form.Key(Qt::Key_F1);
  EXPECT_EQ(form.Text("SaveNameText"), "違う名前を入力してください");
  EXPECT_TRUE(form.Box("SaveNameText")->hasSelectedText());
  form.Type("躯体");
  form.Key(Qt::Key_F1);
  EXPECT_EQ(site_.Names(), "躯体|基礎|");
}

TEST_F(SaveFilesForm, AnEmptyBoxTakesTheEntryThatWasClicked) {
  site_.Keep("一");
  site_.Keep("二");
  auto form = Open();
  form.Key(Qt::Key_Delete);
  form.List()->setCurrentRow(1);
  form.Key(Qt::Key_F1);
  EXPECT_THAT(site_.Lines("SELECT 作成日 FROM 重量集計名称 WHERE 重量集計名称='一'"),
              testing::ElementsAre("20261121"));
}

TEST_F(SaveFilesForm, AnEntryThatTheFocusOnlyPassedIsNotTaken) {
  site_.Keep("一");
  auto form = Open();
  form.Key(Qt::Key_Delete);
  form.Key(Qt::Key_Tab);
  EXPECT_EQ(form.Focused(), "List1");
  form.Key(Qt::Key_F1);
  EXPECT_EQ(site_.Told(), "入力確認: 何も入力されていません\n名前を入力してください|");
}

TEST_F(SaveFilesForm, F2OpensTheCsvDialogAndEscLeaves) {
  int opened = 0;
  parts_.export_csv = [&](const CsvOfTally&) { ++opened; };
  auto form = Open();
  form.Key(Qt::Key_F2);
  EXPECT_EQ(opened, 1);
  EXPECT_TRUE(form.dialog->isVisible());
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.dialog->isVisible());
  EXPECT_EQ(site_.Names(), "");
}

TEST_F(SaveFilesForm, EnterInTheNameNeitherSavesNorCloses) {
  auto form = Open();
  form.Key(Qt::Key_Return);
  EXPECT_TRUE(form.dialog->isVisible());
  EXPECT_EQ(site_.Names(), "");
}

}  // namespace rbt::test
