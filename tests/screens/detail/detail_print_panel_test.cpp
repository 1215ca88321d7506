// SPDX-License-Identifier: MIT
// The purchase list's fields and its print panel, by their keys.
#include <list>

#include <QCheckBox>
#include <QRadioButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/services.h"
#include "screens/detail/detail_form_driver.h"
#include "shell/config/settings.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

}  // namespace

TEST(DetailFormFields, EnterGoesFromFieldToField) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.FocusOn("txtSubKojNa");
  for (const char* next : {"txtSubKojNa2", "txtSubKojNa3", "txtMemoI", "ToriJyuP", "Option1"}) {
    zaimei.Key(Qt::Key_Return);
    EXPECT_EQ(zaimei.Focused(), next);
  }
}

TEST(DetailFormFields, BoxesOfOneDigitTake0And1AndRefuseAllElse) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  for (const char* box : {"txtMemoI", "ToriJyuP"}) {
    zaimei.FocusOn(box);
    EXPECT_EQ(zaimei.BoxText(box), "0");
    zaimei.Type("1");
    EXPECT_EQ(zaimei.BoxText(box), "1") << box;
    zaimei.Type("2x-");
    EXPECT_EQ(zaimei.BoxText(box), "1") << box;
    zaimei.Key(Qt::Key_Backspace);
    EXPECT_EQ(zaimei.BoxText(box), "1") << "never empty";
    zaimei.Key(Qt::Key_End);
    zaimei.Type("0");
    EXPECT_EQ(zaimei.BoxText(box), "0") << "behind the other digit";
    zaimei.Type("１");
    EXPECT_EQ(zaimei.BoxText(box), "1") << "full-width";
  }
  EXPECT_THAT(zaimei.Told(), IsEmpty());
}

TEST(DetailFormFields, TheMemoPositionIsKeptAndTheInstalledWeightsAreNot) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  for (const char* box : {"txtMemoI", "ToriJyuP"}) {
    zaimei.FocusOn(box);
    zaimei.Type("1");
  }
  EXPECT_EQ(ReadSetting(kMemoPositionKey), 1);
  EXPECT_EQ(ReadSetting(kDetailPrintKey), 0);
  zaimei.OpenForm();
  EXPECT_EQ(zaimei.BoxText("txtMemoI") + zaimei.BoxText("ToriJyuP"), "10");
}

TEST(DetailFormFields, ThePlaceOfTheDateIsKeptAtOnce) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  EXPECT_EQ(zaimei.form->findChild<QRadioButton*>("Option1")->text(), "中上");
  EXPECT_EQ(zaimei.form->findChild<QRadioButton*>("Option2")->text(), "右上");
  EXPECT_TRUE(zaimei.form->findChild<QRadioButton*>("Option1")->isChecked());
  zaimei.form->findChild<QRadioButton*>("Option2")->click();
  EXPECT_EQ(ReadSetting(kDetailDatePositionKey), 1);
  zaimei.OpenForm();
  EXPECT_TRUE(zaimei.form->findChild<QRadioButton*>("Option2")->isChecked());
  zaimei.form->findChild<QRadioButton*>("Option1")->click();
  EXPECT_EQ(ReadSetting(kDetailDatePositionKey), 0);
}

TEST(DetailFormFields, TheDateStandsAtTodayAndIsMovedThroughByItsKeys) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  EXPECT_EQ(zaimei.BoxText("txtYear") + zaimei.BoxText("txtMonth") + zaimei.BoxText("txtDay"), "20261121");
  zaimei.FocusOn("txtYear");
  zaimei.Key(Qt::Key_Return);
  EXPECT_EQ(zaimei.Focused(), "txtMonth");
  zaimei.Key(Qt::Key_Right);
  EXPECT_EQ(zaimei.Focused(), "txtDay");
  zaimei.Key(Qt::Key_Left);
  EXPECT_EQ(zaimei.Focused(), "txtMonth");
  zaimei.Type("x3");
  EXPECT_EQ(zaimei.BoxText("txtMonth"), "3");
}

TEST(DetailFormPrintPanel, F4TakesThePlaceOfTheMainButtonsAndEscBringsThemBack) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F4);
  EXPECT_TRUE(zaimei.Shows("SSPanel3"));
  EXPECT_FALSE(zaimei.Shows("SSPanel2"));
  EXPECT_EQ(zaimei.Pressable(), "btnA4Y btnA4T btnSettei btnReturn");
  EXPECT_FALSE(zaimei.Shows("btnB5Y"));
  EXPECT_EQ(zaimei.Focused(), "btnA4Y");
  EXPECT_TRUE(zaimei.Box("txtSubKojNa")->isEnabled());
  zaimei.Key(Qt::Key_F2);
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F7);
  EXPECT_TRUE(zaimei.Shows("SSPanel3"));
  EXPECT_THAT(zaimei.calls, IsEmpty());
  zaimei.Key(Qt::Key_Escape);
  EXPECT_TRUE(zaimei.form->isVisible());
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
  EXPECT_EQ(zaimei.Focused(), "cmdMeisaiPrint");
}

