// SPDX-License-Identifier: MIT
#include "desktop/preview_save.h"

#include <deque>
#include <fstream>

#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/preview_form.h"
#include "platform/files/files.h"
#include "platform/print/paper.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "support/desktop/key_press.h"
#include "support/environment_variable.h"
#include "support/kept_services.h"
#include "support/temporary_folder.h"

namespace rbt::test {

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// A preview whose user has a documents folder; dialogs and messages are scripted.
class SavedPreview : public testing::Test {
 protected:
  SavedPreview() {
    fs::create_directory(documents);
    Services.Messages = [this](std::string_view text, std::string_view title, MessageButtons) {
      messages.emplace_back(text);
      EXPECT_EQ(title, "印刷プレビュー");
      return answer;
    };
    Services.Clock = test::StandingClock({.year = 2026, .month = 11, .day = 21});
    Open("");
  }

  void Open(const std::string& document_title) {
    PreviewParts parts;
    parts.ask_file = [this](QWidget&, const fs::path& offered) { return Ask(offered); };
    PrintedDocument document{"PDF", kPaperA4, kPortrait, {}, document_title};
    document.pages = {
        {PrintedText{.x = 1440, .y = 1440, .text = "鉄筋", .font_name = "ＭＳ ゴシック", .font_size = 10}}};
    form = std::make_unique<PreviewForm>(std::vector{document, document}, std::move(parts));
    form->show();
    form->activateWindow();
    Settle();
  }

  /// The user's next answer: a file, or what was offered where it is empty; turns back when none is left.
  std::optional<fs::path> Ask(const fs::path& offered) {
    offers.push_back(offered);
    if (names.empty()) return std::nullopt;
    fs::path name = names.front();
    names.pop_front();
    return name.empty() ? offered : name;
  }
  void Save() { EXPECT_TRUE(Press(*form, Qt::Key_F7)); }
  static bool IsPdf(const fs::path& file) { return ReadFileBytes(file).starts_with("%PDF-"); }
  fs::path Put(const fs::path& file) const {
    std::ofstream(file) << "old";
    return file;
  }

  const TemporaryFolder folder;
  const fs::path documents = folder / "Documents";
  const EnvironmentVariable home{"HOME", folder.Path().string()};
  const EnvironmentVariable configuration{"XDG_CONFIG_HOME", (folder / "none").string()};
  MessageAnswer answer = MessageAnswer::ok;
  std::deque<fs::path> names;
  std::vector<fs::path> offers;
  std::vector<std::string> messages;
  std::unique_ptr<PreviewForm> form;

 private:
  test::KeptServices services_;
};

}  // namespace

TEST_F(SavedPreview, GoesToTheDocumentsFolderUnderTodaysNameAndTellsThePath) {
  names = {""};
  Save();
  const fs::path file = documents / "集計表-20261121.pdf";
  EXPECT_THAT(offers, ElementsAre(file));
  EXPECT_TRUE(IsPdf(file));
  EXPECT_THAT(messages, ElementsAre("「" + file.string() + "」に保存しました。"));
  EXPECT_TRUE(form->isVisible());
}

TEST_F(SavedPreview, OffersANameThatIsNotThereYet) {
  Put(documents / "集計表-20261121.pdf");
  Put(documents / "集計表-20261121-2.pdf");
  names = {""};
  Save();
  EXPECT_THAT(offers, ElementsAre(documents / "集計表-20261121-3.pdf"));
  EXPECT_TRUE(IsPdf(documents / "集計表-20261121-3.pdf"));
  EXPECT_EQ(ReadFileBytes(documents / "集計表-20261121.pdf"), "old");
}

TEST_F(SavedPreview, OffersTheDocumentsTitleAsItsName) {
  Open("重量対比表 見本町集合住宅");
  Save();
  EXPECT_THAT(offers, ElementsAre(documents / "重量対比表 見本町集合住宅-20261121.pdf"));
}

TEST_F(SavedPreview, OffersNoCharacterThatAFileNameCannotHold) {
  EXPECT_EQ(OfferedPdfFile("../A\\B:C*D?\"<E>|\n"), documents / "_._A_B_C_D___E___-20261121.pdf");
  const fs::path longest = OfferedPdfFile(ReplaceAll(std::string(300, 'x'), "x", "鉄"));
  EXPECT_EQ(longest.parent_path(), documents);
  EXPECT_LE(longest.filename().string().size(), 255U);
}

