// SPDX-License-Identifier: MIT
#include "desktop/printer_choice.h"

#include <initializer_list>

#include <QTimer>
#include <gtest/gtest.h>

#include "support/desktop/key_press.h"

namespace rbt::test {

namespace {

std::optional<std::string> ChosenBy(std::initializer_list<int> keys) {
  QTimer::singleShot(0, [&] {
    QWidget* form = QApplication::activeModalWidget();
    ASSERT_NE(form, nullptr);
    Settle();
    for (const int key : keys) Press(*form, key);
  });
  return ChoosePrinter({"甲", "乙", "丙"});
}

}  // namespace

TEST(PrinterChoice, TakesTheMarkedPrinterByEnterOrF1) {
  EXPECT_EQ(ChosenBy({Qt::Key_Return}), "甲");
  EXPECT_EQ(ChosenBy({Qt::Key_Down, Qt::Key_Return}), "乙");
  EXPECT_EQ(ChosenBy({Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}), "丙");
  EXPECT_EQ(ChosenBy({Qt::Key_End, Qt::Key_Up, Qt::Key_F1}), "乙");
  EXPECT_EQ(ChosenBy({Qt::Key_Tab, Qt::Key_Return}), "甲") << "by its button";
}

TEST(PrinterChoice, EscTakesNone) {
  EXPECT_EQ(ChosenBy({Qt::Key_Down, Qt::Key_Escape}), std::nullopt);
  EXPECT_EQ(ChosenBy({Qt::Key_Tab, Qt::Key_Right, Qt::Key_Return}), std::nullopt) << "by its button";
}

}  // namespace rbt::test
