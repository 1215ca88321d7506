// SPDX-License-Identifier: MIT
// The floor and part forms by their keys: input, result, print buttons, the way out.
#include <QMouseEvent>
#include <QTimer>
#include <gtest/gtest.h>

#include "desktop/grid_cell.h"
#include "platform/system/services.h"
#include "screens/floorpart/floorpart_form_driver.h"
#include "screens/floorpart/floorpart_forms.h"
#include "screens/menu/screens.h"
#include "shell/config/settings.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

/// A key and the message that tells that its button was pressed.
struct NotReadyKey {
  int key;
  const char* name;
};

void ExpectNotReady(FloorPartDriver& form, const NotReadyKey& row) {
  form.Key(row.key);
  EXPECT_EQ(form.Message(), std::string("「") + row.name + "」は、まだご利用いただけません。");
}

/// A click that brings the focus.
void ClickInto(QLineEdit& box) {
  const QPointF place(3, 3);
  box.setFocus(Qt::MouseFocusReason);
  QMouseEvent press(QEvent::MouseButtonPress, place, box.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                    {});
  QApplication::sendEvent(&box, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, place, box.mapToGlobal(place), Qt::LeftButton, {}, {});
  QApplication::sendEvent(&box, &release);
  Settle();
}

}  // namespace

TEST(FloorPartForms, StandInTheMenu) {
  for (const char* name : {"KAIJS", "BUIJS"}) {
    const auto screens = MenuScreens();
    EXPECT_EQ(std::count_if(screens.begin(), screens.end(),
                            [&](const MenuScreen& screen) { return screen.form == name; }),
              1);
  }
}

TEST(FloorPartForms, BearTheNamesAndCaptionsOfTheirScreens) {
  FloorPartDriver floors(kFloorScreen);
  floors.Open();
  EXPECT_EQ(floors.form->windowTitle(), "階別集計");
  EXPECT_EQ(floors.Button("cmdKaiJS")->text(), "集計実行（F1）");
  EXPECT_EQ(floors.Button("ALLKAIB")->text(), "登録されている全ての階（F2）");
  EXPECT_EQ(floors.Button("cmdMeisaiSakusei")->text(), "階別明細(F1)");
  EXPECT_EQ(floors.Button("cmdMent")->text(), "管理(F8)");
  EXPECT_EQ(floors.Button("cmdSave")->toolTip(), "すべての階を選択しているときだけ保存できます");
  EXPECT_TRUE(floors.Shows("Frame1"));
  EXPECT_TRUE(floors.Shows("lblJsyu"));
  EXPECT_EQ(floors.Label("lblKojNoCaption") + floors.Label("lblKykCaption"), "工事名取引先名");
  FloorPartDriver parts(kPartScreen);
  parts.Open();
  EXPECT_EQ(parts.form->windowTitle(), "部位別集計");
  EXPECT_EQ(parts.Button("cmdBuiJS")->text(), "部 位 集 計 （F1）");
  EXPECT_EQ(parts.Button("ALLKAIB")->text(), "登録されている全ての階(F2)");
  EXPECT_EQ(parts.Button("cmdMeisaiSakusei")->text(), "明細作成（F1）");
  EXPECT_EQ(parts.Button("cmdMent")->text() + parts.Button("cmdLoad")->text(), "管理(F7)読込(F7)");
  EXPECT_EQ(parts.Button("btnAllBuiPrint")->text(), "全部位合計印字（F1）");
  EXPECT_EQ(parts.Button("btnBuiPrint")->text(), "各部位任意印字（F3）");
  EXPECT_EQ(parts.Button("Command1")->text(), "合計表印字（F5）");
  EXPECT_EQ(parts.Button("btnClose")->text(), "終       了 （Esc）");
  EXPECT_FALSE(parts.Shows("Frame1"));
  EXPECT_FALSE(parts.Shows("lblJsyu"));
}

TEST(FloorPartForms, StartAtTheFirstBox) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.Open();
    EXPECT_EQ(form.Focused(), "txtStartKai");
    EXPECT_TRUE(form.Shows("pnlInputKai"));
    EXPECT_FALSE(form.Grid()->isVisible());
    EXPECT_EQ(form.Label("lblHanni"), "データは1階 ～ 3階まで登録されています。");
    EXPECT_EQ(form.Label("LabelCD") + form.Label("LabelCT"), "2026/11/2109:00:00");
    EXPECT_FALSE(form.Shows("ZaishituR"));
    EXPECT_FALSE(form.Shows("Label10"));
    EXPECT_FALSE(form.Shows("Lwarning"));
  }
}

