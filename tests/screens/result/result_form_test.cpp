// SPDX-License-Identifier: MIT
#include <list>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/grid_cell.h"
#include "platform/system/services.h"
#include "screens/result/result_form_driver.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

using testing::HasSubstr;

// Ten bars of 6.0 m: D19 13.5 kg each, D13 5.97, D25 23.9 (three figures); U 9 is 0.5 kg/m x 60 m.
constexpr const char* kD19 = "135 |135 |0 |3|0|";
constexpr const char* kHoop = "60 |60 |0 |3|0|";
constexpr const char* kU9 = "|30 ||3||";

}  // namespace

TEST(BulkScreen, ShowsTheTallyWhenItOpens) {
  ResultFormDriver js;
  js.Open();
  EXPECT_EQ(js.Row("D19"), kD19);
  EXPECT_EQ(js.Row("U 9"), kU9);
  // 135 + 60 + 239 stock; the thin bars' 30 join the installed grand total.
  EXPECT_EQ(js.Row("総　　合　　計"), "434 kg|464 kg||||");
  EXPECT_EQ(js.Label("Label8"), "異形･高強度･ネジ･ｽﾘｯﾄ");
  EXPECT_EQ(js.Label("Label9"), "すべて");
  EXPECT_EQ(js.Label("lblKojNo"), "001");
  EXPECT_EQ(js.Focused(), "dbgJS");
  EXPECT_FALSE(js.Shows("SSPanel3"));
  EXPECT_FALSE(js.Shows("SSPanel4"));
  EXPECT_FALSE(js.Shows("Command1"));
  EXPECT_FALSE(js.Shows("hozon"));
  EXPECT_FALSE(js.Shows("Lwarning"));
}

TEST(BulkScreen, BearsItsTitleTheHeadOfTheSiteAndItsCaptions) {
  ResultFormDriver js;
  js.Open();
  EXPECT_EQ(js.form->windowTitle(), "重量集計");
  const std::pair<const char*, const char*> head[] = {
      {"lblKojNo", "001"},     {"lblKojNa", "試験工事"}, {"lblKykCd", "1"},       {"lblKykNa", "試験商店"},
      {"LabelCD", "20261121"}, {"LabelCT", "090000"},    {"lblSubKojNa", "メモ"}, {"Label4", "(形状No87)を"}};
  for (const auto& [label, text] : head) EXPECT_EQ(js.Label(label), text) << label;
  const std::pair<const char*, const char*> captions[] = {
      {"cmdPrint", "合計表印字(F1)"}, {"cmdUSum", "ｳﾙﾎﾞﾝ集計(F2)"}, {"cmdurubon", "ｳﾙﾎﾞﾝ%増し(F3)"},
      {"cmdPrint2", "異形印字(F3)"},  {"CmdVReturn", "値戻し(F4)"}, {"cmdMeisai", "明細表示(F5)"},
      {"Command6", "集計加算（F6)"},  {"Command1", "計算用"},       {"Command2", "材料変更"},
      {"Command3", "材質変更"},       {"cmdHoop", "含む"},          {"cmdTei", "含む"},
      {"cmdExit", "終了（Esc）"},     {"btnA4Y", "A4ヨコ （F1）"},  {"btnA4T", "A4タテ （F3）"},
      {"btnB5Y", "B5ヨコ （F5）"},    {"btnSettei", "設定 （F7）"}, {"btnReturn", "終 了 （Esc）"}};
  for (const auto& [button, text] : captions)
    EXPECT_EQ(js.Button(button)->text().toStdString(), text) << button;
  const char* columns[] = {"太    さ", "定尺重量", "取付重量", "差    引", "圧    接", "切    断"};
  for (int column = 0; column < 6; ++column) {
    EXPECT_EQ(js.Grid()->model()->headerData(column, Qt::Horizontal).toString().toStdString(),
              columns[column]);
  }
}

