// SPDX-License-Identifier: MIT
#include "session/archive/backup_presenter.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "platform/text/cp932.h"
#include "session/archive/saved_site.h"
#include "support/child_process.h"
#include "support/user_home.h"

namespace rbt::test {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kName = "試験工事一括集計20261121090000.csv";
constexpr const char* kAskedForCsv =
    "実行の確認: CSVファイルを保存しますか？\n\nファイル名：試験工事一括集計20261121090000.csv|";

CsvOfTally FloorTally123() {
  FloorTables tables;
  tables.KaiGyou.push_back({"1階", {}, {}});
  tables.KaiGyou.push_back({"合　計", {}, {}});
  tables.KaiGyouKai = {1, 0};
  CsvOfTally tally;
  tally.result.kind = TallyKind::floor;
  tally.result.tables = tables;
  tally.data_name = "全階";
  return tally;
}

class BackUpDialog : public testing::Test {
 protected:
  BackUpDialog() {
    fs::create_directories(home_ / "usb/csv");
    parts_.volumes = {{"/", "/"}, {"usb", home_ / "usb"}, {"none", home_ / "none"}};
    parts_.choose_folder = [this](const fs::path& from) {
      asked_from_ = from;
      return chosen_;
    };
  }

  BackUpPresenter& Open(CsvSubject subject) {
    dialog_ = std::make_unique<BackUpPresenter>(std::move(subject), parts_);
    return *dialog_;
  }
  BackUpPresenter& Open() { return Open(CsvOfTally{.result = SmallTally(), .memos = {"一", "", "三"}}); }
  /// The files of a folder below the home folder, by name.
  std::vector<std::string> FilesIn(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(home_ / folder)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }
  std::string TextOf(const std::string& file) const { return FromCp932(ReadFileBytes(home_ / file)); }

  UserHome home_;
  SavedSite site_;
  BackUpParts parts_;
  std::optional<fs::path> chosen_;
  fs::path asked_from_;
  std::unique_ptr<BackUpPresenter> dialog_;
};

}  // namespace

TEST_F(BackUpDialog, OpensOnTheDocumentsFolderAndItsDrive) {
  const BackUpView view = Open().View();
  EXPECT_THAT(view.drives, ElementsAre("/", "usb", "none"));
  EXPECT_EQ(view.drive, 0U);
  EXPECT_EQ(view.folder, (home_ / "Documents").string());
  EXPECT_FALSE(view.left);
  EXPECT_EQ(site_.Told(), "");
}

TEST_F(BackUpDialog, ADriveLeadsToItsOwnFolder) {
  Open().SelectDrive(1);
  EXPECT_EQ(dialog_->View().drive, 1U);
  EXPECT_EQ(dialog_->View().folder, (home_ / "usb").string());
  EXPECT_EQ(site_.Told(), "");
}

TEST_F(BackUpDialog, ADriveThatCannotBeReadIsToldAndTheOldOneComesBack) {
  Open().SelectDrive(1);
  dialog_->SelectDrive(2);
  EXPECT_EQ(site_.Told(), "ドライブエラー: ドライブの準備が出来ていません。|");
  EXPECT_EQ(dialog_->View().drive, 1U);
  EXPECT_EQ(dialog_->View().folder, (home_ / "usb").string());
}

TEST_F(BackUpDialog, AFolderIsChosenFromTheOneThatIsShown) {
  chosen_ = home_ / "usb/csv";
  Open().SelectDrive(1);
  dialog_->ChooseFolder();
  EXPECT_EQ(asked_from_, home_ / "usb");
  EXPECT_EQ(dialog_->View().folder, (home_ / "usb/csv").string());
  EXPECT_EQ(dialog_->View().drive, 1U) << "the inner one of two drives";
  chosen_.reset();
  dialog_->ChooseFolder();
  EXPECT_EQ(dialog_->View().folder, (home_ / "usb/csv").string()) << "turned back";
}

TEST_F(BackUpDialog, TheDriveOfTheFolderChosenAgainKeepsTheFolder) {
  chosen_ = home_ / "usb/csv";
  Open().ChooseFolder();
  dialog_->SelectDrive(1);
  EXPECT_EQ(dialog_->View().folder, (home_ / "usb/csv").string());
}

TEST_F(BackUpDialog, AFolderOnNoListedDriveSelectsNone) {
  parts_.volumes = {{"usb", home_ / "usb"}};
  EXPECT_EQ(Open().View().drive, std::nullopt);
}

TEST_F(BackUpDialog, SavesIntoTheFolderAndEnds) {
  chosen_ = home_ / "usb/csv";
  Open().ChooseFolder();
  dialog_->Save();
  EXPECT_EQ(site_.Told(), kAskedForCsv + std::string("終了の確認: ファイル名 [ ") + kName + " ]  を　[ " +
                              (home_ / "usb/csv").string() + " ] に書き出しました|");
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::ok_cancel);
  EXPECT_TRUE(dialog_->View().left);
  EXPECT_THAT(FilesIn("usb/csv"), ElementsAre(kName));
}

