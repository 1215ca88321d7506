// SPDX-License-Identifier: MIT
// The purchase list by its keys: buttons, percentage, restoring, help lines, the way out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/profile/ini_file.h"
#include "platform/system/paths.h"
#include "platform/system/services.h"
#include "screens/detail/detail_form_driver.h"
#include "shell/config/settings.h"

namespace rbt::test {

namespace {

using testing::IsEmpty;
using testing::SizeIs;

/// What the help line tells while a control has the focus.
std::string_view HelpOf(std::string_view control) {
  for (const ControlHint& row : DetailHints()) {
    if (row.control == control) return row.hint;
  }
  return kDetailHelp;
}

std::string PendingCall() { return GetProfileText(MapPath(kNextPrgIni), "データ", "材料明細", "none"); }

}  // namespace

TEST(DetailForm, BearsItsTitleAndCaptionsAndStartsAtThePercentButton) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  EXPECT_EQ(zaimei.form->objectName(), "ZAIMEI");
  EXPECT_EQ(zaimei.form->windowTitle(), "材料明細表");
  for (const DetailButtonRow& row : DetailButtons()) {
    EXPECT_EQ(zaimei.Button(std::string(row.control).c_str())->text().toStdString(), row.caption);
  }
  EXPECT_EQ(zaimei.Focused(), "cmdPercent");
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
  EXPECT_EQ(zaimei.Label("lblMaterial"), "自給材");
  EXPECT_EQ(zaimei.Label("lblTotalWeight"), "434 ㎏");
  EXPECT_EQ(zaimei.Label("lblKojNo"), "001");
  EXPECT_FALSE(zaimei.Shows("picPercent"));
  EXPECT_FALSE(zaimei.Shows("SSPanel3"));
  EXPECT_FALSE(zaimei.Shows("txtHeadMemo"));
}

TEST(DetailForm, ShowsTheGridOfTheSettings) {
  ZaimeiDriver zaimei;
  for (const bool weights : {false, true}) {
    for (const bool metres_13 : {false, true}) {
      Settings.DetailShowsWeight = weights ? 1 : 0;
      Settings.Use13mColumn = metres_13 ? 1 : 0;
      zaimei.OpenForm();
      const std::vector<std::string> captions = zaimei.Captions();
      ASSERT_THAT(captions, SizeIs(metres_13 ? 26 : 25));
      EXPECT_EQ(captions[0] + captions[1], weights ? "" : "鋼材m");
      EXPECT_EQ(captions[2], "3.5");
      EXPECT_EQ(captions[19], "12.0");
      EXPECT_EQ(captions[20], metres_13 ? "13.0" : "重 量");
      EXPECT_EQ(captions.back(), "切 断");
      EXPECT_EQ(zaimei.Grid()->RowCount(), weights ? 26 : 14);
      EXPECT_EQ(zaimei.Cell(weights ? 6 : 3, 0), "D19");
      EXPECT_EQ(zaimei.Cell(weights ? 6 : 3, 7), "10");
    }
  }
}

TEST(DetailForm, FollowsTheSettingsThatAreChosenInItsPrintPanel) {
  ZaimeiDriver zaimei;
  zaimei.settings = [] { Settings.DetailShowsWeight = 1; };
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F4);
  zaimei.Key(Qt::Key_F5);
  EXPECT_EQ(zaimei.Grid()->RowCount(), 26);
  EXPECT_EQ(zaimei.Captions()[0], "");
}

