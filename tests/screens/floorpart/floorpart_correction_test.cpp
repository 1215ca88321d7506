// SPDX-License-Identifier: MIT
// The correction by hand, by its keys.
#include <gtest/gtest.h>

#include "screens/floorpart/floorpart_form_driver.h"

namespace rbt::test {

TEST(CorrectionByKeys, StartsAtTheFirstPartOfTheFirstRow) {
  for (const FloorPartScreen* screen : kBothForms) {
    FloorPartDriver form(*screen);
    form.OpenForCorrection();
    EXPECT_EQ(form.Message(), "重量修正作業を中断する場合は、ESCキーを押して下さい");
    EXPECT_EQ(form.Current(), "0 1");
    EXPECT_TRUE(form.Grid()->hasFocus());
    EXPECT_FALSE(form.Button("cmdExit")->isEnabled());
  }
}

TEST(CorrectionByKeys, TypedDigitsReplaceTheCellWhenItIsLeft) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  form.Type("1,200");
  form.Key(Qt::Key_Down);
  EXPECT_EQ(form.Cell(0, 1), "1,200");
  EXPECT_EQ(form.Cell(0, 12), "1,200");
  EXPECT_EQ(form.Cell(3, 1), "1,260");
  EXPECT_EQ(form.Cell(3, 12), "1,499");
  EXPECT_EQ(form.Current(), "1 1");
}

TEST(CorrectionByKeys, EnterTakesTheCellToo) {
  FloorPartDriver form(kPartScreen);
  form.OpenForCorrection();
  form.Type("50");
  QWidget* editor = QApplication::focusWidget();
  ASSERT_NE(qobject_cast<QLineEdit*>(editor), nullptr);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(editor, &enter);
  Settle();
  EXPECT_EQ(form.Cell(0, 1), "50");
  EXPECT_EQ(form.Cell(12, 12), "484");
}

TEST(CorrectionByKeys, LettersAreNotTaken) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  form.Type("x");
  EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr) << "no letter opens a cell";
  form.Type("7x-.8");
  form.Key(Qt::Key_Down);
  EXPECT_EQ(form.Cell(0, 1), "78");
}

TEST(CorrectionByKeys, AnEmptiedCellKeepsItsWeight) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  form.Type("7");
  auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(editor, nullptr);
  editor->clear();
  form.Key(Qt::Key_Down);
  EXPECT_EQ(form.Cell(0, 1), "135");
}

TEST(CorrectionByKeys, UpAndDownStayAboveTheTotalRow) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  for (int i = 0; i < 6; ++i) form.Key(Qt::Key_Down);
  EXPECT_EQ(form.Current(), "2 1");
  for (int i = 0; i < 6; ++i) form.Key(Qt::Key_Up);
  EXPECT_EQ(form.Current(), "0 1");
  form.Key(Qt::Key_PageDown);
  EXPECT_EQ(form.Current(), "2 1");
}

TEST(CorrectionByKeys, RightStopsAtTheOtherParts) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  for (int i = 0; i < 14; ++i) form.Key(Qt::Key_Right);
  EXPECT_EQ(form.Current(), "0 11");
  form.Key(Qt::Key_End);
  EXPECT_EQ(form.Current(), "0 11");
}

TEST(CorrectionByKeys, TheLabelIsLocked) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  form.Key(Qt::Key_Left);
  EXPECT_EQ(form.Current(), "0 0");
  form.Type("5");
  EXPECT_EQ(form.Cell(0, 0), "1階");
  EXPECT_EQ(form.Current(), "0 0");
}

TEST(CorrectionByKeys, EscEndsItAtTheFirstRowAndOnlyThenLeaves) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  form.Type("500");
  form.Key(Qt::Key_Down);
  form.Type("9");  // under way when it ends: not taken
  QWidget* editor = QApplication::focusWidget();
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(editor, &escape);
  Settle();
  EXPECT_TRUE(form.form->isVisible());
  EXPECT_EQ(form.Cell(0, 1), "500");
  EXPECT_EQ(form.Cell(1, 1), "0");
  EXPECT_EQ(form.Current(), "0 0");
  EXPECT_TRUE(form.Button("cmdExit")->isEnabled());
  EXPECT_FALSE(form.Button("cmdSave")->isEnabled());
  form.Key(Qt::Key_Right);
  form.Type("8");
  EXPECT_EQ(form.Cell(0, 1), "500") << "the grid is closed";
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.form->isVisible());
}

TEST(CorrectionByKeys, KeysOfTheMainButtonsDoNothingMeanwhile) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  const std::size_t told = form.site.Messages().size();
  for (const int key : {Qt::Key_F1, Qt::Key_F3, Qt::Key_F5, Qt::Key_F6, Qt::Key_F7}) form.Key(key);
  EXPECT_EQ(form.site.Messages().size(), told);
  EXPECT_FALSE(form.Shows("SSPanel3"));
  EXPECT_TRUE(form.Grid()->isVisible());
}

TEST(CorrectionByKeys, AWeightBeyondAllBoundsIsToldAndLeavesTheCell) {
  FloorPartDriver form(kFloorScreen);
  form.OpenForCorrection();
  form.Type("9999999999999999999");
  form.Key(Qt::Key_Down);
  EXPECT_NE(form.Message().find("overflow"), std::string::npos);
  EXPECT_EQ(form.Cell(0, 1), "135");
}

}  // namespace rbt::test
