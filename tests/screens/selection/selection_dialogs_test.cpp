// SPDX-License-Identifier: MIT
#include "screens/selection/selection_dialogs.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "screens/selection/set_zai.h"
#include "screens/selection/set_zai_kai_bui.h"
#include "screens/selection/set_zairyou.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

constexpr std::array kKindBoxes{"Check1_0", "Check1_1", "Check1_2", "Check1_3"};
constexpr std::array kFormBoxes{"Chk_0", "Chk_1", "Chk_2", "Chk_3"};

/// A dialog, shown; it opens on the selection as it is then.
template <typename Dialog>
class Driver {
 public:
  Driver() {
    dialog.show();
    dialog.activateWindow();
    Settle();
  }

  QCheckBox& Box(const char* name) { return *dialog.template findChild<QCheckBox*>(name); }
  QRadioButton& Option(const char* name) { return *dialog.template findChild<QRadioButton*>(name); }
  void Untick(std::initializer_list<const char*> boxes) {
    for (const char* box : boxes) Box(box).setChecked(false);
  }
  void Take() { dialog.template findChild<QPushButton*>("Command1")->click(); }
  std::string Focused() const { return dialog.focusWidget()->objectName().toStdString(); }
  std::string Text(const char* label) {
    return dialog.template findChild<QLabel*>(label)->text().toStdString();
  }
  /// The ticks of boxes as "1011", the first box first.
  template <typename Boxes>
  std::string Ticks(const Boxes& boxes) {
    std::string ticks;
    for (const char* box : boxes) ticks += Box(box).isChecked() ? '1' : '0';
    return ticks;
  }

  Dialog dialog;
};

class SelectionDialog : public testing::Test {
 protected:
  void ExpectMessage(const std::string& text) const {
    ASSERT_EQ(site.Messages().size(), 1U);
    EXPECT_EQ(site.Messages()[0].text, text);
    EXPECT_EQ(site.Messages()[0].title, "未選択");
    EXPECT_EQ(site.Messages()[0].buttons, MessageButtons::ok);
  }

  const SiteFixture site;
};

using KindDialog = SelectionDialog;
using ScopedKindDialog = SelectionDialog;
using FormDialog = SelectionDialog;

/// The ticks of a mask 0 to 15, written out: 異形 first.
constexpr std::array kTicksOfMask{"0000", "1000", "0100", "1100", "0010", "1010", "0110", "1110",
                                  "0001", "1001", "0101", "1101", "0011", "1011", "0111", "1111"};

}  // namespace

TEST_F(KindDialog, BearsItsCaptions) {
  Driver<setZai> driver;
  EXPECT_EQ(driver.dialog.windowTitle(), "材質の選択");
  EXPECT_EQ(driver.Text("Label1"), "異形");
  EXPECT_EQ(driver.Text("Label2"), "ネジ");
  EXPECT_EQ(driver.Text("Label3"), "高強度");
  EXPECT_EQ(driver.Text("Label4"), "スリット筋");
  EXPECT_EQ(driver.Text("Label5"), "ウルボン");
  for (const char* box : kKindBoxes) EXPECT_EQ(driver.Box(box).text(), "含む");
  EXPECT_EQ(driver.Box("ChkU").text(), "含む");
}

TEST_F(KindDialog, OpensOnEveryMaskAndTakesItBack) {
  for (std::int32_t mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    Driver<setZai> driver;
    EXPECT_EQ(driver.Ticks(kKindBoxes), kTicksOfMask.at(static_cast<std::size_t>(mask)));
    Selection.MaterialKindMask = KindMask(-1);
    driver.Take();
    EXPECT_EQ(Selection.MaterialKindMask, KindMask(mask));
    EXPECT_FALSE(driver.dialog.isVisible());
  }
}

TEST_F(KindDialog, KeepsTheMaskThatWasThereBeforeIt) {
  Selection.MaterialKindMask = KindMask(5);
  Driver<setZai> driver;
  driver.Untick({"Check1_2"});
  driver.Take();
  EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(5));
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(1));
}

TEST_F(KindDialog, ANewKindResetsTheForms) {
  Selection.MaterialFormMask = FormMask(4);
  Driver<setZai> driver;
  driver.Take();
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
}

TEST_F(KindDialog, TheUlbonBoxDecidesOverTheUlbonLines) {
  for (const bool included : {false, true}) {
    Selection.IncludeUlbon = included;
    Driver<setZai> driver;
    EXPECT_EQ(driver.Box("ChkU").isChecked(), included);
    driver.Box("ChkU").toggle();
    EXPECT_EQ(Selection.IncludeUlbon, included) << "not before the button";
    driver.Take();
    EXPECT_EQ(Selection.IncludeUlbon, !included);
  }
}