TEST(DetailForm, TheHelpLineFollowsTheFocus) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  EXPECT_EQ(zaimei.Label("MSGB"), "重量を％上乗せします");
  for (const char* control :
       {"cmdHonsuu", "cmdTeisei", "cmdMeisaiPrint", "cmdSave", "cmdLoad", "cmdMent", "cmdExit", "txtSubKojNa",
        "txtSubKojNa2", "txtSubKojNa3", "txtMemoI", "ToriJyuP", "dbgZaimei", "txtYear", "Option1"}) {
    zaimei.FocusOn(control);
    EXPECT_EQ(zaimei.Label("MSGB"), HelpOf(control)) << control;
    if (HelpOf(control) != kDetailHelp) {
      EXPECT_EQ(zaimei.form->findChild<QWidget*>(control)->toolTip().toStdString(), HelpOf(control))
          << control;
    }
    EXPECT_TRUE(zaimei.Shows("MSGB"));
    EXPECT_FALSE(zaimei.Shows("MSGB1"));
  }
  zaimei.Key(Qt::Key_F4);
  zaimei.FocusOn("txtMemoI");
  EXPECT_TRUE(zaimei.Shows("MSGB1"));
  EXPECT_FALSE(zaimei.Shows("MSGB"));
  EXPECT_EQ(zaimei.Label("MSGB1"),
            "メモ印刷位置の指定（Ａ４ヨコのみ）　0:下　1:上（３０文字以内）　を入力して下さい");
}

TEST(DetailForm, LeftAndRightGoFromButtonToButtonAndStayAtTheEnds) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_Left);
  EXPECT_EQ(zaimei.Focused(), "cmdPercent");
  for (const char* next :
       {"cmdHonsuu", "cmdTeisei", "cmdMeisaiPrint", "cmdSave", "cmdLoad", "cmdMent", "cmdExit", "cmdExit"}) {
    zaimei.Key(Qt::Key_Right);
    EXPECT_EQ(zaimei.Focused(), next);
  }
  zaimei.Key(Qt::Key_Left);
  EXPECT_EQ(zaimei.Focused(), "cmdMent");
}

TEST(DetailForm, AsksToWaitWhileTheListIsTalliedAnewAndKeepsTheFocus) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  EXPECT_FALSE(zaimei.Shows("SSPanel4"));
  zaimei.FocusOn("txtSubKojNa2");
  const QRect grid = zaimei.Grid()->geometry();
  int looks = 0;
  const auto events = Services.PendingEvents;
  Services.PendingEvents = [&] {
    events();
    ++looks;
    EXPECT_TRUE(zaimei.Shows("SSPanel4"));
    EXPECT_EQ(zaimei.Pressable(), "");
    EXPECT_FALSE(zaimei.Box("txtSubKojNa2")->isEnabled());
    EXPECT_EQ(zaimei.Grid()->geometry(), grid);
    zaimei.Key(Qt::Key_Escape);
    EXPECT_TRUE(zaimei.form->isVisible()) << "out of reach";
  };
  zaimei.Key(Qt::Key_F3);
  Services.PendingEvents = events;
  EXPECT_GE(looks, 1);
  EXPECT_FALSE(zaimei.Shows("SSPanel4"));
  EXPECT_EQ(zaimei.Focused(), "txtSubKojNa2");
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
}

// Percentage.

TEST(DetailFormPercent, F1WarnsAndAsksAndEnterRaises) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  ASSERT_THAT(zaimei.Told(), SizeIs(1));
  EXPECT_EQ(zaimei.Told()[0].text, "上乗せ作業を中断する場合は、ESCキーを押して下さい");
  EXPECT_EQ(zaimei.Told()[0].title, "注意");
  EXPECT_TRUE(zaimei.Shows("picPercent"));
  EXPECT_EQ(zaimei.Focused(), "txtPercent");
  EXPECT_EQ(zaimei.Pressable(), "cmdPercent");
  EXPECT_FALSE(zaimei.Box("txtSubKojNa")->isEnabled());
  EXPECT_FALSE(zaimei.Box("txtYear")->isEnabled());
  zaimei.Type("10");
  zaimei.Key(Qt::Key_Return);
  EXPECT_EQ(zaimei.Cell(3, 7), "11");
  EXPECT_EQ(zaimei.Label("lblTotalWeight"), "478 ㎏");
  EXPECT_FALSE(zaimei.Shows("picPercent"));
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
  EXPECT_EQ(zaimei.Focused(), "cmdPercent");
  EXPECT_TRUE(zaimei.Box("txtYear")->isEnabled());
}

