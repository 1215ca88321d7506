// SPDX-License-Identifier: MIT
#include "screens/settings/setcolor.h"

#include <QColorDialog>
#include <QLabel>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/colour.h"
#include "platform/files/files.h"
#include "screens/settings/colour_box.h"
#include "shell/config/settings.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

using testing::HasSubstr;

// Red stands in the low byte: 255 is red, 255 * 65536 = 16711680 blue.
constexpr std::int32_t kRed = 255;
constexpr std::int32_t kBlue = 16711680;

/// SETCOLOR over a root, the colour dialog scripted.
class ColourForm : public testing::Test {
 protected:
  ColourForm() {
    Services.Colours = [this](std::string_view title, std::int32_t rgb) {
      titles.emplace_back(title);
      offered.push_back(rgb);
      return answer;
    };
  }

  void Open() {
    form = std::make_unique<SETCOLOR>();
    form->show();
    form->activateWindow();
    Settle();
  }
  ColourBox& Box(const char* name) const { return *form->findChild<ColourBox*>(name); }
  std::string Stored(const IniKey& key) const { return ReadSteelIni(key); }

  const SiteFixture site;
  std::optional<std::int32_t> answer;
  std::vector<std::string> titles;
  std::vector<std::int32_t> offered;
  std::unique_ptr<SETCOLOR> form;
};

}  // namespace

TEST(Colours, KeepRedInTheLowByte) {
  EXPECT_EQ(RgbOfColour(QColor(255, 0, 0)), kRed);
  EXPECT_EQ(RgbOfColour(QColor(0, 0, 255)), kBlue);
  EXPECT_EQ(RgbOfColour(QColor(1, 2, 3)), 0x030201);
  EXPECT_EQ(ColourOfRgb(16777152), QColor(0xC0, 0xFF, 0xFF));
  EXPECT_EQ(ColourOfRgb(kRed), QColor(Qt::red));
}

TEST_F(ColourForm, BearsItsCaptions) {
  Open();
  EXPECT_EQ(form->windowTitle(), "太さ色設定");
  EXPECT_EQ(form->findChild<QLabel*>("lblRowColor")->text(), "行の背景色");
  EXPECT_EQ(form->findChild<QLabel*>("lblForeColor")->text(), "文字の色");
  EXPECT_EQ(form->findChild<QLabel*>("lblHint")->text(), "色を変更したい四角をマウスでクリックし下さい。");
  EXPECT_EQ(form->findChild<QLabel*>("lblPalette")->text(),
            "カラー・パッレトは、太さの右側の箱をクリックすると表示します。");
  EXPECT_EQ(form->findChild<QPushButton*>("btnRejist")->text(), "登 録 終 了 （F1）");
  EXPECT_EQ(form->findChild<QPushButton*>("btnExit")->text(), "取     消 （Esc）");
}

TEST_F(ColourForm, OpensOnTheStoredColoursAndOnDefaultsWhereAKeyIsEmpty) {
  site.SetIni(kSteelFile, "加工帳", "行の背景色", "255");
  site.SetIni(kSteelFile, "加工帳", "文字の色", "");
  Open();
  EXPECT_EQ(Box("picRowColor").Rgb(), kRed);
  EXPECT_EQ(Box("picForeColor").Rgb(), 0);
  site.SetIni(kSteelFile, "加工帳", "行の背景色", "");
  site.SetIni(kSteelFile, "加工帳", "文字の色", "16711680");
  Open();
  EXPECT_EQ(Box("picRowColor").Rgb(), 16777152);
  EXPECT_EQ(Box("picForeColor").Rgb(), kBlue);
}

TEST_F(ColourForm, ABoxTakesTheChosenColourAndF1StoresBothAsDecimals) {
  site.SetIni(kSteelFile, "加工帳", "行の背景色", "128");
  Open();
  answer = kBlue;
  Box("picRowColor").click();
  answer = kRed;
  Box("picForeColor").click();
  EXPECT_EQ(titles, std::vector<std::string>({"色選択", "色選択"}));
  EXPECT_EQ(offered, std::vector<std::int32_t>({128, 0}));
  EXPECT_EQ(Stored(kGridRowBackColorKey), "128") << "not before F1";
  EXPECT_TRUE(Press(*form, Qt::Key_F1));
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Stored(kGridRowBackColorKey), "16711680");
  EXPECT_EQ(Stored(kGridRowForeColorKey), "255");
}

TEST_F(ColourForm, EnterAndSpaceOnABoxAskForItsColour) {
  Open();
  ASSERT_EQ(form->focusWidget(), &Box("picRowColor"));
  answer = kRed;
  Press(*form, Qt::Key_Return);
  EXPECT_EQ(Box("picRowColor").Rgb(), kRed);
  Press(*form, Qt::Key_Down);
  ASSERT_EQ(form->focusWidget(), &Box("picForeColor"));
  answer = kBlue;
  Press(*form, Qt::Key_Space);
  EXPECT_EQ(Box("picForeColor").Rgb(), kBlue);
}

TEST_F(ColourForm, TurnedBackInTheDialogABoxKeepsItsColour) {
  Open();
  Box("picRowColor").click();
  EXPECT_EQ(titles.size(), 1U);
  EXPECT_EQ(Box("picRowColor").Rgb(), 16777152);
}

TEST_F(ColourForm, AColourEnteredAndCancelledLeavesTheFileUntouched) {
  const std::filesystem::path file = site.Data(kSteelFile);
  for (const bool by_key : {true, false}) {
    const std::string before = ReadFileBytes(file);
    const auto written = std::filesystem::last_write_time(file);
    Open();
    answer = kRed;
    Box("picRowColor").click();
    if (by_key) {
      EXPECT_TRUE(Press(*form, Qt::Key_Escape));
    } else {
      form->findChild<QPushButton*>("btnExit")->click();
    }
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(ReadFileBytes(file), before);
    EXPECT_EQ(std::filesystem::last_write_time(file), written);
  }
}

TEST_F(ColourForm, AFileThatCannotBeWrittenIsNamedAndTheFormStays) {
  Open();
  std::filesystem::remove(site.Data(kSteelFile));
  std::filesystem::create_directory(site.Data(kSteelFile));
  Press(*form, Qt::Key_F1);
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_THAT(site.Messages()[0].text, HasSubstr(kSteelFile));
  EXPECT_EQ(site.Messages()[0].title, "太さ色設定");
  EXPECT_TRUE(form->isVisible());
}

TEST_F(ColourForm, TheDialogBearsItsTitleAndGivesTheColourThatWasTaken) {
  Open();
  Services.Colours = AskColour;
  QString title;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    title = dialog->windowTitle();
    dialog->setCurrentColor(QColor(1, 2, 3));
    dialog->accept();
  });
  Box("picForeColor").click();
  EXPECT_EQ(title, "色選択");
  EXPECT_EQ(Box("picForeColor").Rgb(), 0x030201);
}

}  // namespace rbt::test
