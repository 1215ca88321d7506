// SPDX-License-Identifier: MIT
#include <QGroupBox>
#include <QLabel>
#include <gtest/gtest.h>

#include "screens/menu/menu_driver.h"

namespace rbt::test {

namespace {

struct Caption {
  const char* control;
  const char* text;
};

// Word for word: full- and half-width brackets and runs of blanks differ from row to row.
constexpr Caption kButtonCaptions[] = {
    {"cmdShuukei", "一   括   集   計      (F1)"},
    {"cmdAllSites", " 全 現 場 集 計 (F2）"},
    {"cmdPGShuukei", "頁  行  別  集  計    (F3)"},
    {"cmdWeldCount", "階･部位別圧接数集計  （F4）"},
    {"cmdKeijoShuukei", "形状別 一括 集計    (F5)"},
    {"cmdPlateCount", "階･部位別定着板数集計(F6)"},
    {"cmdKeijoPGShuukeia", "形状別 頁行別 集計 (F7)"},
    {"cmdKaiShuukei", "階    別    集    計   (F8)"},
    {"cmdBuiShuukei", "部  位  別  集  計   (F9)"},
    {"cmdKaiBuiK", "階別･部位別集計   （F10）"},
    {"cmdSiteSum", " 工 事 別 集 計 (F11）"},
    {"cmdTouroS", " 登 録 名 集 計  （F12）"},
    {"cmdCouplerCount", "階･部位別カプラ数集計 (0)"},
    {"cmdCutCount", "階･部位別切断数集計   (1)"},
    {"cmdMeiEfu", "部位等指定明細印字 (2)"},
    {"cmdPlateSheet", "定着板加工帳印字 (3)"},
    {"Command1", "年号等集計印刷設定"},
    {"cmdExit", "終           了 (ESC)"},
};

}  // namespace

TEST(MenuCaptions, EveryButtonBearsItsCaptionBlankForBlank) {
  ScriptedMenu driver;
  driver.Open();
  for (const Caption& row : kButtonCaptions) {
    EXPECT_EQ(driver.menu->findChild<QPushButton*>(row.control)->text(), row.text) << row.control;
  }
  EXPECT_EQ(driver.menu->findChildren<QPushButton*>().size(),
            static_cast<qsizetype>(std::size(kButtonCaptions)));
}

TEST(MenuCaptions, TheFrameHoldsTheTwoProgramsThatWriteCsvFiles) {
  ScriptedMenu driver;
  driver.Open();
  const auto* frame = driver.menu->findChild<QGroupBox*>("FramCSV");
  EXPECT_EQ(frame->title(), " ＣＳＶデータ書き出し機能付き ");
  EXPECT_NE(frame->findChild<QPushButton*>("cmdAllSites"), nullptr);
  EXPECT_NE(frame->findChild<QPushButton*>("cmdSiteSum"), nullptr);
  EXPECT_EQ(frame->findChild<QLabel*>("labelCsvKinds")->text(), "［加工日・出荷日・階別・部位別］");
  EXPECT_EQ(frame->findChild<QLabel*>("labelCsvDates")->text(), "［指定した日付でCSVﾌｧｲﾙ作成］");
}

TEST(MenuCaptions, TitleAndStatusLineStandAsDesigned) {
  ScriptedMenu driver;
  driver.Open();
  EXPECT_EQ(driver.menu->windowTitle(), "重量集計メニュー");
  EXPECT_EQ(driver.menu->findChild<QLabel*>("JSMENUMS")->text(),
            "F1 ～ F12 ・ 0　キーで選択して下さい（マウスクリックでも可）　　　　ESC：終了");
}

TEST(MenuCaptions, TheRestrictedMenuTellsItsShorterListOfKeys) {
  ScriptedMenu driver(-1, "j");
  driver.Open();
  EXPECT_EQ(driver.menu->findChild<QLabel*>("JSMENUMS")->text(),
            "F1 ～ F10　キーで選択して下さい（マウスクリックでも可）　　　　ESC：終了");
}

}  // namespace rbt::test
