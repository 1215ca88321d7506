// SPDX-License-Identifier: MIT
#include "screens/panels/date_boxes.h"

#include <gtest/gtest.h>

#include "screens/result/result_form_driver.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"

namespace rbt::test {

namespace {

/// The print panel open, with a date style.
struct OpenPanel : ResultFormDriver {
  explicit OpenPanel(std::int32_t date_style) {
    SaveSetting(kDateStyleKey, date_style);
    Open();
    Key(Qt::Key_F1);
  }
};

}  // namespace

TEST(DateBoxes, AreTodayByDefaultInTheStyleOfTheSetting) {
  const OpenPanel western(1);
  EXPECT_EQ(western.Box("txtYear")->text(), "2026");
  EXPECT_EQ(western.Box("txtMonth")->text(), "11");
  EXPECT_EQ(western.Box("txtDay")->text(), "21");
  const OpenPanel era(2);
  EXPECT_EQ(era.Box("txtYear")->text(), "08");
}

TEST(DateBoxes, KeepWhatWasTyped) {
  OpenPanel panel(1);
  panel.Box("txtDay")->setText("5");
  panel.Key(Qt::Key_Escape);
  panel.Key(Qt::Key_F1);
  EXPECT_EQ(panel.Box("txtDay")->text(), "5");
}

TEST(DateBoxes, TakeDigitsOnly) {
  OpenPanel panel(1);
  panel.Box("txtMonth")->clear();
  panel.Type("txtMonth", "a1b");
  EXPECT_EQ(panel.Box("txtMonth")->text(), "1");
}

TEST(DateBoxes, EnterMovesOnAndArrowsMoveBetween) {
  OpenPanel panel(1);
  panel.Box("txtYear")->setFocus();
  panel.Key(Qt::Key_Return);
  EXPECT_EQ(panel.Focused(), "txtMonth");
  panel.Key(Qt::Key_Down);
  EXPECT_EQ(panel.Focused(), "txtDay");
  panel.Key(Qt::Key_Up);
  panel.Key(Qt::Key_Left);
  EXPECT_EQ(panel.Focused(), "txtYear");
  panel.Key(Qt::Key_Right);
  EXPECT_EQ(panel.Focused(), "txtMonth");
}

TEST(DateBoxes, AnEraYearOf32OrMoreGetsTheFocusBack) {
  OpenPanel panel(2);
  panel.Box("txtYear")->setFocus();
  panel.Box("txtYear")->setText("32");
  panel.Key(Qt::Key_Return);
  EXPECT_EQ(panel.Focused(), "txtYear");
  panel.Button("btnA4Y")->setFocus();
  Settle();
  EXPECT_EQ(panel.Focused(), "txtYear");
  panel.Key(Qt::Key_F1);
  for (const ShownMessage& message : panel.site.Messages()) {
    EXPECT_EQ(message.text, "和暦の年は 31 までです。");
    EXPECT_EQ(message.title, "重量集計");
  }
  EXPECT_EQ(panel.site.Messages().size(), 3U) << "for Enter, for the way to the button, for the print key";
  panel.Box("txtYear")->setText("31");
  panel.Key(Qt::Key_Return);
  EXPECT_EQ(panel.Focused(), "txtMonth");
}

TEST(DateBoxes, AMonthAndADayThatThereIsNotGetTheFocusBack) {
  OpenPanel panel(1);
  panel.Box("txtMonth")->setFocus();
  panel.Box("txtMonth")->setText("13");
  panel.Key(Qt::Key_Return);
  EXPECT_EQ(panel.Focused(), "txtMonth");
  EXPECT_EQ(panel.site.Messages().back().text, "月は 12 までです。");
  panel.Box("txtMonth")->setText("2");
  panel.Key(Qt::Key_Return);
  panel.Box("txtDay")->setText("29");
  panel.Key(Qt::Key_Return);
  EXPECT_EQ(panel.Focused(), "txtDay");
  EXPECT_EQ(panel.site.Messages().back().text, "2 月は 28 日までです。");
  panel.Key(Qt::Key_Up);
  EXPECT_EQ(panel.Focused(), "txtMonth") << "the month may be what is wrong";
  panel.Box("txtMonth")->setText("3");
  panel.Button("btnA4Y")->setFocus();
  Settle();
  EXPECT_EQ(panel.Focused(), "btnA4Y");
}

TEST(DateBoxes, AreNotCheckedOnceThePanelIsClosed) {
  OpenPanel panel(1);
  panel.Box("txtMonth")->setFocus();
  panel.Box("txtMonth")->setText("13");
  panel.Key(Qt::Key_Escape);
  EXPECT_TRUE(panel.site.Messages().empty());
  EXPECT_EQ(panel.Focused(), "dbgJS");
}

}  // namespace rbt::test