TEST(ResultScreens, AskToWaitInTheirWordsWhileATallyRuns) {
  const std::pair<const ResultScreen*, const char*> screens[] = {{&kBulkScreen, "お待ち下さい"},
                                                                 {&kPageScreen, "お待ち下さい"},
                                                                 {&kShapeScreen, "計算中！！"},
                                                                 {&kPageShapeScreen, "計算中！！"}};
  for (const auto& [screen, words] : screens) {
    ResultFormDriver js;
    js.Open(*screen);
    js.form->TakeRange();
    Settle();
    const char* panel = screen == &kBulkScreen ? "SSPanel4" : "waitPanel";
    EXPECT_FALSE(js.Shows(panel)) << screen->name;
    std::string seen;
    bool print_in_reach = true;
    const auto events = Services.PendingEvents;
    Services.PendingEvents = [&] {
      if (!js.Shows(panel)) return;
      seen = js.Label("WaitMsgL");
      print_in_reach = js.Button("cmdPrint")->isEnabled();
    };
    js.Click("cmdHoop");
    Services.PendingEvents = events;
    EXPECT_EQ(seen, words) << screen->name;
    EXPECT_FALSE(print_in_reach) << screen->name;
    EXPECT_FALSE(js.Shows(panel)) << screen->name;
    EXPECT_TRUE(js.Button("cmdExit")->isEnabled()) << screen->name;
  }
}

TEST(BulkScreen, HasTheButtonsOfHoopsAndPlatesOnlyWhereTheSiteHasSuchShapes) {
  ResultFormDriver js;
  js.Open();
  EXPECT_TRUE(js.Shows("cmdHoop"));
  EXPECT_TRUE(js.Shows("Label4"));
  EXPECT_TRUE(js.Shows("cmdTei"));
  for (const std::int32_t mode : {1, 3, 4}) {
    ResultFormDriver other(mode);
    other.Open();
    EXPECT_FALSE(other.Shows("cmdHoop")) << mode;
    EXPECT_FALSE(other.Shows("cmdTei")) << mode;
  }
}

TEST(BulkScreen, CyclesTheHoopsThroughIncludedLeftOutAndOnly) {
  ResultFormDriver js;
  js.Open();
  js.Click("cmdHoop");
  EXPECT_EQ(js.Button("cmdHoop")->text(), "含まず");
  EXPECT_EQ(js.Label("Label4"), "(形状No87)を");
  EXPECT_EQ(js.Row("D13"), "0 |0 |0 |0|0|");
  js.Click("cmdHoop");
  EXPECT_EQ(js.Button("cmdHoop")->text(), "のみ");
  EXPECT_EQ(js.Label("Label4"), "(形状No87)");
  EXPECT_EQ(js.Row("D13"), kHoop);
  EXPECT_EQ(js.Row("D19"), "0 |0 |0 |0|0|");
  js.Click("cmdHoop");
  EXPECT_EQ(js.Button("cmdHoop")->text(), "含む");
  EXPECT_EQ(js.Row("D19"), kD19);
}

TEST(BulkScreen, CyclesThePlates) {
  ResultFormDriver js;
  js.Open();
  js.Button("cmdTei")->setFocus();
  js.Key(Qt::Key_Return);
  EXPECT_EQ(js.Button("cmdTei")->text(), "含まず");
  EXPECT_EQ(js.Row("D25"), "0 |0 |0 |0|0|");
  js.Click("cmdTei");
  EXPECT_EQ(js.Button("cmdTei")->text(), "のみ");
  EXPECT_EQ(js.Row("D19"), "0 |0 |0 |0|0|");
  EXPECT_EQ(js.Focused(), "cmdTei");
}

TEST(BulkScreen, AnyNarrowingFilterHidesAccumulationAndPrintUntilThePictureIsWholeAgain) {
  ResultFormDriver js;
  js.Open();
  js.Click("cmdTei");
  for (const char* button : {"Command6", "cmdPrint", "cmdPrint2"}) EXPECT_FALSE(js.Shows(button)) << button;
  js.Key(Qt::Key_F1);
  EXPECT_FALSE(js.Shows("SSPanel3"));
  js.Click("cmdTei");
  js.Click("cmdTei");
  for (const char* button : {"Command6", "cmdPrint", "cmdPrint2"}) EXPECT_TRUE(js.Shows(button)) << button;
}