TEST(DetailFormPercent, ASecondPercentageCompounds) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  for (const char* raised : {"15", "23"}) {
    zaimei.Key(Qt::Key_F1);
    EXPECT_EQ(zaimei.BoxText("txtPercent"), "");
    zaimei.Type("50");
    zaimei.Key(Qt::Key_Return);
    EXPECT_EQ(zaimei.Cell(3, 7), raised);
  }
}

TEST(DetailFormPercent, TakesTheKeysOfADecimalNumberAlone) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  zaimei.Type("-1a2 .5%");
  EXPECT_EQ(zaimei.BoxText("txtPercent"), "-12.5");
  zaimei.Box("txtPercent")->setText("－２０％");
  EXPECT_EQ(zaimei.BoxText("txtPercent"), "-20");
  zaimei.Key(Qt::Key_Return);
  EXPECT_EQ(zaimei.Cell(3, 7), "9") << "Fix(-2 + 0.5) is -1";
}

TEST(DetailFormPercent, NothingTypedRaisesNothingAndMakesWholeKilograms) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  zaimei.Key(Qt::Key_Return);
  EXPECT_EQ(zaimei.Cell(3, 7), "10");
  EXPECT_EQ(zaimei.form->Result().Grid().StockWeight[1][5], Currency::FromInteger(60));
}

TEST(DetailFormPercent, EscLeavesItUnchangedAndASecondEscTheForm) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  zaimei.Type("50");
  zaimei.Key(Qt::Key_Escape);
  EXPECT_TRUE(zaimei.form->isVisible());
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
  EXPECT_EQ(zaimei.form->Result(), zaimei.counted);
  zaimei.Key(Qt::Key_Escape);
  EXPECT_FALSE(zaimei.form->isVisible());
}

TEST(DetailFormPercent, OtherKeysDoNothingMeanwhileAndF1LeadsBackToTheBox) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  for (const int key : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5, Qt::Key_F6, Qt::Key_F7}) {
    EXPECT_TRUE(Press(*zaimei.form, key));
  }
  EXPECT_THAT(zaimei.Told(), SizeIs(1));
  zaimei.FocusOn("dbgZaimei");
  zaimei.Key(Qt::Key_F1);
  EXPECT_EQ(zaimei.Focused(), "txtPercent");
  EXPECT_THAT(zaimei.Told(), SizeIs(1));
}

TEST(DetailFormPercent, AnOverflowIsToldAndLeavesListAndBox) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  zaimei.Type("99999999999");
  zaimei.Key(Qt::Key_Return);
  EXPECT_THAT(zaimei.Told().back().text, testing::HasSubstr("overflow"));
  EXPECT_EQ(zaimei.Told().back().title, "材料明細表");
  EXPECT_EQ(zaimei.form->Result(), zaimei.counted);
  EXPECT_TRUE(zaimei.Shows("picPercent"));
}

// Restoring.

TEST(DetailFormRestore, F3AsksAndTalliesOnceMore) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F1);
  zaimei.Type("50");
  zaimei.Key(Qt::Key_Return);
  zaimei.site.Answer(MessageAnswer::no);
  zaimei.Key(Qt::Key_F3);
  EXPECT_EQ(zaimei.Told().back().text, "全てのデータを上乗せ前の値に戻します。");
  EXPECT_EQ(zaimei.Told().back().title, "材料明細表");
  EXPECT_EQ(zaimei.Told().back().buttons, MessageButtons::yes_no);
  EXPECT_EQ(zaimei.Cell(3, 7), "15");
  zaimei.site.Answer(MessageAnswer::yes);
  zaimei.Key(Qt::Key_F3);
  EXPECT_EQ(zaimei.Cell(3, 7), "10");
  EXPECT_EQ(zaimei.form->Result().Grid(), zaimei.counted.Grid());
}