TEST_F(SavedPreview, AddsTheExtensionWhereItIsMissing) {
  names = {folder / "見積", folder / "A.PDF"};
  Save();
  Save();
  EXPECT_TRUE(IsPdf(folder / "見積.pdf"));
  EXPECT_TRUE(IsPdf(folder / "A.PDF"));
}

TEST_F(SavedPreview, ReplacesAFileOnlyAfterAYes) {
  const fs::path file = Put(folder / "a.pdf");
  names = {file};
  answer = MessageAnswer::no;
  Save();
  EXPECT_EQ(ReadFileBytes(file), "old");
  EXPECT_THAT(messages, ElementsAre(AllOf(HasSubstr(file.string()), HasSubstr("置き換えますか"))));
  EXPECT_THAT(offers, ElementsAre(documents / "集計表-20261121.pdf", file)) << "a no asks for another name";
  names = {file};
  answer = MessageAnswer::yes;
  Save();
  EXPECT_TRUE(IsPdf(file));
}

TEST_F(SavedPreview, AsksBeforeItReplacesAFileWhoseExtensionWasLeftOut) {
  const fs::path file = Put(folder / "a.pdf");
  names = {folder / "a"};
  answer = MessageAnswer::no;
  Save();
  EXPECT_EQ(ReadFileBytes(file), "old");
}

TEST_F(SavedPreview, AFileThatCannotBeWrittenIsNamedWithTheCauseAndAnotherIsAskedFor) {
  const fs::path file = folder / "none" / "a.pdf";
  names = {file, folder / "b.pdf"};
  Save();
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_THAT(messages[0], AllOf(StartsWith("「" + file.string() + "」に保存できません。"),
                                 HasSubstr("No such file or directory")));
  EXPECT_TRUE(IsPdf(folder / "b.pdf"));
  EXPECT_TRUE(form->isVisible());
}

TEST_F(SavedPreview, ADatabaseIsNeverReplacedAndNothingIsPutBesideOne) {
  Services.Root = folder / "root";
  fs::create_directories(folder / "root/DATA");
  const std::string jet("\0\1\0\0Standard Jet DB\0", 20);
  std::ofstream(folder / "site.pdf", std::ios::binary) << jet;
  names = {folder / "site.pdf", folder / "root/DATA/a.pdf", folder / "b.pdf"};
  answer = MessageAnswer::yes;
  Save();
  EXPECT_EQ(ReadFileBytes(folder / "site.pdf"), jet);
  EXPECT_FALSE(fs::exists(folder / "root/DATA/a.pdf"));
  EXPECT_TRUE(IsPdf(folder / "b.pdf"));
  ASSERT_EQ(messages.size(), 4U) << "whether to replace, twice why not, and what was saved";
}

TEST_F(SavedPreview, AFolderInPlaceOfTheFileIsToldAndStays) {
  const fs::path file = folder / "a.pdf";
  fs::create_directory(file);
  names = {file};
  answer = MessageAnswer::yes;
  Save();
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_THAT(messages[1], HasSubstr("に保存できません。"));
  EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(SavedPreview, TurnedBackInTheDialogNothingIsWritten) {
  Save();
  EXPECT_EQ(offers.size(), 1U);
  EXPECT_TRUE(messages.empty());
  EXPECT_TRUE(fs::is_empty(documents));
}

TEST_F(SavedPreview, TheDialogOffersTheNameEnterTakesItAndEscTurnsBack) {
  QString name;
  QString title;
  const auto ask = [&](int key) {
    QTimer::singleShot(0, [&, key] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      title = dialog->windowTitle();
      name = dialog->findChild<QLineEdit*>("fileNameEdit")->text();
      Press(*dialog, key);
    });
    return AskPdfFile(*form, documents / "集計表-20261121.pdf");
  };
  EXPECT_EQ(ask(Qt::Key_Return), std::optional(documents / "集計表-20261121.pdf"));
  EXPECT_EQ(title, "ＰＤＦ保存");
  EXPECT_EQ(name, "集計表-20261121.pdf");
  Put(documents / "集計表-20261121.pdf");
  EXPECT_EQ(ask(Qt::Key_Return), std::optional(documents / "集計表-20261121.pdf")) << "who asked asks that";
  EXPECT_EQ(ask(Qt::Key_Escape), std::nullopt);
}

}  // namespace rbt::test