TEST(FloorPartForms, AnEmptyScheduleIsToldAndTheFormCloses) {
  FloorPartDriver form(kFloorScreen);
  form.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
  form.Open();
  EXPECT_EQ(form.Message(), "集計データがありません");
  EXPECT_FALSE(form.form->isVisible());
}

TEST(FloorBoxesOfTheForm, AreFilledInWithEnter) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  form.Type("1");
  form.Key(Qt::Key_Return);
  EXPECT_EQ(form.Focused(), "txtEndKai");
  form.Type("2");
  form.Key(Qt::Key_Return);
  EXPECT_EQ(form.Focused(), "cmdKaiJS");
  form.Key(Qt::Key_Return);
  EXPECT_FALSE(form.Shows("pnlInputKai"));
  EXPECT_EQ(form.Focused(), "dbgKai");
  EXPECT_EQ(form.Current(), "0 0");
  EXPECT_EQ(form.Label("lblkai"), "【1階～2階】");
  EXPECT_EQ(form.Cell(2, 12), "374");
}

TEST(FloorBoxesOfTheForm, ASpecialFloorGoesStraightToTheTally) {
  FloorPartDriver form(kPartScreen);
  form.site.AddSpecialFloors();
  form.Open();
  form.Type("76");
  form.Key(Qt::Key_Return);
  EXPECT_EQ(form.Boxes(), "76|76");
  EXPECT_EQ(form.Focused(), "cmdBuiJS");
  form.Key(Qt::Key_F1);
  EXPECT_EQ(form.Label("lblkai"), "Ｒ階");
  EXPECT_TRUE(form.site.Messages().empty());
}

TEST(FloorBoxesOfTheForm, KeepTheFocusSelectedWhenTheyDoNotPass) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  form.Type("79");
  form.Key(Qt::Key_Return);
  EXPECT_EQ(form.Focused(), "txtStartKai");
  EXPECT_EQ(form.Box("txtStartKai")->selectedText(), "79");
  EXPECT_TRUE(form.site.Messages().empty());
}

TEST(FloorBoxesOfTheForm, UpLeadsBackAndSelects) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  form.Type("2");
  form.Key(Qt::Key_Return);
  form.Key(Qt::Key_Up);
  EXPECT_EQ(form.Focused(), "txtStartKai");
  EXPECT_EQ(form.Box("txtStartKai")->selectedText(), "2");
}

TEST(FloorBoxesOfTheForm, AreSelectedByAClick) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  form.Type("25");
  form.Box("txtEndKai")->setFocus();
  ClickInto(*form.Box("txtStartKai"));
  Settle();
  EXPECT_EQ(form.Box("txtStartKai")->selectedText(), "25");
}

TEST(FloorBoxesOfTheForm, TakeAMinusWithoutShift) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  QLineEdit* box = form.Box("txtStartKai");
  QKeyEvent shifted(QEvent::KeyPress, Qt::Key_Minus, Qt::ShiftModifier, "-");
  QApplication::sendEvent(box, &shifted);
  EXPECT_EQ(box->text(), "");
  form.Type("-x1-");
  EXPECT_EQ(box->text(), "-1");
  box->setText("－１．５ＡＢ");
  EXPECT_EQ(box->text(), "-1.5");
}

TEST(FloorBoxesOfTheForm, AreFilledByTheKeyAndTheButtons) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  form.Key(Qt::Key_F2);
  EXPECT_EQ(form.Boxes(), "1|3");
  EXPECT_EQ(form.Focused(), "cmdKaiJS");
  form.Click("RkaiB");
  EXPECT_EQ(form.Boxes(), "76|76");
  form.Click("PHkaiB");
  EXPECT_EQ(form.Boxes(), "77|77");
  form.Click("NOkaiB");
  EXPECT_EQ(form.Boxes(), "78|78");
}

TEST(FloorForm, KeepsItsChoiceOfWeightAtOnce) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  form.form->findChild<QRadioButton*>("Opt1_1")->click();
  Settle();
  EXPECT_EQ(ReadSetting(kFloorTallyStockKey), 1);
  EXPECT_EQ(form.Label("lblJsyu"), "取付重量");
}

TEST(FloorPartForms, EscLeavesTheInput) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.Open();
    form.Key(Qt::Key_Escape);
    EXPECT_FALSE(form.form->isVisible());
  }
}

TEST(FloorPartForms, EscLeavesTheResult) {
  FloorPartDriver form(kPartScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.form->isVisible());
}

TEST(FloorForm, AnswersTheKeysOfItsMainButtons) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  ExpectNotReady(form, {Qt::Key_F6, "保存"});
  ExpectNotReady(form, {Qt::Key_F7, "読込"});
  form.Key(Qt::Key_F3);
  EXPECT_TRUE(form.Shows("pnlInputKai"));
  EXPECT_EQ(form.Focused(), "txtStartKai");
}

