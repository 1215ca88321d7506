// SPDX-License-Identifier: MIT
#include "screens/settings/setjs.h"

#include <fstream>
#include <set>

#include <QApplication>
#include <QCheckBox>
#include <QEnterEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/profile/registry.h"
#include "platform/system/paths.h"
#include "screens/settings/settings_forms.h"
#include "shell/config/settings.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

using testing::HasSubstr;

struct OptionRow {
  const char* frame;
  const char* option;
  const char* caption;
  const char* key;  ///< of Kakou, 重量集計
  const char* value;
};

constexpr OptionRow kOptions[] = {
    {"日付の表記", "optAD", "西暦", "日付表記", "1"},
    {"日付の表記", "optNenGou", "和暦", "日付表記", "2"},
    {"対比表の印字項目", "OptTaihiA", "太さ - 定重 - 取重 - 差引 - 圧接", "対比表項目", "1"},
    {"対比表の印字項目", "OptTaihiB", "太さ - 定重 - 圧接", "対比表項目", "2"},
    {"対比表の印字項目", "OptTaihiC", "太さ - 取重 - 圧接", "対比表項目", "3"},
    {"数量表の印字タイトル", "OptTitleA", "合計数量表", "数量表タイトル", "1"},
    {"数量表の印字タイトル", "OptTitleB", "材料明細表", "数量表タイトル", "2"},
    {"数量表の印字タイトル", "OptTitleC", "", "数量表タイトル", "3"},
    {"重量表の画面", "OptChangeColor_0", "変える", "一行おきの色分け", "1"},
    {"重量表の画面", "OptChangeColor_1", "変えない", "一行おきの色分け", "0"},
    {"重量表の画面", "OptShowWeight_0", "表示する", "明細画面重量表示", "1"},
    {"重量表の画面", "OptShowWeight_1", "表示しない", "明細画面重量表示", "0"},
    {"重量表の印字", "OptPrtZero_0", "する", "重量の無い太さの印字", "1"},
    {"重量表の印字", "OptPrtZero_1", "しない", "重量の無い太さの印字", "0"},
};

std::string Stored(const char* key) { return RegistryText("Kakou", "重量集計", key).value_or("(none)"); }

/// Puts a folder in the place of a file, so that it can be neither read nor written.
void Block(const std::filesystem::path& file) {
  std::filesystem::remove(file);
  std::filesystem::create_directories(file);
}

class SettingsForm : public testing::Test {
 protected:
  void Open() {
    form = std::make_unique<SETJS>();
    form->show();
    form->activateWindow();
    Settle();
  }
  QRadioButton& Option(const char* name) const { return *form->findChild<QRadioButton*>(name); }
  QCheckBox& Hoops() const { return *form->findChild<QCheckBox*>("AtsuCheck"); }
  QLineEdit& Title() const { return *form->findChild<QLineEdit*>("title"); }
  QPushButton& Button(const char* name) const { return *form->findChild<QPushButton*>(name); }
  std::string Hint() const { return form->findChild<QLabel*>("lblMsg")->text().toStdString(); }
  std::string Focused() const { return form->focusWidget()->objectName().toStdString(); }
  static std::string StoredTitle() { return ReadSteelIni(kReportTitleTextKey); }

  const SiteFixture site;
  std::unique_ptr<SETJS> form;
};

}  // namespace

TEST_F(SettingsForm, BearsItsCaptions) {
  Open();
  EXPECT_EQ(form->windowTitle(), "その他設定");
  EXPECT_EQ(form->findChild<QLabel*>("lblHead")->text(), "重 量 集 計 印 刷 設 定");
  for (const OptionRow& row : kOptions) {
    EXPECT_EQ(Option(row.option).text(), row.caption);
    EXPECT_EQ(qobject_cast<QGroupBox*>(Option(row.option).parentWidget())->title(), row.frame) << row.option;
  }
  EXPECT_EQ(qobject_cast<QGroupBox*>(Hoops().parentWidget())->title(), "圧接数");
  EXPECT_EQ(Hoops().text(), "溶接閉鎖型フープを圧接数に含める");
  EXPECT_EQ(form->findChild<QLabel*>("lblChangeColor")->text(), "一行おきに色を");
  EXPECT_EQ(form->findChild<QLabel*>("lblShowWeight")->text(), "重量列");
  EXPECT_EQ(form->findChild<QLabel*>("lblPrtZero")->text(), "重量が無い太さの印字");
  EXPECT_EQ(form->findChild<QLabel*>("lblTitle")->text(), "全角１０文字まで");
  EXPECT_EQ(Title().placeholderText(), "入力した文字が印字される");
  EXPECT_EQ(Button("btnExit").text(), "終 了 （Esc）");
}