TEST_F(KindDialog, WithoutAKindItTellsSoAndStaysUntilOneIsTicked) {
  Driver<setZai> driver;
  driver.Untick({"Check1_0", "Check1_1", "Check1_2", "Check1_3", "ChkU"});
  driver.Take();
  ExpectMessage("材質が選択されていません");
  EXPECT_TRUE(driver.dialog.isVisible());
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(0)) << "until the next press";
  EXPECT_TRUE(Selection.IncludeUlbon);
  EXPECT_EQ(driver.Ticks(kKindBoxes), "0000");
  EXPECT_EQ(driver.Focused(), "Check1_0");
  driver.Box("Check1_1").setChecked(true);
  driver.Take();
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(2));
  EXPECT_FALSE(Selection.IncludeUlbon);
  EXPECT_FALSE(driver.dialog.isVisible());
}

TEST_F(KindDialog, OpenedAgainItShowsTheLastAcceptedChoice) {
  {
    Driver<setZai> driver;
    driver.Untick({"Check1_1", "ChkU"});
    driver.Take();
  }
  Driver<setZai> again;
  EXPECT_EQ(again.Ticks(kKindBoxes), "1011");
  EXPECT_FALSE(again.Box("ChkU").isChecked());
}

TEST_F(KindDialog, NeitherEscNorTheWindowsCloseBoxEndsIt) {
  Driver<setZai> driver;
  EXPECT_TRUE(Press(driver.dialog, Qt::Key_Escape));
  EXPECT_TRUE(driver.dialog.isVisible());
  EXPECT_FALSE(driver.dialog.close());
  EXPECT_TRUE(driver.dialog.isVisible());
}

TEST_F(KindDialog, IsFilledInWithSpaceAndEnter) {
  Driver<setZai> driver;
  for (const char* box : {"Check1_0", "Check1_1", "Check1_2", "Check1_3", "ChkU"}) {
    ASSERT_EQ(driver.Focused(), box);
    if (std::string_view(box) != "Check1_3") Press(driver.dialog, Qt::Key_Space);
    Press(driver.dialog, Qt::Key_Return);
    EXPECT_TRUE(driver.dialog.isVisible()) << "Enter in a box does not end the dialog";
  }
  ASSERT_EQ(driver.Focused(), "Command1");
  Press(driver.dialog, Qt::Key_Return);
  EXPECT_FALSE(driver.dialog.isVisible());
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(8));
  EXPECT_FALSE(Selection.IncludeUlbon);
}

TEST_F(KindDialog, AHeldEnterStopsAtTheBox) {
  Driver<setZai> driver;
  Press(driver.dialog, Qt::Key_Return, Qt::NoModifier, true);
  EXPECT_EQ(driver.Focused(), "Check1_0");
}

TEST_F(KindDialog, TheArrowsGoThroughTheBoxesToTheButtonAndBack) {
  Driver<setZai> driver;
  for (int i = 0; i < 5; ++i) Press(driver.dialog, Qt::Key_Down);
  EXPECT_EQ(driver.Focused(), "Command1");
  Press(driver.dialog, Qt::Key_Up);
  EXPECT_EQ(driver.Focused(), "ChkU");
}

TEST_F(KindDialog, ReturnsToItsCallerWhenTheKindsAreChosen) {
  std::string shown;
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    shown = dialog->objectName().toStdString();
    dialog->findChild<QCheckBox*>("Check1_0")->setChecked(false);
    dialog->findChild<QPushButton*>("Command1")->click();
  });
  ChooseKinds();
  EXPECT_EQ(shown, "setZai");
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(14));
}

TEST_F(ScopedKindDialog, BearsItsCaptions) {
  Driver<setZaiKaiBui> driver;
  EXPECT_EQ(driver.dialog.windowTitle(), "材質の選択");
  EXPECT_EQ(driver.Option("Option1_0").text(), "ウルボン");
  EXPECT_EQ(driver.Option("Option1_1").text(), "異形・その他");
  EXPECT_EQ(driver.Text("Label4"), "スリット筋");
}

TEST_F(ScopedKindDialog, UlbonAloneHidesTheKindsAndUnticksThemButTheSlitBars) {
  Driver<setZaiKaiBui> driver;
  driver.Option("Option1_0").click();
  const auto* frame = driver.dialog.findChild<QGroupBox*>("Frame1");
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(driver.Ticks(kKindBoxes), "0001");
  driver.Option("Option1_1").click();
  EXPECT_TRUE(frame->isVisible());
  EXPECT_EQ(driver.Ticks(kKindBoxes), "0001");
}

TEST_F(ScopedKindDialog, UlbonAloneLeavesTheMaskEmptyWithoutAMessage) {
  Driver<setZaiKaiBui> driver;
  driver.Option("Option1_0").click();
  EXPECT_FALSE(Selection.UlbonOnly) << "not before the button";
  driver.Take();
  EXPECT_TRUE(Selection.UlbonOnly);
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(0)) << "though スリット筋 is ticked";
  EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(15));
  EXPECT_TRUE(site.Messages().empty());
  EXPECT_FALSE(driver.dialog.isVisible());
}