TEST(PartForm, F7ManagesAndF8LoadsWhateverTheCaptionsSay) {
  FloorPartDriver form(kPartScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F7);
  EXPECT_EQ(form.Message(), "") << "managing has no action of its own";
  ExpectNotReady(form, {Qt::Key_F8, "読込"});
}

TEST(FloorPartForms, AKeyOfAButtonOutOfReachIsEaten) {
  FloorPartDriver form(kFloorScreen);
  form.Open();
  EXPECT_TRUE(Press(*form.form, Qt::Key_F6));
  EXPECT_EQ(form.Message(), "");
  form.Type("1");
  form.Key(Qt::Key_Return);
  form.Type("2");
  form.Key(Qt::Key_F1);
  EXPECT_FALSE(form.Button("cmdSave")->isEnabled()) << "not all floors";
  form.Key(Qt::Key_F6);
  EXPECT_EQ(form.Message(), "");
}

TEST(FloorForm, F1SwapsTheMainButtonsForThoseOfTheSheets) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  EXPECT_TRUE(form.Shows("SSPanel3"));
  EXPECT_FALSE(form.Shows("SSPanel2"));
  EXPECT_FALSE(form.Shows("txtSubKojNa"));
  EXPECT_EQ(form.Focused(), "txtYear");
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.Shows("SSPanel3"));
  EXPECT_TRUE(form.Shows("SSPanel2"));
  EXPECT_TRUE(form.Button("cmdSave")->isEnabled());
}

TEST(PartForm, F1SwapsTheMainButtonsForThoseOfItsThreeSheets) {
  FloorPartDriver form(kPartScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  EXPECT_FALSE(form.Shows("btnPrintKaiBuiFuto"));
  form.Key(Qt::Key_Escape);
  EXPECT_TRUE(form.Shows("SSPanel2"));
}

TEST(FloorPartForms, FiltersStandBesideTheirWordsInTheResultAlone) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.Open();
    for (const char* control : {"Command3", "ZairyouR", "cmdHoop", "Label8", "Label9", "cmdTei", "Label12"}) {
      EXPECT_FALSE(form.Shows(control)) << control;
    }
    form.Key(Qt::Key_F2);
    form.Key(Qt::Key_F1);
    for (const char* control : {"Command3", "ZairyouR", "cmdHoop", "Label8", "Label9", "cmdTei", "Label12"}) {
      EXPECT_TRUE(form.Shows(control)) << control;
    }
    EXPECT_FALSE(form.Shows("ZaishituR"));
    EXPECT_EQ(form.Label("ZaishituTXT") + " " + form.Label("ZairyouTXT"), "異形･高強度･ネジ･スリット すべて");
    EXPECT_EQ(form.Label("Label9") + form.Label("Label8") + " " + form.Label("Label12"),
              "溶接閉鎖型フープ(形状No87)を 定着板");
    form.Click("cmdHoop");
    EXPECT_EQ(form.Button("cmdHoop")->text(), "含まず");
    form.Click("cmdTei");
    EXPECT_EQ(form.Button("cmdTei")->text(), "含まず");
    form.Click("Command3");
    form.Click("ZairyouR");
    EXPECT_EQ(form.kind_dialogs, 1);
    EXPECT_EQ(form.form_dialogs, 1);
  }
}

TEST(FloorPartForms, AFilterLeavesTheFocusOnItsButton) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Button("cmdHoop")->setFocus();
  form.Key(Qt::Key_Return);
  EXPECT_EQ(form.Button("cmdHoop")->text(), "含まず");
  EXPECT_EQ(form.Focused(), "cmdHoop");
}

TEST(FloorPartForms, RaiseByAPercentage) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.OpenWithResult();
    form.Key(Qt::Key_F5);
    EXPECT_EQ(form.Focused(), "Text1");
    form.Type("1x0..-");
    EXPECT_EQ(form.Box("Text1")->text(), "10.-");
    form.Box("Text1")->setText("10");
    EXPECT_FALSE(form.Button("cmdExit")->isEnabled());
    form.Key(Qt::Key_Escape);
    EXPECT_TRUE(form.form->isVisible());
    form.Key(Qt::Key_Return);
    EXPECT_FALSE(form.Shows("Text1"));
    EXPECT_FALSE(form.Shows("Command2"));
    EXPECT_EQ(form.Cell(screen == &kFloorScreen ? 0 : 3, 1), "149");
    EXPECT_TRUE(form.Button("cmdExit")->isEnabled());
  }
}

