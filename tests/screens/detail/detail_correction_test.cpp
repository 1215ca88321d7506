// SPDX-License-Identifier: MIT
// The correction of counts in the purchase list, by its keys.
#include <QHeaderView>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/detail/detail_form_driver.h"
#include "shell/config/settings.h"

namespace rbt::test {

namespace {

using testing::HasSubstr;
using testing::SizeIs;

/// Goes from the first cell to the bars of D19 by 6.0 m.
void GoToD19(ZaimeiDriver& zaimei) {
  for (int i = 0; i < 3; ++i) zaimei.Key(Qt::Key_Down);
  for (int i = 0; i < 5; ++i) zaimei.Key(Qt::Key_Right);
}

}  // namespace

TEST(DetailCorrection, F2WarnsAndOpensTheGridAtItsFirstCount) {
  for (const bool weights : {false, true}) {
    ZaimeiDriver zaimei;
    Settings.DetailShowsWeight = weights ? 1 : 0;
    zaimei.OpenForCorrection();
    ASSERT_THAT(zaimei.Told(), SizeIs(1));
    EXPECT_EQ(zaimei.Told()[0].text,
              "重量は修正出来ません。本数のみ修正出来ます。\r\n"
              "本数･圧接入力作業を中断する場合は、ESCキーを押して下さい");
    EXPECT_EQ(zaimei.Told()[0].title, "注意");
    EXPECT_EQ(zaimei.Current(), "0 2");
    EXPECT_TRUE(zaimei.Grid()->hasFocus());
    EXPECT_EQ(zaimei.Pressable(), "");
    EXPECT_FALSE(zaimei.Box("txtMemoI")->isEnabled());
  }
}

TEST(DetailCorrection, TypedDigitsReplaceTheCountWhenTheCellIsLeft) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  GoToD19(zaimei);
  EXPECT_EQ(zaimei.Current(), "3 7");
  zaimei.Type("1,000");
  zaimei.Key(Qt::Key_Down);
  EXPECT_EQ(zaimei.Cell(3, 7), "1,000");
  EXPECT_EQ(zaimei.Cell(3, 20), "13,500");
  EXPECT_EQ(zaimei.Label("lblTotalWeight"), "13,799 ㎏");
  EXPECT_EQ(zaimei.Current(), "4 7");
  EXPECT_EQ(zaimei.form->Result().origin, ResultOrigin::corrected);
}

TEST(DetailCorrection, EnterTakesTheCountTooAndAnEmptyOneIsNone) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  GoToD19(zaimei);
  zaimei.Type("7");
  zaimei.KeyInEditor(Qt::Key_Return);
  EXPECT_EQ(zaimei.Cell(3, 7), "7");
  zaimei.Type("8");
  qobject_cast<QLineEdit*>(QApplication::focusWidget())->clear();
  zaimei.KeyInEditor(Qt::Key_Return);
  EXPECT_EQ(zaimei.Cell(3, 7), "");
  EXPECT_EQ(zaimei.form->Result().Grid().BarCount[3][5], 0);
}

TEST(DetailCorrection, FittingsAreWrittenAndSummed) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  for (int i = 0; i < 3; ++i) zaimei.Key(Qt::Key_Down);
  zaimei.Key(Qt::Key_End);
  EXPECT_EQ(zaimei.Current(), "3 24");
  for (const char* count : {"14", "13", "12", "11"}) {
    zaimei.Type(count);
    zaimei.KeyInEditor(Qt::Key_Return);
    zaimei.Key(Qt::Key_Left);
  }
  const TallyTable& table = zaimei.form->Result().Grid();
  EXPECT_EQ(table.CutCount[3], 14);
  EXPECT_EQ(table.PlateCount[3], 13);
  EXPECT_EQ(table.ThreadCount[3], 12);
  EXPECT_EQ(table.WeldCount[3], 11);
  EXPECT_EQ(zaimei.Cell(12, 21), "17");  // 3 of D13 and 3 of D25 beside them
  EXPECT_EQ(zaimei.Current(), "3 19") << "Left goes over the weight, which cannot be corrected";
}

TEST(DetailCorrection, WithWeightsTheKeysGoOverTheLinesOfWeights) {
  ZaimeiDriver zaimei;
  Settings.DetailShowsWeight = 1;
  zaimei.OpenForCorrection();
  zaimei.Key(Qt::Key_Down);
  EXPECT_EQ(zaimei.Current(), "2 2");
  zaimei.Key(Qt::Key_Down);
  zaimei.Key(Qt::Key_Down);
  for (int i = 0; i < 5; ++i) zaimei.Key(Qt::Key_Right);
  EXPECT_EQ(zaimei.Current(), "6 7");
  zaimei.Type("20");
  zaimei.Key(Qt::Key_Up);
  EXPECT_EQ(zaimei.Current(), "4 7");
  EXPECT_EQ(zaimei.Cell(6, 7), "20");
  EXPECT_EQ(zaimei.Cell(7, 7), "270");
}