TEST(BulkScreen, KindChangeRunsTheDialogThenTheTallyAndShowsTheKinds) {
  ResultFormDriver js;
  js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(9); };
  js.Open();
  js.Click("Command3");
  // The slit word goes in the full program too, but not from the total row.
  EXPECT_EQ(js.Label("Label8"), "異形");
  EXPECT_NE(js.Row("異形･スリット"), "");
  EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(9));
}

TEST(BulkScreen, StartMode0KeepsTheSlitWordInTheKinds) {
  ResultFormDriver js(0);
  js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(9); };
  js.Open();
  js.Click("Command3");
  EXPECT_EQ(js.Label("Label8"), "異形･スリット");
}

TEST(BulkScreen, HoopsOnlyGoBackToIncludedWhenTheNextKindsHaveNoHoops) {
  ResultFormDriver js;
  js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(2); };
  js.Open();
  js.Click("cmdHoop");
  js.Click("cmdHoop");
  ASSERT_EQ(js.Button("cmdHoop")->text(), "のみ");
  js.Click("Command3");
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_EQ(js.Button("cmdHoop")->text(), "含む");
}

TEST(BulkScreen, FormChangeShowsTheFormsAndSetsTheCalculationFromTheKinds) {
  ResultFormDriver js;
  js.parts.choose_forms = [] { Selection.MaterialFormMask = FormMask(3); };
  js.Open();
  js.Click("Command2");
  EXPECT_EQ(js.Label("Label9"), "生･生加");
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_with_others);
  Selection.MaterialKindMask = KindMask(4);
  js.Click("Command2");
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_alone);
  Selection.MaterialKindMask = KindMask(3);
  js.Click("Command2");
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::without_high_strength);
}

TEST(BulkScreen, PercentRaisesTheThinBarsAndTheGrandTotal) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F3);
  EXPECT_EQ(js.Focused(), "txtPercent");
  js.Type("txtPercent", "1x50");
  EXPECT_EQ(js.Box("txtPercent")->text(), "150");  // letters cannot be typed, above 100 is accepted
  js.Key(Qt::Key_Return);
  // 30 + 30 x 150 / 100 = 75.
  EXPECT_EQ(js.Row("U 9"), "|75 ||3||");
  EXPECT_EQ(js.Row("総　　合　　計"), "434 kg|509 kg||||");
  EXPECT_EQ(js.Row("D19"), kD19);
  EXPECT_FALSE(js.Box("txtPercent")->isEnabled());
  EXPECT_EQ(js.Focused(), "dbgJS");
  js.Click("cmdHoop");
  EXPECT_EQ(js.Row("U 9"), "|75 ||3||");  // a filter keeps the percentage
}

TEST(BulkScreen, EmptyPercentCountsAsNothingAndPastedTextIsFiltered) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F3);
  js.Key(Qt::Key_Return);
  EXPECT_EQ(js.Row("U 9"), kU9);
  js.Box("txtPercent")->setEnabled(true);
  js.Box("txtPercent")->insert("-１2.5%");
  EXPECT_EQ(js.Box("txtPercent")->text(), "125");
}

TEST(BulkScreen, ValueRestoreTakesThePercentageBack) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F3);
  js.Type("txtPercent", "10");
  js.Key(Qt::Key_Return);
  js.Click("CmdVReturn");
  EXPECT_EQ(js.Row("U 9"), kU9);
  EXPECT_FALSE(js.Shows("txtPercent"));
  EXPECT_FALSE(js.Shows("lblUper"));
  EXPECT_EQ(js.Focused(), "dbgJS");
}

TEST(BulkScreen, F4TakesTheUpliftBack) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F3);
  js.Type("txtPercent", "10");
  js.Key(Qt::Key_Return);
  EXPECT_EQ(js.Row("U 9"), "|33 ||3||");
  js.Key(Qt::Key_F4);
  EXPECT_EQ(js.Row("U 9"), kU9);
  EXPECT_FALSE(js.Shows("txtPercent"));
}