TEST(FloorPartForms, SelectThePercentageWhenItsBoxGetsTheFocusAndWhenItLosesIt) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F5);
  form.Type("12");
  form.Button("Command2")->setFocus();
  Settle();
  EXPECT_EQ(form.Box("Text1")->selectedText(), "12");
  form.Box("Text1")->deselect();
  ClickInto(*form.Box("Text1"));
  Settle();
  EXPECT_EQ(form.Box("Text1")->selectedText(), "12");
}

TEST(FloorPartForms, RaiseByTheButtonToo) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F5);
  form.Type("10");
  form.Click("Command2");
  EXPECT_EQ(form.Cell(0, 1), "149");
}

TEST(FloorPartForms, FitOnASmallScreenAtALargeScale) {
  // 1366 x 768 at 150 %, without the window's frame.
  constexpr QSize kSmall(900, 480);
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    const auto expect_fit = [&](const char* state) {
      EXPECT_LE(form.form->minimumSizeHint().width(), kSmall.width()) << state;
      EXPECT_LE(form.form->minimumSizeHint().height(), kSmall.height()) << state;
    };
    form.Open();
    expect_fit("input");
    form.Key(Qt::Key_F2);
    form.Key(Qt::Key_F1);
    expect_fit("result");
    form.Key(Qt::Key_F1);
    expect_fit("print buttons");
    form.Key(Qt::Key_Escape);
    form.Key(Qt::Key_F5);
    expect_fit("uplift");
  }
}

TEST(FloorForm, HidesTheRowNumber) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  EXPECT_TRUE(form.Grid()->isColumnHidden(13));
  EXPECT_FALSE(form.Grid()->isColumnHidden(12));
}

TEST(FloorPartForms, TellWhatTheFocusedControlDoesAndHaveItAsToolTip) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.OpenWithResult();
    form.Button("cmdKaiHenkou")->setFocus();
    Settle();
    EXPECT_EQ(form.Label("lblHelp"), "階の範囲を入力し直す");
    EXPECT_EQ(form.Button("cmdKaiHenkou")->toolTip(), "階の範囲を入力し直す");
    for (const QPushButton* button : form.form->findChildren<QPushButton*>()) {
      const std::string name = button->objectName().toStdString();
      if (std::count(screen->without.begin(), screen->without.end(), name) > 0) continue;
      EXPECT_NE(button->toolTip(), "") << screen->name << " " << name;
    }
  }
}

TEST(FloorPartForms, TheTotalRowIsSetOffAndDigitsStandUnderEachOther) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.OpenWithResult();
    const auto* painter = dynamic_cast<const GridCellPainter*>(form.Grid()->itemDelegate());
    ASSERT_NE(painter, nullptr);
    const int last = form.Grid()->RowCount() - 1;
    EXPECT_TRUE(painter->IsTotal(last)) << screen->name;
    EXPECT_FALSE(painter->IsTotal(last - 1)) << screen->name;
  }
}

TEST(FloorPartForms, CopyTheTableWithItsHeadsAndNumbersThatPasteAsNumbers) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = form.Grid()->SelectedText().split(QLatin1Char('\n'));
  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(lines[0].count(QLatin1Char('\t')), lines[1].count(QLatin1Char('\t')));
  EXPECT_EQ(lines[1].section(QLatin1Char('\t'), 1, 1), "135");
}

TEST(FloorPartForms, TheNoticeOfARaiseFloatsOverTheGrid) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F5);
  form.Type("10");
  const QRect buttons = form.form->findChild<QWidget*>("SSPanel2")->geometry();
  std::string seen;
  QRect meanwhile;
  const auto events = Services.PendingEvents;
  Services.PendingEvents = [&] {
    events();
    if (!form.Shows("SSPanel4")) return;
    seen = form.Label("WaitMsgL");
    meanwhile = form.form->findChild<QWidget*>("SSPanel2")->geometry();
  };
  form.Key(Qt::Key_Return);
  Services.PendingEvents = events;
  EXPECT_EQ(seen, "上乗せ中です  お待ち下さい");
  EXPECT_EQ(meanwhile.bottom(), buttons.bottom());
  EXPECT_FALSE(form.Shows("SSPanel4"));
}

TEST(FloorPartForms, ShiftF1ShowsTheKeysOfTheInput) {
  FloorPartDriver form(kPartScreen);
  form.Open();
  std::string seen;
  QTimer::singleShot(0, [&] {
    QWidget* card = QApplication::activeModalWidget();
    ASSERT_NE(card, nullptr);
    seen = card->windowTitle().toStdString();
    card->close();
  });
  form.Key(Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(seen, "キー一覧");
}

}  // namespace rbt::test