TEST_F(SettingsForm, EveryOptionIsSavedInItsClick) {
  Open();
  for (const OptionRow& row : kOptions) {
    Option(row.option).click();
    EXPECT_EQ(Stored(row.key), row.value) << row.option;
  }
}

TEST_F(SettingsForm, TheArrowKeysSaveWhatTheyChoose) {
  Open();
  ASSERT_EQ(Focused(), "optAD");
  Press(*form, Qt::Key_Right);
  EXPECT_EQ(Focused(), "optNenGou");
  EXPECT_EQ(Stored("日付表記"), "2");
}

TEST_F(SettingsForm, EnterInAnOptionMovesOnAndSavesNothing) {
  Open();
  Press(*form, Qt::Key_Return);
  EXPECT_EQ(Focused(), "OptTaihiA");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Stored("日付表記"), "(none)");
}

TEST_F(SettingsForm, TabComesToTheChosenOptionOfAGroup) {
  SaveSetting(kComparisonKindKey, 3);
  Open();
  Press(*form, Qt::Key_Tab);
  EXPECT_EQ(Focused(), "OptTaihiC");
  Press(*form, Qt::Key_Up);
  EXPECT_EQ(Stored("対比表項目"), "2");
  Press(*form, Qt::Key_Tab);
  Press(*form, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focused(), "OptTaihiB");
}

TEST_F(SettingsForm, TheHoopBoxSavesOneOrZero) {
  Open();
  EXPECT_TRUE(Hoops().isChecked()) << "the default";
  Hoops().click();
  EXPECT_EQ(Stored("溶接フープの圧接数"), "0");
  Hoops().click();
  EXPECT_EQ(Stored("溶接フープの圧接数"), "1");
}

TEST_F(SettingsForm, OpensOnStoredAndOnCachedValues) {
  SaveSetting(kDateStyleKey, 2);
  SaveSetting(kComparisonKindKey, 3);
  SaveSetting(kReportTitleChoiceKey, 2);
  SaveSetting(kWeldedHoopWeldsKey, 0);
  Settings.AlternateRowColours = 0;
  Settings.DetailShowsWeight = 1;
  Settings.PrintEmptyDiameters = 1;
  Open();
  for (const char* option :
       {"optNenGou", "OptTaihiC", "OptTitleB", "OptChangeColor_1", "OptShowWeight_0", "OptPrtZero_0"}) {
    EXPECT_TRUE(Option(option).isChecked()) << option;
  }
  EXPECT_FALSE(Hoops().isChecked());
  EXPECT_FALSE(Button("cmdSetColor").isEnabled());
  EXPECT_EQ(Focused(), "optNenGou");
}

TEST_F(SettingsForm, StoredTextsThatAreNoNumbersAreToldOnceAndMendedByAChoice) {
  SaveSetting("Kakou", "重量集計", "対比表項目", "A");
  SaveSetting("Kakou", "重量集計", "日付表記", "B");
  Open();
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_THAT(site.Messages()[0].text, HasSubstr("対比表項目"));
  EXPECT_THAT(site.Messages()[0].text, HasSubstr("日付表記"));
  for (const char* option : {"OptTaihiA", "OptTaihiB", "OptTaihiC", "optAD", "optNenGou"}) {
    EXPECT_FALSE(Option(option).isChecked()) << option;
  }
  Option("OptTaihiB").click();
  Settle();
  EXPECT_EQ(ReadSetting(kComparisonKindKey), 2);
}

TEST_F(SettingsForm, OnlyTheOwnTitleOpensItsBox) {
  Open();
  EXPECT_FALSE(Title().isEnabled());
  Option("OptTitleC").click();
  Settle();
  EXPECT_TRUE(Title().isEnabled());
  EXPECT_EQ(Focused(), "title");
  for (const char* other : {"OptTitleA", "OptTitleB"}) {
    Option("OptTitleC").click();
    Option(other).click();
    EXPECT_FALSE(Title().isEnabled()) << other;
  }
}