TEST_F(BackUpDialog, SavesOnTheDesktopAndInTheDocumentsFolder) {
  Open().SaveOnDesktop();
  EXPECT_EQ(site_.Told(), kAskedForCsv + std::string("終了の確認: ファイル名 [ ") + kName +
                              " ]  を　デスクトップに書き出しました。|");
  Open().SaveInDocuments();
  EXPECT_EQ(site_.Told(2), kAskedForCsv + std::string("終了の確認: ファイル名 [ ") + kName +
                               " ]  を　マイドキュメントに書き出しました。|");
  EXPECT_THAT(FilesIn("Desktop"), ElementsAre(kName));
  EXPECT_THAT(FilesIn("Documents"), ElementsAre(kName));
}

TEST_F(BackUpDialog, WithoutADesktopAndADocumentsFolderItSavesIntoTheFolderThatIsShown) {
  for (const char* folder : {"Desktop", "Documents"}) fs::remove(home_ / folder);
  EXPECT_EQ(Open().View().folder, home_.Path().string());
  dialog_->SelectDrive(1);
  dialog_->SaveOnDesktop();
  EXPECT_THAT(site_.Messages().back().text, testing::EndsWith(" ]  を　デスクトップに書き出しました。"));
  EXPECT_THAT(FilesIn("usb"), testing::UnorderedElementsAre("csv", kName));
  chosen_ = home_ / "usb/csv";
  Open().ChooseFolder();
  dialog_->SaveInDocuments();
  EXPECT_THAT(site_.Messages().back().text, testing::EndsWith(" ]  を　マイドキュメントに書き出しました。"));
  EXPECT_THAT(FilesIn("usb/csv"), ElementsAre(kName));
  EXPECT_FALSE(fs::exists(home_ / kName));
}

TEST_F(BackUpDialog, TellsTheSiteOfTheTally) {
  Open().SaveInDocuments();
  const std::string text = TextOf(std::string("Documents/") + kName);
  EXPECT_THAT(text,
              StartsWith("\"工事No\",1,\"工事名\",\"試験工事\",\"取引先\",\"試験商店\",\"総重量\",135\r\n\r\n"
                         "\"D10\","));
  EXPECT_THAT(text, HasSubstr("\"6.0 m\",0,0,0,0,0,0,10,135,"));
  EXPECT_THAT(text, Not(HasSubstr("13.0 m")));
  EXPECT_THAT(text, HasSubstr("\r\n\r\n\"メモ1\",\"一\"\r\n\"メモ2\",\"\"\r\n\"メモ3\",\"三\"\r\n"));
}

TEST_F(BackUpDialog, TheThirteenMetreColumnGoesByItsSetting) {
  Settings.Use13mColumn = 1;
  Open().SaveInDocuments();
  EXPECT_THAT(TextOf(std::string("Documents/") + kName), HasSubstr("\"13.0 m\",0,0,"));
}

TEST_F(BackUpDialog, ACancelWritesNothingAndStays) {
  site_.Answer(MessageAnswer::cancel);
  Open().SaveInDocuments();
  EXPECT_EQ(site_.Told(), kAskedForCsv);
  EXPECT_FALSE(dialog_->View().left);
  EXPECT_THAT(FilesIn("Documents"), ElementsAre());
}

TEST_F(BackUpDialog, AFileThatIsThereIsAskedAbout) {
  std::ofstream(home_ / "Documents" / kName) << "old";
  site_.Answer(MessageAnswer::ok);
  site_.Answer(MessageAnswer::no);
  Open().SaveInDocuments();
  EXPECT_EQ(site_.Told(), kAskedForCsv + std::string("実行の確認: 「") +
                              (home_ / "Documents" / kName).string() +
                              "」は既にあります。\n置き換えますか？|");
  EXPECT_EQ(site_.Messages()[1].buttons, MessageButtons::yes_no);
  EXPECT_FALSE(dialog_->View().left);
  EXPECT_EQ(TextOf(std::string("Documents/") + kName), "old");
  dialog_->SaveInDocuments();
  EXPECT_TRUE(dialog_->View().left);
  EXPECT_THAT(TextOf(std::string("Documents/") + kName), StartsWith("\"工事No\""));
}

TEST_F(BackUpDialog, AFloorTallyIsAskedForItsLayout) {
  Open(FloorTally123()).SaveInDocuments();
  EXPECT_THAT(site_.Told(1), StartsWith("集計方法の確認: データ名：全階\nYes=階合計表   No=階部位径|"));
  EXPECT_EQ(site_.Messages()[1].buttons, MessageButtons::yes_no_cancel);
  const std::string file = "Documents/試験工事階別集計20261121090000.csv";
  EXPECT_THAT(TextOf(file), HasSubstr("\"階\",\"部位1\","));
  site_.Answer(MessageAnswer::ok);
  site_.Answer(MessageAnswer::yes);
  site_.Answer(MessageAnswer::no);
  Open(FloorTally123()).SaveInDocuments();
  EXPECT_THAT(TextOf(file), StartsWith("\"1階\",\"部位\",\"D10\","));
}

