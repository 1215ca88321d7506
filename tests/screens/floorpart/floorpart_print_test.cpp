// SPDX-License-Identifier: MIT
// The print buttons of the floor and part forms by their keys, and the small window that tells of printing.
#include <cstdlib>

#include <QApplication>
#include <QScreen>
#include <gtest/gtest.h>

#include "screens/floorpart/floorpart_form_driver.h"
#include "screens/floorpart/print_dlg.h"

namespace rbt::test {
namespace {

TEST(FloorPrintKeys, PrintTheirSheetsAndF5LeavesThePrintButtons) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  form.Key(Qt::Key_F1);
  form.Key(Qt::Key_F7);
  EXPECT_EQ(form.printed, "kai-meisai|kai-bui-futo|");
  EXPECT_TRUE(form.Shows("SSPanel3"));
  EXPECT_FALSE(form.Button("cmdHoop")->isEnabled());
  form.Key(Qt::Key_F5);
  EXPECT_EQ(form.printed, "kai-meisai|kai-bui-futo|kai-goukei|");
  EXPECT_FALSE(form.Shows("SSPanel3"));
  EXPECT_TRUE(form.Shows("SSPanel2"));
  for (const char* button : {"ZairyouR", "Command3", "cmdHoop", "cmdTei", "cmdSave", "cmdLoad", "cmdMent"}) {
    EXPECT_TRUE(form.Button(button)->isEnabled()) << button;
  }
}

TEST(FloorPrintKeys, F3AsksFloorByFloor) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  for (const MessageAnswer answer :
       {MessageAnswer::yes, MessageAnswer::yes, MessageAnswer::no, MessageAnswer::no}) {
    form.site.Answer(answer);
  }
  form.Key(Qt::Key_F3);
  EXPECT_EQ(form.printed, "kai-kakukai 1|");
  EXPECT_EQ(form.Message(), "印刷をつづけますか？");
  EXPECT_FALSE(form.Shows("SSPanel3"));
  EXPECT_TRUE(form.Button("cmdHoop")->isEnabled());
}

TEST(FloorPrintKeys, F3GoesThroughAllFloorsAndStaysWithThePrintButtons) {
  FloorPartDriver form(kFloorScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  for (int question = 0; question < 5; ++question) form.site.Answer(MessageAnswer::yes);
  form.Key(Qt::Key_F3);
  EXPECT_EQ(form.printed, "kai-kakukai 1|kai-kakukai 2|kai-kakukai 3|");
  EXPECT_TRUE(form.Shows("SSPanel3"));
}

TEST(PartPrintKeys, PrintTheirSheetsAndF5LeavesThePrintButtons) {
  FloorPartDriver form(kPartScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  form.Key(Qt::Key_F1);
  EXPECT_EQ(form.printed, "bui-zenbui|");
  EXPECT_TRUE(form.Shows("SSPanel3"));
  form.Key(Qt::Key_F5);
  EXPECT_EQ(form.printed, "bui-zenbui|bui-goukei|");
  EXPECT_FALSE(form.Shows("SSPanel3"));
}

TEST(PartPrintKeys, F3AsksPartByPart) {
  FloorPartDriver form(kPartScreen);
  form.OpenWithResult();
  form.Key(Qt::Key_F1);
  for (const MessageAnswer answer :
       {MessageAnswer::no, MessageAnswer::yes, MessageAnswer::yes, MessageAnswer::no}) {
    form.site.Answer(answer);
  }
  form.Key(Qt::Key_F3);
  EXPECT_EQ(form.printed, "bui-kakubui 2|");
  EXPECT_FALSE(form.Shows("SSPanel3"));
}

TEST(PrintDlg, StandsInTheMiddleOfTheScreenAndTellsThePage) {
  PrintDlg dialog;
  dialog.ShowPage(1);
  EXPECT_EQ(dialog.objectName(), "PRINTDLG");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.windowTitle().toStdString(), "印刷中");
  EXPECT_EQ(dialog.findChild<QLabel*>("Label1")->text().toStdString(), "ただいま印刷中...");
  EXPECT_EQ(dialog.findChild<QLabel*>("Label2")->text().toStdString(), "ページ：");
  EXPECT_EQ(dialog.findChild<QLabel*>("lblPage")->text().toStdString(), "1");
  constexpr int kFrame = 2;  // whole pixels, and a frame that is not the same on all sides
  const QPoint middle = dialog.frameGeometry().center() - dialog.screen()->geometry().center();
  EXPECT_LE(std::abs(middle.x()), kFrame);
  EXPECT_LE(std::abs(middle.y()), kFrame);
}

}  // namespace
}  // namespace rbt::test