TEST_F(SettingsForm, TheOwnTitleChosenByArrowKeyHasTheFocusInItsBox) {
  SaveSetting(kReportTitleChoiceKey, 2);
  Open();
  Option("OptTitleB").setFocus();
  Press(*form, Qt::Key_Down);
  Settle();
  EXPECT_EQ(Stored("数量表タイトル"), "3");
  EXPECT_EQ(Focused(), "title");
}

TEST_F(SettingsForm, TheEndStoresTheOwnTitle) {
  Open();
  Option("OptTitleC").click();
  Title().setText("躯体鉄筋数量");
  EXPECT_EQ(StoredTitle(), "") << "not before the end";
  Button("btnExit").click();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(StoredTitle(), "躯体鉄筋数量");
  EXPECT_EQ(Settings.ReportTitleChoice, 3);
  EXPECT_EQ(Settings.ReportTitleText, "躯体鉄筋数量");
}

TEST_F(SettingsForm, AnEmptyTitleBoxIsNotStored) {
  site.SetIni(kSteelFile, "加工帳", "数量表印字タイトル", "前の題");
  SaveSetting(kReportTitleChoiceKey, 3);
  Open();
  EXPECT_EQ(Title().text(), "前の題");
  Title().clear();
  Press(*form, Qt::Key_Escape);
  EXPECT_EQ(StoredTitle(), "前の題");
}

TEST_F(SettingsForm, BackAtAnotherTitleTheTypedTextIsNotStored) {
  Open();
  Option("OptTitleC").click();
  Title().setText("躯体鉄筋数量");
  Option("OptTitleA").click();
  Press(*form, Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(StoredTitle(), "");
  EXPECT_EQ(Stored("数量表タイトル"), "1");
  EXPECT_EQ(Settings.ReportTitleText, "");
}

TEST_F(SettingsForm, TheTitleTakesTenFullWidthCharacters) {
  Open();
  Option("OptTitleC").click();
  Title().clear();
  Title().insert("一二三四五六七八九十百");
  EXPECT_EQ(Title().text(), "一二三四五六七八九十");
  Title().clear();
  Title().insert("ABCDEFGHIJKLMNOPQRSあ");  // 19 half-width ones leave no room for a full-width one
  EXPECT_EQ(Title().text(), "ABCDEFGHIJKLMNOPQRS");
}

TEST_F(SettingsForm, EnterInTheTitleMovesOnWithoutEndingTheForm) {
  Open();
  Option("OptTitleC").click();
  Settle();
  Press(*form, Qt::Key_Return);
  EXPECT_EQ(Focused(), "AtsuCheck");
  EXPECT_TRUE(form->isVisible());
}

TEST_F(SettingsForm, TheEndReadsTheGlobalSettingsAgain) {
  Open();
  for (const char* option :
       {"OptChangeColor_1", "OptShowWeight_0", "OptPrtZero_0", "OptTitleB", "optNenGou", "OptTaihiC"}) {
    Option(option).click();
  }
  site.SetIni(kSteelFile, "加工帳", "行の背景色", "255");
  site.SetIni(kSteelFile, "加工帳", "文字の色", "128");
  EXPECT_EQ(Settings.AlternateRowColours, 1) << "not before the end";
  Press(*form, Qt::Key_Escape);
  EXPECT_EQ(Settings.AlternateRowColours, 0);
  EXPECT_EQ(Settings.DetailShowsWeight, 1);
  EXPECT_EQ(Settings.PrintEmptyDiameters, 1);
  EXPECT_EQ(Settings.ReportTitleChoice, 2);
  EXPECT_EQ(Settings.GridRowBackColor, 255);
  EXPECT_EQ(Settings.GridRowForeColor, 128);
  EXPECT_EQ(Settings.DateStyle, 2);
  EXPECT_EQ(Settings.ComparisonKind, 3);
}

TEST_F(SettingsForm, TheWindowsCloseBoxEndsItAsTheButtonDoes) {
  Open();
  Option("OptTitleC").click();
  Title().setText("躯体鉄筋数量");
  form->close();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(StoredTitle(), "躯体鉄筋数量");
}

TEST_F(SettingsForm, TellsAHintForTheControlUnderThePointerAndForTheOneWithTheFocus) {
  Open();
  const std::string of_focus = Hint();
  EXPECT_EQ(of_focus, "印字する日付の年を西暦で表す");
  const QPointF inside(2, 2);
  QEnterEvent enter(inside, inside, inside);
  QApplication::sendEvent(&Title(), &enter);
  EXPECT_EQ(Hint(), "入力した文字が印字される") << "though the box is disabled";
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Title(), &leave);
  EXPECT_EQ(Hint(), of_focus);
  std::set<std::string> hints;
  for (const OptionRow& row : kOptions) {
    Option(row.option).setFocus();
    hints.insert(Hint());
  }
  EXPECT_EQ(hints.size(), std::size(kOptions)) << "each its own";
}