TEST(DetailFormPrintPanel, ItsKeysPrintThePapersAndOpenTheSettings) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F5);
  zaimei.Key(Qt::Key_F1);
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F8);
  zaimei.Key(Qt::Key_F3);
  EXPECT_THAT(zaimei.calls, ElementsAre("settings", "print", "print"));
  ASSERT_THAT(zaimei.orders, SizeIs(2));
  EXPECT_EQ(zaimei.orders[0].paper, ReportPaper::a4y);
  EXPECT_FALSE(zaimei.orders[0].preview);
  EXPECT_EQ(zaimei.orders[1].paper, ReportPaper::a4t);
  EXPECT_TRUE(zaimei.orders[1].preview);
  EXPECT_TRUE(zaimei.form->findChild<QCheckBox*>("chkPreview")->isChecked());
  EXPECT_EQ(zaimei.Pressable(), kMainButtons) << "a printed sheet closes the panel";
}

TEST(DetailFormPrintPanel, PrintsWhatTheFieldsHold) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.FocusOn("txtSubKojNa");
  zaimei.Type("一工区");
  zaimei.FocusOn("txtSubKojNa3");
  zaimei.Type("午前");
  zaimei.FocusOn("txtMemoI");
  zaimei.Type("1");
  zaimei.FocusOn("ToriJyuP");
  zaimei.Type("1");
  zaimei.form->findChild<QRadioButton*>("Option2")->click();
  zaimei.Box("txtDay")->setText("5");
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F1);
  ASSERT_THAT(zaimei.orders, SizeIs(1));
  const DetailOrder& order = zaimei.orders[0];
  EXPECT_EQ(order.result, zaimei.counted);
  EXPECT_THAT(order.detail.Memos, ElementsAre("一工区", "", "午前"));
  EXPECT_EQ(order.detail.MemoPosition, MemoPlace::above);
  EXPECT_TRUE(order.detail.Installed);
  EXPECT_EQ(order.detail.DatePosition, DatePlace::right);
  EXPECT_EQ(order.date.day, "5");
}

TEST(DetailFormPrintPanel, AYearThatDoesNotPassGetsTheFocusAndNothingIsPrinted) {
  ZaimeiDriver zaimei;
  SaveSetting(kDateStyleKey, 2);
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F4);
  zaimei.Box("txtYear")->setText("32");
  zaimei.Key(Qt::Key_F1);
  EXPECT_THAT(zaimei.orders, IsEmpty());
  EXPECT_EQ(zaimei.Focused(), "txtYear");
  EXPECT_TRUE(zaimei.Shows("SSPanel3"));
}

TEST(DetailFormPrintPanel, TellsThePrinterThatTookTheSheet) {
  ZaimeiDriver zaimei;
  zaimei.printer = "甲";
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F1);
  EXPECT_EQ(zaimei.Label("lblNotice"), "「甲」に送りました。");
}

TEST(DetailFormPrintPanel, AnotherPrinterCanBeTakenInPlaceOfOneThatIsNotThere) {
  ZaimeiDriver zaimei;
  std::list<PrinterSurface> printers;
  printers.emplace_back("乙", DeviceKind::installed_printer, [](const PrintedDocument&) {});
  Services.Printers = PrinterList(std::move(printers));
  std::vector<std::string> offered;
  zaimei.parts.choose_printer = [&offered](const std::vector<std::string>& names) {
    offered = names;
    return std::optional<std::string>();
  };
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F9);
  EXPECT_THAT(offered, IsEmpty()) << "the panel is closed";
  zaimei.Key(Qt::Key_F4);
  EXPECT_TRUE(zaimei.Shows("btnPrinter"));
  zaimei.Key(Qt::Key_F9);
  EXPECT_THAT(offered, ElementsAre("乙"));
}

TEST(DetailFormPrintPanel, AFaultOfTheSheetIsToldAndLeavesItOpen) {
  ZaimeiDriver zaimei;
  zaimei.parts.print = [](const DetailOrder&) -> std::string { throw Fault(FaultKind::file, "no paper"); };
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F3);
  EXPECT_THAT(zaimei.Told(), SizeIs(1));
  EXPECT_TRUE(zaimei.Shows("SSPanel3"));
}

}  // namespace rbt::test