TEST(BulkScreen, EscLeavesThePercentBoxThenTheUlbonViewThenTheScreen) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F2);
  js.Key(Qt::Key_F3);
  js.Type("txtPercent", "10");
  js.Key(Qt::Key_Escape);
  EXPECT_TRUE(js.form->isVisible());
  EXPECT_FALSE(js.Shows("txtPercent"));
  EXPECT_EQ(js.Row("U 9"), kU9) << "what was typed and not taken goes";
  EXPECT_EQ(js.Focused(), "dbgJS");
  EXPECT_EQ(js.Grid()->RowCount(), 7);
  js.Key(Qt::Key_Escape);
  EXPECT_TRUE(js.form->isVisible());
  EXPECT_EQ(js.Row("D19"), kD19);
  EXPECT_EQ(js.Button("cmdPrint")->text(), "合計表印字(F1)");
  EXPECT_TRUE(js.Shows("cmdUSum"));
  js.Key(Qt::Key_Escape);
  EXPECT_FALSE(js.form->isVisible());
}

TEST(BulkScreen, TheCloseOfTheWindowLeavesTheScreenFromTheUlbonViewToo) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F2);
  js.form->close();
  EXPECT_FALSE(js.form->isVisible());
}

TEST(BulkScreen, UlbonViewShowsThinBarsAloneAndPrintsOnOnePaper) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F2);
  EXPECT_EQ(js.Grid()->RowCount(), 7);
  EXPECT_EQ(js.Row("ウ ル ボ ン 合 計"), "|30 kg||3||");
  EXPECT_EQ(js.Button("cmdPrint")->text(), "ｳﾙﾎﾞﾝ印字(F1)");
  EXPECT_FALSE(js.Shows("cmdUSum"));
  EXPECT_FALSE(js.Shows("Command6"));
  js.Key(Qt::Key_F1);
  EXPECT_TRUE(js.Shows("btnA4T"));
  EXPECT_FALSE(js.Shows("btnA4Y"));
  EXPECT_FALSE(js.Shows("btnB5Y"));
}

TEST(BulkScreen, PrintPanelHasItsOwnKeys) {
  ResultFormDriver js;
  std::vector<std::string> printed;
  js.parts.print = [&](const PrintOrder& order) {
    EXPECT_EQ(order.paper, ReportPaper::a4t);
    EXPECT_FALSE(order.ulbon);
    printed.push_back(order.date.year + "/" + order.date.month + "/" + order.date.day + " " +
                      order.sub_project);
    return std::string("甲");
  };
  js.Open();
  js.Key(Qt::Key_F1);
  EXPECT_TRUE(js.Shows("SSPanel3"));
  EXPECT_FALSE(js.Shows("SSPanel2"));
  EXPECT_TRUE(js.Shows("txtSubKojNa"));
  EXPECT_EQ(RunState.ReportBody, 1);
  js.Box("txtSubKojNa")->setText(" 二期 ");  // the report trims it
  js.Key(Qt::Key_F3);
  EXPECT_EQ(printed, std::vector<std::string>{"2026/11/21  二期 "});
  EXPECT_TRUE(js.Shows("SSPanel2"));  // back to the list
  EXPECT_EQ(js.Label("lblNotice"), "「甲」に送りました。");
  js.Click("cmdPrint2");
  EXPECT_EQ(RunState.ReportBody, 0);
  js.Key(Qt::Key_F2);  // a key of the closed panel
  EXPECT_EQ(js.Grid()->RowCount() > 7, true);
  js.Key(Qt::Key_Escape);
  EXPECT_TRUE(js.Shows("SSPanel2"));
  EXPECT_FALSE(js.Shows("txtSubKojNa"));
  EXPECT_FALSE(js.Box("txtYear")->isEnabled());
}