TEST_F(SettingsForm, ATitleThatCannotBeStoredNamesTheFileAndTheFormStays) {
  Open();
  Option("OptTitleC").click();
  Title().setText("躯体鉄筋数量");
  Block(site.Data(kSteelFile));
  Press(*form, Qt::Key_Escape);
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_THAT(site.Messages()[0].text, HasSubstr(kSteelFile));
  EXPECT_EQ(site.Messages()[0].title, "その他設定");
  EXPECT_TRUE(form->isVisible());
  Option("OptTitleA").click();
  Press(*form, Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible()) << "without the title there is a way out";
}

TEST_F(SettingsForm, ATitleThatTheFileCannotHoldIsToldAndTheFormStays) {
  Open();
  Option("OptTitleC").click();
  Title().setText("鉄筋☃");
  Press(*form, Qt::Key_Escape);
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_THAT(site.Messages()[0].text, HasSubstr("使えない文字"));
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Focused(), "title");
  EXPECT_EQ(StoredTitle(), "");
}

TEST_F(SettingsForm, AChoiceThatCannotBeSavedNamesTheFileAndIsTakenBack) {
  SaveSetting(kComparisonKindKey, 2);
  Open();
  // A file in the place of the settings' folder: nothing can be written there, whoever runs the test.
  const std::filesystem::path folder = site.Root().SettingsFile().parent_path();
  std::filesystem::remove_all(folder);
  std::ofstream(folder) << "";
  Option("OptTaihiC").click();
  ASSERT_FALSE(site.Messages().empty());
  EXPECT_THAT(site.Messages()[0].text, HasSubstr(folder.string()));
  EXPECT_TRUE(form->isVisible());
  EXPECT_FALSE(Option("OptTaihiC").isChecked());
  EXPECT_TRUE(Option("OptTaihiA").isChecked()) << "the default: nothing is stored any more";
}

TEST_F(SettingsForm, TheColourButtonIsThereOnlyWhereColoursChange) {
  Open();
  EXPECT_TRUE(Button("cmdSetColor").isEnabled());
  Option("OptChangeColor_1").click();
  EXPECT_FALSE(Button("cmdSetColor").isEnabled());
  Option("OptChangeColor_0").click();
  EXPECT_TRUE(Button("cmdSetColor").isEnabled());
}

TEST_F(SettingsForm, TheColourButtonOpensTheColourFormModally) {
  Open();
  std::string shown;
  QTimer::singleShot(0, [&] {
    QWidget* colours = QApplication::activeModalWidget();
    shown = colours->objectName().toStdString();
    Press(*colours, Qt::Key_Escape);
  });
  Button("cmdSetColor").setFocus();
  Press(*form, Qt::Key_Return);
  EXPECT_EQ(shown, "SETCOLOR");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Focused(), "cmdSetColor");
}

TEST_F(SettingsForm, ReturnsToItsCallerAtItsEnd) {
  std::string shown;
  QTimer::singleShot(0, [&] {
    QWidget* settings = QApplication::activeModalWidget();
    shown = settings->objectName().toStdString();
    settings->findChild<QRadioButton*>("OptPrtZero_0")->click();
    Press(*settings, Qt::Key_Escape);
  });
  OpenSettings();
  EXPECT_EQ(shown, "SETJS");
  EXPECT_EQ(Settings.PrintEmptyDiameters, 1);
}

}  // namespace rbt::test