TEST_F(ScopedKindDialog, OpensOnUlbonAloneAndGoesBackToKinds) {
  Selection.UlbonOnly = true;
  Selection.MaterialKindMask = KindMask(0);
  Driver<setZaiKaiBui> driver;
  EXPECT_TRUE(driver.Option("Option1_0").isChecked());
  EXPECT_EQ(driver.Focused(), "Option1_0");
  EXPECT_FALSE(driver.dialog.findChild<QGroupBox*>("Frame1")->isVisible());
  Press(driver.dialog, Qt::Key_Right);
  EXPECT_TRUE(driver.Option("Option1_1").isChecked()) << "the arrow keys choose";
  driver.Box("Check1_2").setChecked(true);
  driver.Take();
  EXPECT_FALSE(Selection.UlbonOnly);
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(4));
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
}

TEST_F(ScopedKindDialog, WithoutAKindItTellsSoAndStays) {
  Driver<setZaiKaiBui> driver;
  driver.Untick({"Check1_0", "Check1_1", "Check1_2", "Check1_3"});
  driver.Take();
  ExpectMessage("材質が選択されていません");
  EXPECT_TRUE(driver.dialog.isVisible());
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(0));
}

TEST_F(ScopedKindDialog, NeitherEscNorTheWindowsCloseBoxEndsIt) {
  Driver<setZaiKaiBui> driver;
  EXPECT_TRUE(Press(driver.dialog, Qt::Key_Escape));
  EXPECT_FALSE(driver.dialog.close());
  EXPECT_TRUE(driver.dialog.isVisible());
}

TEST_F(ScopedKindDialog, ReturnsToItsCallerWhenTheKindsAreChosen) {
  std::string shown;
  QTimer::singleShot(0, [&] {
    shown = QApplication::activeModalWidget()->objectName().toStdString();
    QApplication::activeModalWidget()->findChild<QPushButton*>("Command1")->click();
  });
  ChooseKindsOfFloorsAndParts();
  EXPECT_EQ(shown, "setZaiKaiBui");
}

TEST_F(FormDialog, BearsItsCaptions) {
  Driver<setZairyou> driver;
  EXPECT_EQ(driver.dialog.windowTitle(), "材料の変更");
  EXPECT_EQ(driver.Text("Label1"), "生材");
  EXPECT_EQ(driver.Text("Label2"), "生材加工");
  EXPECT_EQ(driver.Text("Label3"), "切断");
  EXPECT_EQ(driver.Text("Label4"), "切断加工");
  for (const char* box : kFormBoxes) EXPECT_EQ(driver.Box(box).text(), "含む");
}

TEST_F(FormDialog, OpensOnEveryMaskAndTakesItBack) {
  for (std::int16_t mask = 1; mask <= 15; ++mask) {
    Selection.MaterialFormMask = FormMask(mask);
    Driver<setZairyou> driver;
    EXPECT_EQ(driver.Ticks(kFormBoxes), kTicksOfMask.at(static_cast<std::size_t>(mask)));
    Selection.MaterialFormMask = FormMask(-1);
    driver.Take();
    EXPECT_EQ(Selection.MaterialFormMask, FormMask(mask));
    EXPECT_FALSE(driver.dialog.isVisible());
  }
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(15));
}

TEST_F(FormDialog, WithoutAFormItTellsSoAndTicksAllAgain) {
  Driver<setZairyou> driver;
  driver.Untick({"Chk_0", "Chk_1", "Chk_2", "Chk_3"});
  driver.Take();
  ExpectMessage("材料が選択されていません");
  EXPECT_TRUE(driver.dialog.isVisible());
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(0)) << "until the next press";
  EXPECT_EQ(driver.Ticks(kFormBoxes), "1111");
  driver.Take();
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
  EXPECT_FALSE(driver.dialog.isVisible());
}

TEST_F(FormDialog, EscLeavesTheFormsAsTheyWere) {
  Selection.MaterialFormMask = FormMask(9);
  Driver<setZairyou> driver;
  driver.Untick({"Chk_0"});
  Press(driver.dialog, Qt::Key_Escape);
  EXPECT_FALSE(driver.dialog.isVisible());
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(9));
}

TEST_F(FormDialog, ReturnsToItsCallerWhenTheFormsAreChosen) {
  std::string shown;
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    shown = dialog->objectName().toStdString();
    dialog->findChild<QCheckBox*>("Chk_1")->setChecked(false);
    dialog->findChild<QPushButton*>("Command1")->click();
  });
  ChooseForms();
  EXPECT_EQ(shown, "setZairyou");
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(13));
}

}  // namespace rbt::test