TEST(BulkScreen, WhatIsNotReadyYetSaysSo) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F5);
  js.Key(Qt::Key_F6);
  js.Key(Qt::Key_F1);
  js.Key(Qt::Key_F1);
  js.Key(Qt::Key_F7);
  ASSERT_EQ(js.site.Messages().size(), 4U);
  EXPECT_THAT(js.site.Messages()[0].text, HasSubstr("明細表示"));
  EXPECT_THAT(js.site.Messages()[1].text, HasSubstr("集計加算"));
  EXPECT_THAT(js.site.Messages()[2].text, HasSubstr("印字"));
  EXPECT_THAT(js.site.Messages()[3].text, HasSubstr("設定"));
}

TEST(BulkScreen, SettingsChosenInThePanelShowInGridAndYear) {
  ResultFormDriver js;
  js.parts.open_settings = [] {
    SaveSetting(kDateStyleKey, 2);
    Settings.AlternateRowColours = 0;
  };
  js.Open();
  const auto colour = [&] { return js.Grid()->model()->index(1, 0).data(Qt::BackgroundRole); };
  EXPECT_EQ(colour().value<QColor>(), QColor(0xC0, 0xFF, 0xFF));  // 16777152 with red in the low byte
  js.Key(Qt::Key_F1);
  js.Key(Qt::Key_F7);
  EXPECT_EQ(js.Box("txtYear")->text(), "08");
  EXPECT_FALSE(colour().isValid());
}

TEST(BulkScreen, WarnsOfTheLastRowWithoutAStockLength) {
  ResultFormDriver js;
  Cells odd = TenBars(19, 1, 0);
  odd[6].second = 12.5;
  js.site.AddRow(odd);
  js.Open();
  EXPECT_TRUE(js.Shows("Lwarning"));
  EXPECT_EQ(js.Label("Lwarning"), " 1頁の5行目の定尺を確認");
}

TEST(BulkScreen, AFaultOfTheTallyEndsTheActionAndLeavesTheFormUsable) {
  ResultFormDriver js;
  js.Open();
  // A diameter that belongs to no row comes in behind the form's back.
  SiteContext.WorkDatabase->Execute("UPDATE 加工テーブル SET 太さ=14 WHERE 太さ=19");
  js.Click("cmdHoop");
  ASSERT_EQ(js.site.Messages().size(), 1U);
  EXPECT_THAT(js.site.Messages()[0].text, HasSubstr("subscript out of range"));
  EXPECT_FALSE(js.Shows("SSPanel4"));
  EXPECT_TRUE(js.Button("cmdExit")->isEnabled());
  EXPECT_TRUE(js.Shows("Command3"));
}

TEST(BulkScreen, EscLeavesAndTheSelectionIsAsTheMenuExpectsIt) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_Escape);
  EXPECT_FALSE(js.form->isVisible());
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::without_high_strength);
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
}

TEST(BulkScreen, AnAccumulationUnderWayIsTold) {
  ResultFormDriver js;
  js.Open();
  RunState.AccumulateFlag = 1;
  Selection.MaterialCalcChoice = CalcChoice::high_strength_alone;
  js.form = std::make_unique<ResultForm>(kBulkScreen, js.parts);
  js.form->show();
  EXPECT_TRUE(js.Shows("hozon"));
  EXPECT_EQ(js.Label("hozon"), "集計累積保存中解除はＦ６を押す");
  EXPECT_EQ(Selection.MaterialCalcChoice,
            CalcChoice::high_strength_alone);  // an accumulation keeps the choice
}