TEST_F(BackUpDialog, TurningBackAtTheLayoutWritesNothingAndStays) {
  site_.Answer(MessageAnswer::ok);
  site_.Answer(MessageAnswer::cancel);
  Open(FloorTally123()).SaveInDocuments();
  EXPECT_EQ(site_.Messages().size(), 2U);
  EXPECT_FALSE(dialog_->View().left);
  EXPECT_THAT(FilesIn("Documents"), ElementsAre());
}

TEST_F(BackUpDialog, ATallyWithoutANameIsAskedForItsLayoutByItsFile) {
  CsvOfTally tally = FloorTally123();
  tally.data_name.clear();
  Open(tally).SaveInDocuments();
  EXPECT_THAT(site_.Told(1), StartsWith("集計方法の確認: データ名：試験工事階別集計20261121090000.csv\n"));
}

TEST_F(BackUpDialog, WritesTheListOfRegisteredNames) {
  Open(CsvOfNames{{{1, "基礎", true, Currency::FromInteger(10), Currency::FromInteger(9)}}})
      .SaveInDocuments();
  EXPECT_EQ(TextOf("Documents/試験工事登録名集計20261121090000.csv"),
            "\"工事No\",1,\"工事名\",\"試験工事\",\"取引先\",\"試験商店\",\"総重量\",10\r\n"
            "\"No\",\"登録名\",\"定尺重量\",\"取付重量\"\r\n"
            "1,\"基礎\",10,9\r\n");
}

TEST_F(BackUpDialog, TheClosingMessageTellsWhatTheCodePageLacks) {
  Open(CsvOfTally{.result = SmallTally(), .memos = {"😀棟", "", ""}}).SaveInDocuments();
  EXPECT_THAT(site_.Messages().back().text,
              testing::EndsWith("に書き出しました。\n\n次の文字は「?」に置き換えました： 😀"));
  EXPECT_THAT(TextOf(std::string("Documents/") + kName), HasSubstr("\"メモ1\",\"?棟\"\r\n"));
}

TEST_F(BackUpDialog, AFolderOfTheDatabasesIsRefusedAndTheDialogStays) {
  chosen_ = site_.Data("");
  Open().ChooseFolder();
  dialog_->Save();
  EXPECT_THAT(site_.Told(), StartsWith("バックアップ: 「"));
  EXPECT_THAT(site_.Told(), HasSubstr("」に保存できません。\n"));
  EXPECT_EQ(site_.Messages().size(), 1U) << "nothing was asked";
  EXPECT_FALSE(dialog_->View().left);
}

TEST_F(BackUpDialog, AFailedWriteIsToldAndEndsTheDialogWithNothingWritten) {
  chosen_ = home_ / "gone";
  Open().ChooseFolder();
  dialog_->Save();
  EXPECT_THAT(site_.Told(1), StartsWith("バックアップ: 「" + (home_ / "gone").string()));
  EXPECT_EQ(site_.Messages().size(), 2U);
  EXPECT_TRUE(dialog_->View().left);
  EXPECT_FALSE(fs::exists(home_ / "gone"));
}

TEST_F(BackUpDialog, AFullDiskIsToldAndLeavesTheFileThatWasThere) {
  std::ofstream(home_ / "Documents" / kName) << "old";
  Open();
  EXPECT_TRUE(WithFilesOfAtMost(64, [&] {
    dialog_->SaveInDocuments();
    EXPECT_THAT(site_.Messages().back().text, HasSubstr("」に保存できません。\n"));
    EXPECT_EQ(site_.Messages().back().buttons, MessageButtons::ok_to_warning);
    EXPECT_TRUE(dialog_->View().left);
  }));
  EXPECT_EQ(TextOf(std::string("Documents/") + kName), "old");
  EXPECT_THAT(FilesIn("Documents"), ElementsAre(kName));
}

TEST_F(BackUpDialog, ASecondFileOfTheSameSecondIsAskedAbout) {
  Open().SaveInDocuments();
  const std::size_t before = site_.Messages().size();
  Open().SaveInDocuments();
  EXPECT_THAT(site_.Told(before + 1),
              StartsWith("実行の確認: 「" + (home_ / "Documents" / kName).string() + "」は既にあります。"));
  EXPECT_THAT(FilesIn("Documents"), ElementsAre(kName));
}

TEST_F(BackUpDialog, LeavingWritesNothing) {
  Open().Leave();
  EXPECT_TRUE(dialog_->View().left);
  EXPECT_EQ(site_.Told(), "");
}

}  // namespace rbt::test