TEST(DetailFormRestore, AListOfPagesIsRefused) {
  for (const TallyKind kind : {TallyKind::page, TallyKind::page_shape}) {
    ZaimeiDriver zaimei(kind);
    zaimei.OpenForm();
    zaimei.Key(Qt::Key_F3);
    ASSERT_THAT(zaimei.Told(), SizeIs(1));
    EXPECT_EQ(zaimei.Told()[0].text, "値戻しは出来ません。\r\n再度頁行を指定して計算し直してください。");
    EXPECT_EQ(zaimei.Told()[0].title, "値戻し出来ません");
  }
}

// Saved tallies, and the way out.

TEST(DetailForm, WhatIsNotReadyYetSaysSoAndManagingDoesNothing) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  zaimei.Key(Qt::Key_F7);
  EXPECT_THAT(zaimei.Told(), IsEmpty());
  zaimei.Key(Qt::Key_F5);
  EXPECT_EQ(zaimei.Told().back().text, "「保存」は、まだご利用いただけません。");
  zaimei.Key(Qt::Key_F6);
  EXPECT_EQ(zaimei.Told().back().text, "「読込」は、まだご利用いただけません。");
  EXPECT_EQ(zaimei.Told().back().title, "材料明細表");
}

TEST(DetailForm, AFaultIsToldAndTheFormStaysUsable) {
  ZaimeiDriver zaimei;
  zaimei.OpenForm();
  SiteContext.WorkDatabase->Execute("DROP TABLE 加工テーブル");
  zaimei.Key(Qt::Key_F3);
  EXPECT_THAT(zaimei.Told(), SizeIs(2));
  EXPECT_EQ(zaimei.Cell(3, 7), "10");
  EXPECT_EQ(zaimei.Pressable(), kMainButtons);
}

TEST(DetailForm, LeavingAnswersTheCallOfAnotherProgram) {
  using Leaving = std::function<void(ZaimeiDriver&)>;
  const Leaving ways[] = {[](ZaimeiDriver& zaimei) { zaimei.Key(Qt::Key_Escape); },
                          [](ZaimeiDriver& zaimei) { zaimei.Click("cmdExit"); },
                          [](ZaimeiDriver& zaimei) {
                            zaimei.Key(Qt::Key_F2);
                            zaimei.form->close();
                          }};
  for (const Leaving& leave : ways) {
    ZaimeiDriver zaimei;
    zaimei.site.SetIni(kNextPrgFile, "データ", "材料明細", "1");
    zaimei.OpenForm();
    EXPECT_EQ(PendingCall(), "1");
    leave(zaimei);
    EXPECT_FALSE(zaimei.form->isVisible());
    EXPECT_EQ(PendingCall(), "0");
  }
}

TEST(DetailForm, FitsOnASmallScreenAtALargeScale) {
  // 1366 x 768 at 150 %, without the window's frame.
  constexpr QSize kSmall(900, 480);
  ZaimeiDriver zaimei;
  Settings.DetailShowsWeight = 1;
  const auto expect_fit = [&](const char* state) {
    EXPECT_LE(zaimei.form->minimumSizeHint().width(), kSmall.width()) << state;
    EXPECT_LE(zaimei.form->minimumSizeHint().height(), kSmall.height()) << state;
  };
  zaimei.OpenForm();
  expect_fit("buttons");
  zaimei.FocusOn("ToriJyuP");
  expect_fit("the longest help");
  zaimei.Key(Qt::Key_F1);
  expect_fit("percent");
  zaimei.Key(Qt::Key_Escape);
  zaimei.Key(Qt::Key_F2);
  expect_fit("correction");
  zaimei.Key(Qt::Key_Escape);
  zaimei.Key(Qt::Key_F4);
  expect_fit("print panel");
}

}  // namespace rbt::test