TEST(BulkScreen, AFilterPressMovesNothingNeitherMeanwhileNorAfter) {
  ResultFormDriver js;
  js.Open();
  const auto places = [&js] {
    std::map<std::string, std::string> all;
    for (const QWidget* control : js.form->findChildren<QWidget*>()) {
      if (control->objectName().isEmpty() || !control->isVisible() || control->objectName() == "SSPanel4" ||
          control->parentWidget()->objectName() == "SSPanel4") {
        continue;
      }
      const QRect place(control->mapTo(js.form.get(), QPoint(0, 0)), control->size());
      all[control->objectName().toStdString()] = std::to_string(place.x()) + "," + std::to_string(place.y()) +
                                                 " " + std::to_string(place.width()) + "x" +
                                                 std::to_string(place.height());
    }
    return all;
  };
  const std::map<std::string, std::string> before = places();
  const auto expect_no_move = [&](const char* when) {
    for (const auto& [name, place] : places()) {
      const auto at = before.find(name);
      if (at != before.end() && name.find("qt_") == std::string::npos) {
        EXPECT_EQ(place, at->second) << name << " " << when;
      }
    }
  };
  int looks = 0;
  const auto events = Services.PendingEvents;
  Services.PendingEvents = [&] {
    events();
    if (!js.Shows("SSPanel4")) return;
    ++looks;
    expect_no_move("meanwhile");
  };
  for (const char* button : {"cmdHoop", "cmdTei", "cmdHoop", "cmdTei"}) {
    js.Click(button);
    expect_no_move(button);
  }
  Services.PendingEvents = events;
  EXPECT_GE(looks, 4);
}

TEST(BulkScreen, TellsWhatTheFocusedControlDoesAndHasItAsToolTip) {
  ResultFormDriver js;
  js.Open();
  js.Button("cmdMeisai")->setFocus();
  Settle();
  EXPECT_EQ(js.Label("lblHelp"), "材料の明細を表示する");
  EXPECT_EQ(js.Button("cmdMeisai")->toolTip(), "材料の明細を表示する");
  for (const QPushButton* button : js.form->findChildren<QPushButton*>()) {
    if (button->objectName() == "Command1") continue;  // never in sight
    EXPECT_NE(button->toolTip(), "") << button->objectName().toStdString();
  }
}

TEST(BulkScreen, TotalsAreBoldUnderARule) {
  ResultFormDriver js;
  js.Open();
  const auto* painter = static_cast<GridCellPainter*>(js.Grid()->itemDelegate());
  for (int row = 0; row < js.Grid()->RowCount(); ++row) {
    const std::string label = js.Grid()->Cell(row, 0);
    const bool total = label == "す　 べ 　て" || label == "ウ ル ボ ン 合 計" || label == "総　　合　　計";
    EXPECT_EQ(painter->IsTotal(row), total) << label;
  }
}

TEST(BulkScreen, EnterInTheDayGoesToTheNextLiveControl) {
  ResultFormDriver js;
  js.Open();
  js.Key(Qt::Key_F1);
  js.Box("txtDay")->setFocus();
  js.Key(Qt::Key_Return);
  ASSERT_NE(js.form->focusWidget(), nullptr);
  EXPECT_TRUE(js.form->focusWidget()->isVisible());
  EXPECT_TRUE(js.form->focusWidget()->isEnabled());
  EXPECT_EQ(js.Focused(), "Command3");
}

TEST(BulkScreen, WithoutThePrinterOfTheSettingsThePanelSaysSoAndTakesAnother) {
  ResultFormDriver js;
  std::vector<std::string> offered;
  js.parts.choose_printer = [&offered](const std::vector<std::string>& printers) {
    offered = printers;
    return std::optional<std::string>("乙");
  };
  js.Open();
  std::list<PrinterSurface> printers;
  for (const char* name : {"甲", "乙"}) {
    printers.emplace_back(name, DeviceKind::installed_printer, [](const PrintedDocument&) {});
  }
  Services.Printers = PrinterList(std::move(printers));
  js.Key(Qt::Key_F1);
  EXPECT_TRUE(js.Shows("lblPrinter"));
  EXPECT_THAT(js.Label("lblPrinter"), HasSubstr("プリンタ「EPSON VP-4200」がありません。"));
  EXPECT_TRUE(js.Shows("btnPrinter"));
  js.Key(Qt::Key_F9);
  EXPECT_EQ(offered, (std::vector<std::string>{"甲", "乙"}));
  EXPECT_FALSE(js.Shows("lblPrinter"));
  EXPECT_FALSE(js.Shows("btnPrinter"));
  EXPECT_EQ(ReadSetting(kTallyPrinterKey), "乙");
}

}  // namespace rbt::test
