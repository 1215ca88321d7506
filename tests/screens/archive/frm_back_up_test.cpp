// SPDX-License-Identifier: MIT
#include "screens/archive/frm_back_up.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/archive/dialog_driver.h"
#include "screens/archive/mounted_volumes.h"
#include "screens/archive/saved_tally_dialogs.h"
#include "support/desktop/key_press.h"
#include "support/desktop/next_dialog.h"
#include "support/user_home.h"

namespace rbt::test {

namespace {

namespace fs = std::filesystem;

class FrmBackUpForm : public testing::Test {
 protected:
  FrmBackUpForm() {
    fs::create_directories(home_ / "usb/csv");
    parts_.volumes = {{"/", "/"}, {"usb", home_ / "usb"}, {"none", home_ / "none"}};
    parts_.choose_folder = [this](const fs::path&) { return home_ / "usb/csv"; };
  }

  DialogDriver<FrmBackUp> Open() {
    return DialogDriver<FrmBackUp>(std::make_unique<FrmBackUp>(CsvOfTally{.result = SmallTally()}, parts_));
  }
  static QComboBox& Drives(const DialogDriver<FrmBackUp>& form) {
    return *form.dialog->findChild<QComboBox*>("Drive1");
  }
  bool IsWritten(const std::string& folder) const {
    return fs::exists(home_ / folder / "試験工事一括集計20261121090000.csv");
  }

  UserHome home_;
  SavedSite site_;
  BackUpParts parts_;
};

}  // namespace

TEST_F(FrmBackUpForm, BearsItsCaptions) {
  const auto form = Open();
  EXPECT_EQ(form.dialog->windowTitle(), "バックアップ");
  EXPECT_EQ(form.Label("lblDrive"), "バックアップ先のドライブ");
  EXPECT_EQ(form.Label("lblDir"), "バックアップ先のフォルダ");
  EXPECT_EQ(form.Button("btnSave")->text(), "保存");
  EXPECT_EQ(form.Button("saveDeskTop")->text(), "デスクトップに保存");
  EXPECT_EQ(form.Button("saveMyDoc")->text(), "マイドキュメントに保存");
  EXPECT_EQ(form.Button("btnEsc")->text(), "キャンセル");
}

TEST_F(FrmBackUpForm, ShowsDrivesAndFolder) {
  const auto form = Open();
  EXPECT_EQ(Drives(form).count(), 3);
  EXPECT_EQ(Drives(form).currentText(), "/");
  EXPECT_EQ(form.Text("Dir1"), (home_ / "Documents").string());
  EXPECT_EQ(form.Focused(), "btnSave");
}

TEST_F(FrmBackUpForm, AKeyInTheDrivesTakesTheNextAndAnUnreadableOneGoesBack) {
  auto form = Open();
  Drives(form).setFocus();
  form.Key(Qt::Key_Down);
  EXPECT_EQ(form.Text("Dir1"), (home_ / "usb").string());
  form.Key(Qt::Key_Down);
  EXPECT_EQ(site_.Told(), "ドライブエラー: ドライブの準備が出来ていません。|");
  EXPECT_EQ(Drives(form).currentText(), "usb");
  EXPECT_EQ(form.Text("Dir1"), (home_ / "usb").string());
}

TEST_F(FrmBackUpForm, ALookIntoTheDrivesThatChangesNothingKeepsTheFolder) {
  auto form = Open();
  form.Button("btnDir")->click();
  ASSERT_EQ(Drives(form).currentText(), "usb");
  emit Drives(form).activated(Drives(form).currentIndex());
  EXPECT_EQ(form.Text("Dir1"), (home_ / "usb/csv").string());
}

TEST_F(FrmBackUpForm, EnterSavesIntoTheChosenFolderAndCloses) {
  auto form = Open();
  form.Button("btnDir")->click();
  EXPECT_EQ(form.Text("Dir1"), (home_ / "usb/csv").string());
  form.Button("btnSave")->setFocus();
  form.Key(Qt::Key_Return);
  EXPECT_FALSE(form.dialog->isVisible());
  EXPECT_TRUE(IsWritten("usb/csv"));
}

TEST_F(FrmBackUpForm, TheOtherButtonsSaveOnTheDesktopAndInTheDocumentsFolder) {
  Open().Button("saveDeskTop")->click();
  EXPECT_TRUE(IsWritten("Desktop"));
  Open().Button("saveMyDoc")->click();
  EXPECT_TRUE(IsWritten("Documents"));
}

TEST_F(FrmBackUpForm, EscLeavesWithoutAWord) {
  auto form = Open();
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.dialog->isVisible());
  EXPECT_EQ(site_.Told(), "");
}

TEST_F(FrmBackUpForm, OpensFromTheSaveDialogOnItsTally) {
  std::string shown;
  QTimer::singleShot(0, [&] {
    QWidget* save = QApplication::activeModalWidget();
    if (save == nullptr) return;
    QTimer::singleShot(0, [&, save] {
      QWidget* csv = QApplication::activeModalWidget();
      shown = csv == nullptr ? "" : csv->objectName().toStdString();
      if (csv != nullptr && csv != save) csv->findChild<QPushButton*>("saveMyDoc")->click();
      save->close();
    });
    save->findChild<QPushButton*>("csvSave")->click();
  });
  SaveWithDialog(SmallTally(), {});
  EXPECT_EQ(shown, "FrmBackUp");
  EXPECT_TRUE(IsWritten("Documents"));
}

TEST(MountedVolumes, AreFoldersEachOnce) {
  const std::vector<Volume> volumes = MountedVolumes();
  ASSERT_FALSE(volumes.empty()) << "the root folder lies on one";
  for (std::size_t i = 0; i < volumes.size(); ++i) {
    EXPECT_TRUE(fs::is_directory(volumes[i].root)) << volumes[i].caption;
    EXPECT_THAT(volumes[i].caption, testing::StartsWith(volumes[i].root.string()));
    for (std::size_t k = 0; k < i; ++k) EXPECT_NE(volumes[k].root, volumes[i].root);
  }
}

TEST_F(FrmBackUpForm, LetsAnotherFolderBeChosen) {
  const fs::path usb = home_ / "usb";
  QStringList captions;
  const WithNextDialog choose([&](QWidget& dialog) {
    for (const auto* button : dialog.findChildren<QPushButton*>()) captions.append(button->text());
    captions.append(dialog.findChild<QLabel*>("fileNameLabel")->text());
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText("csv");
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(AskBackUpFolder(usb), usb / "csv");
  EXPECT_EQ(choose.met, "cdgFolder");
  EXPECT_THAT(captions, ::testing::UnorderedElementsAre("選択", "キャンセル", "フォルダ名："));
}

TEST_F(FrmBackUpForm, TakesTheFolderThatIsShownWhereNoneIsNamed) {
  const WithNextDialog take([](QWidget& dialog) { Press(dialog, Qt::Key_Return); });
  EXPECT_EQ(AskBackUpFolder(home_ / "usb"), home_ / "usb");
  EXPECT_EQ(take.met, "cdgFolder");
}

TEST_F(FrmBackUpForm, KeepsItsFolderWhereTheChoiceIsGivenUp) {
  const WithNextDialog give_up([](QWidget& dialog) { Press(dialog, Qt::Key_Escape); });
  EXPECT_EQ(AskBackUpFolder(home_ / "usb"), std::nullopt);
  EXPECT_EQ(give_up.met, "cdgFolder");
}

}  // namespace rbt::test