TEST(DetailCorrection, TheKeysStayAmongTheCounts) {
  for (const bool weights : {false, true}) {
    ZaimeiDriver zaimei;
    Settings.DetailShowsWeight = weights ? 1 : 0;
    const std::string last = weights ? "22" : "11";
    zaimei.OpenForCorrection();
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp}) {
      zaimei.Key(key);
      EXPECT_EQ(zaimei.Current(), "0 2") << key;
    }
    for (int i = 0; i < 30; ++i) zaimei.Key(Qt::Key_Down);
    EXPECT_EQ(zaimei.Current(), last + " 2");
    zaimei.Key(Qt::Key_PageDown);
    EXPECT_EQ(zaimei.Current(), last + " 2");
    for (int i = 0; i < 30; ++i) zaimei.Key(Qt::Key_Right);
    EXPECT_EQ(zaimei.Current(), last + " 24");
  }
}

TEST(DetailCorrection, WhatIsNoDigitIsRefusedAtTheKey) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  GoToD19(zaimei);
  zaimei.Type("x");
  EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr) << "no letter opens a cell";
  zaimei.Type("4x-.2");
  zaimei.Key(Qt::Key_Down);
  EXPECT_EQ(zaimei.Cell(3, 7), "42");
}

TEST(DetailCorrection, WeightsLabelsAndTotalsTakeNothing) {
  ZaimeiDriver zaimei;
  Settings.DetailShowsWeight = 1;
  zaimei.OpenForCorrection();
  for (const auto& [line, column] : {std::pair(7, 7), std::pair(6, 20), std::pair(6, 0), std::pair(24, 7)}) {
    zaimei.Grid()->setCurrentIndex(zaimei.Grid()->model()->index(line, column));
    const std::string before = zaimei.Cell(line, column);
    zaimei.Type("5");
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr);
    EXPECT_EQ(zaimei.Cell(line, column), before);
  }
  EXPECT_EQ(zaimei.form->Result(), zaimei.counted);
}

TEST(DetailCorrection, ABoxThatIsLeftAsItWasCorrectsNothing) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  const QModelIndex d13 = zaimei.Grid()->model()->index(1, 7);
  zaimei.Grid()->setCurrentIndex(d13);
  zaimei.Grid()->edit(d13);
  zaimei.KeyInEditor(Qt::Key_Return);
  EXPECT_EQ(zaimei.form->Result(), zaimei.counted) << "59.7 kg stay 59.7 kg";
}

TEST(DetailCorrection, EscEndsItAndOnlyThenTheForm) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  GoToD19(zaimei);
  zaimei.Type("500");
  zaimei.Key(Qt::Key_Down);
  zaimei.Type("9");  // under way when it ends: not taken
  zaimei.KeyInEditor(Qt::Key_Escape);
  EXPECT_TRUE(zaimei.form->isVisible());
  EXPECT_EQ(zaimei.Cell(3, 7), "500");
  EXPECT_EQ(zaimei.Cell(4, 7), "");
  EXPECT_EQ(zaimei.Focused(), "cmdHonsuu");
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
  zaimei.FocusOn("dbgZaimei");
  zaimei.Type("8");
  EXPECT_EQ(zaimei.Cell(4, 7), "") << "the grid is closed";
  zaimei.Key(Qt::Key_Escape);
  EXPECT_FALSE(zaimei.form->isVisible());
}

TEST(DetailCorrection, KeysOfTheButtonsDoNothingMeanwhile) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  for (int key = Qt::Key_F1; key <= Qt::Key_F8; ++key) zaimei.Key(key);
  EXPECT_THAT(zaimei.Told(), SizeIs(1));
  EXPECT_FALSE(zaimei.Shows("SSPanel3"));
  EXPECT_FALSE(zaimei.Shows("picPercent"));
}

TEST(DetailCorrection, ACountBeyondAllBoundsIsToldAndLeavesTheCell) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  GoToD19(zaimei);
  zaimei.Type("2147483648");
  zaimei.Key(Qt::Key_Down);
  EXPECT_THAT(zaimei.Told().back().text, HasSubstr("overflow"));
  EXPECT_EQ(zaimei.Cell(3, 7), "10");
  EXPECT_EQ(zaimei.form->Result(), zaimei.counted);
}

TEST(DetailCorrection, LettersBecomeSmallerUntilAllColumnsAreInSight) {
  ZaimeiDriver zaimei;
  for (int l = 0; l < 18; ++l) zaimei.counted.Grid().BarCount[0][l] = 12'345;
  zaimei.OpenForm();
  const auto points = [&] { return zaimei.Grid()->font().pointSizeF(); };
  const double at_first = points();
  EXPECT_LT(at_first, zaimei.form->font().pointSizeF());
  EXPECT_LE(zaimei.Grid()->horizontalHeader()->length(), zaimei.Grid()->viewport()->width());
  zaimei.form->resize(zaimei.form->width() / 2, zaimei.form->height());
  Settle();
  EXPECT_EQ(points(), 9.0) << "they can be read still";
  zaimei.form->resize(zaimei.form->width() * 4, zaimei.form->height());
  Settle();
  EXPECT_EQ(points(), zaimei.form->font().pointSizeF());
}

TEST(DetailCorrection, ALongCountWidensItsColumn) {
  ZaimeiDriver zaimei;
  zaimei.OpenForCorrection();
  GoToD19(zaimei);
  zaimei.Type("12345678");
  zaimei.Key(Qt::Key_Down);
  EXPECT_EQ(zaimei.Cell(3, 7), "12,345,678");
  EXPECT_EQ(zaimei.Current(), "4 7");
  const QFontMetrics metrics(zaimei.Grid()->font());
  EXPECT_GT(zaimei.Grid()->columnWidth(7), metrics.horizontalAdvance("12,345,678"));
}

}  // namespace rbt::test
