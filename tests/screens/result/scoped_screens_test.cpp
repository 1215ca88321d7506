// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/menu/screens.h"
#include "screens/result/result_form_driver.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/result_screens.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

using testing::HasSubstr;

// Ten bars of 6.0 m each: D19 13.5 kg, D13 5.97, D25 23.9, D32 37.4, D16 9.36 (three figures).
constexpr const char* kD19Row = "135 |135 |0 |3|0|";
constexpr const char* kHoopRow = "60 |60 |0 |3|0|";
constexpr const char* kD25Row = "239 |239 |0 |3|0|";
constexpr const char* kD32Row = "374 |374 |0 |3|0|";
constexpr const char* kNoRow = "0 |0 |0 |0|0|";

/// A scoped screen. Page 1 has lines 1 to 4 (D19, hoop D13, anchored D25, U 9), page 2 lines 1 and 2 (D32,
/// D16), page 4 line 7 (D10). The stock lengths are those of the schedule.
class Scoped : public ResultFormDriver {
 public:
  explicit Scoped(const ResultScreen& screen, std::int32_t start_mode = -1)
      : ResultFormDriver(start_mode), screen_(screen) {
    site.AddRows({At(TenBars(32, 1, 3), 2, 1), At(TenBars(16, 1, 3), 2, 2), At(TenBars(10, 5, 3), 4, 7)});
    SaveSetting(kStockCheckKey, 1);
  }

  void Start() { Open(screen_); }

  /// Types a number into a box and presses Enter there.
  void Enter(const char* box, const std::string& number) {
    Box(box)->setFocus();
    Box(box)->setText(QString::fromStdString(number));
    Key(Qt::Key_Return);
  }
  void EnterPositions(int start_page, int start_line, int end_page, int end_line) {
    Enter("txtStartPage", std::to_string(start_page));
    Enter("txtStartGyo", std::to_string(start_line));
    Enter("txtEndPage", std::to_string(end_page));
    Enter("txtEndGyo", std::to_string(end_line));
  }
  void EnterShapes(int first, int last) {
    Enter("txtStartKeijouNo", std::to_string(first));
    Enter("txtEndKeijouNo", std::to_string(last));
  }
  /// The default range.
  void Run() {
    if (form->findChild<QLineEdit*>("txtEndGyo") != nullptr) return EnterLast("txtEndGyo");
    EnterLast("txtEndKeijouNo");
  }
  std::string Number(const char* box) const { return Box(box)->text().toStdString(); }
  std::string Message() const { return site.Messages().empty() ? "" : site.Messages().back().text; }

 private:
  void EnterLast(const char* box) {
    Box(box)->setFocus();
    Key(Qt::Key_Return);
  }

  const ResultScreen& screen_;
};

const ResultScreen* const kPageScreens[] = {&kPageScreen, &kPageShapeScreen};

}  // namespace

TEST(PageScreens, StartWithTheFirstAndTheLastPositionAndNoGrid) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.Start();
    EXPECT_EQ(js.Number("txtStartPage") + "/" + js.Number("txtStartGyo"), "1/1");
    EXPECT_EQ(js.Number("txtEndPage") + "/" + js.Number("txtEndGyo"), "4/7");
    EXPECT_TRUE(js.Shows("SSPanel4"));
    EXPECT_FALSE(js.Shows("dbgJS"));
    EXPECT_FALSE(js.Shows("Label8"));
    EXPECT_FALSE(js.Shows("lblNoRows"));
    EXPECT_EQ(js.Focused(), "txtStartPage");
  }
}

TEST(PageScreens, AnEmptyScheduleShowsANoticeAndEscLeaves) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
    js.Start();
    EXPECT_TRUE(js.Shows("lblNoRows"));
    EXPECT_EQ(js.Label("lblNoRows"), "登録データはありません。");
    EXPECT_FALSE(js.Shows("txtStartPage"));
    EXPECT_EQ(js.Focused(), "cmdExit");
    js.Key(Qt::Key_Escape);
    EXPECT_FALSE(js.form->isVisible());
  }
}

TEST(PageScreens, EnterMovesOnWhenTheBoxPassesAndUpMovesBack) {
  Scoped js(kPageScreen);
  js.Start();
  js.Key(Qt::Key_Return);
  EXPECT_EQ(js.Focused(), "txtStartGyo");
  js.Key(Qt::Key_Return);
  EXPECT_EQ(js.Focused(), "txtEndPage");
  js.Key(Qt::Key_Up);
  EXPECT_EQ(js.Focused(), "txtStartGyo");
  js.Key(Qt::Key_Up);
  js.Key(Qt::Key_Up);
  EXPECT_EQ(js.Focused(), "txtStartPage");
  EXPECT_TRUE(js.Box("txtStartPage")->hasSelectedText());
}

TEST(PageScreens, BoxesTakeDigitsAlone) {
  Scoped js(kPageScreen);
  js.Start();
  js.Box("txtStartPage")->clear();
  js.Type("txtStartPage", "a1b2");
  EXPECT_EQ(js.Number("txtStartPage"), "12");
}

TEST(PageScreens, ARefusedBoxIsSelectedForInputAgain) {
  Scoped js(kPageScreen);
  js.Start();
  js.Enter("txtStartPage", "3");
  EXPECT_EQ(js.Message(), "3頁にはデーターがありません。");
  EXPECT_EQ(js.site.Messages().back().title, "頁行別重量集計");
  EXPECT_EQ(js.Focused(), "txtStartPage");
  EXPECT_EQ(js.Box("txtStartPage")->selectedText(), "3");
  js.Enter("txtStartPage", "2");
  js.Enter("txtStartGyo", "3");
  EXPECT_EQ(js.Message(), "2頁3行にはデーターがありません。");
  EXPECT_EQ(js.Focused(), "txtStartGyo");
  js.Enter("txtStartGyo", "2");
  js.Enter("txtEndPage", "1");
  EXPECT_EQ(js.Message(), "開始頁より大きい頁を入力して下さい。");
  EXPECT_EQ(js.Focused(), "txtEndPage");
  js.Enter("txtEndPage", "2");
  js.Enter("txtEndGyo", "1");
  EXPECT_EQ(js.Message(), "開始行より大きい行を入力して下さい。");
  EXPECT_EQ(js.Focused(), "txtEndGyo");
  EXPECT_TRUE(js.Shows("SSPanel4"));
  EXPECT_FALSE(js.Shows("dbgJS"));
}

TEST(PageScreens, ABoxThatTabPassedByIsTestedBeforeTheTallyRuns) {
  Scoped js(kPageScreen);
  js.Start();
  js.Box("txtStartPage")->setText("3");
  js.Run();
  EXPECT_EQ(js.Message(), "3頁にはデーターがありません。");
  EXPECT_EQ(js.Focused(), "txtStartPage");
  EXPECT_FALSE(js.Shows("dbgJS"));
}

TEST(PageScreens, EndPageAboveStartPageWithEndLineBelowStartLineIsAccepted) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.Start();
    js.EnterPositions(1, 3, 2, 1);
    EXPECT_TRUE(js.site.Messages().empty());
    EXPECT_TRUE(js.Shows("dbgJS"));
    EXPECT_EQ(js.Row("D19"), kNoRow);
    EXPECT_EQ(js.Row("D25"), kD25Row);
    EXPECT_EQ(js.Row("D32"), kD32Row);
    EXPECT_EQ(js.Row("D16"), kNoRow);
  }
}

TEST(PageScreens, ASingleLineIsAccepted) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.Start();
    js.EnterPositions(1, 2, 1, 2);
    EXPECT_TRUE(js.site.Messages().empty());
    EXPECT_EQ(js.Row("D13"), kHoopRow);
    EXPECT_EQ(js.Row("総　　合　　計"), "60 kg|60 kg||||");
  }
}

TEST(PageScreens, TheResultTakesThePlaceOfTheRange) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.Start();
    js.Run();
    EXPECT_FALSE(js.Shows("SSPanel4"));
    EXPECT_FALSE(js.Shows("waitPanel"));
    EXPECT_TRUE(js.Shows("dbgJS"));
    EXPECT_EQ(js.Label("Label8"), "異形･高強度･ネジ･スリット");
    EXPECT_EQ(js.Label("Label9"), "すべて");
    EXPECT_EQ(js.Row("D19"), kD19Row);
    EXPECT_EQ(js.Focused(), "dbgJS");
    EXPECT_EQ(Selection.EndPage, 4);
    EXPECT_EQ(Selection.EndLine, 7);
  }
}

TEST(PageScreens, RangeChangeAsksAnewAndTheNextTallyRunsWithAllFiltersReset) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(7); };
    js.Start();
    js.Run();
    js.Click("Command3");
    js.Click("cmdHoop");
    js.Click("cmdTei");
    Selection.MaterialFormMask = FormMask(1);
    js.Key(Qt::Key_F7);
    EXPECT_TRUE(js.Shows("SSPanel4"));
    EXPECT_FALSE(js.Shows("dbgJS"));
    EXPECT_EQ(js.Focused(), "txtStartPage");
    EXPECT_FALSE(RunState.HasAnchorPlateRows);
    EXPECT_EQ(Selection.MaterialKindMask, KindMask(15));
    EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
    EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
    EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others);
    EXPECT_EQ(js.Label("Label8"), "異形・高強度・ネジ・スリット");
    EXPECT_EQ(js.Label("Label9"), "すべて");
    EXPECT_EQ(js.Label("Label11"), "(形状No87)を");
    EXPECT_EQ(js.Button("cmdHoop")->text(), "含む");
    EXPECT_EQ(js.Button("cmdTei")->text(), "含む");
    js.Run();
    EXPECT_EQ(js.Row("D13"), kHoopRow);
    EXPECT_EQ(js.Row("D25"), kD25Row);
  }
}

TEST(PageScreens, OnlyThePageScreenWarnsOfAStockLengthWithoutAColumn) {
  Scoped js(kPageScreen);
  Cells odd = TenBars(19, 1, 0);
  odd[6].second = 12.5;
  js.site.AddRow(At(odd, 5, 1));
  js.Start();
  js.Run();
  EXPECT_TRUE(js.Shows("Lwarning"));
  EXPECT_EQ(js.Label("Lwarning"), " 5頁の1行目の定尺を確認");
  js.Key(Qt::Key_F7);
  js.EnterPositions(1, 1, 1, 4);
  EXPECT_FALSE(js.Shows("Lwarning"));
}

TEST(PageScreens, AFaultOfTheTallyAsksForTheRangeAgain) {
  Scoped js(kPageShapeScreen);
  Cells odd = TenBars(19, 1, 0);
  odd[6].second = 12.5;  // no column: the tally by groups cannot pass it over
  js.site.AddRow(At(odd, 5, 1));
  js.Start();
  js.Run();
  EXPECT_THAT(js.Message(), HasSubstr("subscript out of range"));
  EXPECT_TRUE(js.Shows("SSPanel4"));
  EXPECT_FALSE(js.Shows("dbgJS"));
  EXPECT_FALSE(js.Shows("waitPanel"));
  EXPECT_EQ(js.Focused(), "txtStartPage");
  js.EnterPositions(1, 1, 4, 7);
  EXPECT_EQ(js.Row("D19"), kD19Row);
}

TEST(PageScreens, AFaultOfALaterTallyAsksForTheRangeAgain) {
  Scoped js(kPageScreen);
  js.Start();
  js.Run();
  SiteContext.WorkDatabase->Execute("UPDATE 加工テーブル SET 太さ=14 WHERE 太さ=19");
  js.Click("cmdHoop");
  EXPECT_THAT(js.Message(), HasSubstr("subscript out of range"));
  EXPECT_TRUE(js.Shows("SSPanel4"));
  EXPECT_FALSE(js.Shows("dbgJS"));
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_TRUE(js.Button("cmdExit")->isEnabled());
}

TEST(ShapeScreen, StartsWithTheSmallestAndTheLargestShape) {
  Scoped js(kShapeScreen);
  js.Start();
  EXPECT_EQ(js.Number("txtStartKeijouNo"), "1");
  EXPECT_EQ(js.Number("txtEndKeijouNo"), "138");
  EXPECT_EQ(js.Label("lblHoopNote"), "【ＦＢリングは８７】");
  EXPECT_EQ(js.Label("lblHint"), "【形状番号：入力後 Enterキー】");
  EXPECT_FALSE(js.Shows("dbgJS"));
  EXPECT_EQ(js.Focused(), "txtStartKeijouNo");
  js.Key(Qt::Key_Return);
  EXPECT_EQ(js.Focused(), "txtEndKeijouNo");
  js.Key(Qt::Key_Up);
  EXPECT_EQ(js.Focused(), "txtStartKeijouNo");
}

TEST(ShapeScreen, RefusesAStartBelowTheMinimumEvenIfTheEndIsFine) {
  Scoped js(kShapeScreen);
  js.Start();
  js.EnterShapes(0, 87);
  EXPECT_EQ(js.Message(), "形状Noの最小値より小さい値は、入力できません");
  EXPECT_EQ(js.site.Messages().back().title, "入力エラー");
  EXPECT_EQ(js.Number("txtStartKeijouNo"), "1");
  EXPECT_EQ(js.Focused(), "txtStartKeijouNo");
  js.EnterShapes(0, 999);  // the start test comes first
  EXPECT_EQ(js.Message(), "形状Noの最小値より小さい値は、入力できません");
  EXPECT_FALSE(js.Shows("dbgJS"));
}

TEST(ShapeScreen, RefusesAnEndAboveTheMaximumAndCrossedEnds) {
  Scoped js(kShapeScreen);
  js.Start();
  js.EnterShapes(1, 139);
  EXPECT_EQ(js.Message(), "形状Noの最大値より大きい値は、入力できません");
  EXPECT_EQ(js.Number("txtEndKeijouNo"), "138");
  EXPECT_EQ(js.Focused(), "txtEndKeijouNo");
  js.EnterShapes(87, 5);
  EXPECT_EQ(js.Message(), "左側より小さい値は、入力できません");
  EXPECT_EQ(js.site.Messages().back().title, "入力エラー");
  EXPECT_EQ(js.Number("txtEndKeijouNo"), "5");
  EXPECT_EQ(js.Focused(), "txtEndKeijouNo");
  EXPECT_FALSE(js.Shows("dbgJS"));
}

TEST(ShapeScreen, TalliesTheShapesAndKeepsTheRangeInReach) {
  Scoped js(kShapeScreen);
  js.Start();
  js.EnterShapes(2, 100);
  EXPECT_EQ(Selection.ShapeStart, 2);
  EXPECT_EQ(Selection.ShapeEnd, 100);
  EXPECT_EQ(js.Row("D13"), kHoopRow);
  EXPECT_EQ(js.Row("D19"), kNoRow);
  EXPECT_TRUE(js.Box("txtStartKeijouNo")->isEnabled());
  EXPECT_TRUE(js.Shows("txtStartKeijouNo"));
  js.EnterShapes(1, 1);
  EXPECT_EQ(js.Row("D19"), kD19Row);
  EXPECT_EQ(js.Row("D13"), kNoRow);
}

TEST(ShapeScreen, ANewRangeResetsKindsAndModes) {
  Scoped js(kShapeScreen);
  js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(7); };
  js.Start();
  js.Run();
  js.Click("Command3");
  EXPECT_EQ(js.Label("Label8"), "異形･ネジ･高強度");
  js.Click("cmdHoop");
  js.Click("cmdTei");
  js.Run();
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(15));
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others);
  EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(15));
  EXPECT_EQ(js.Label("Label8"), "異形・高強度・ネジ・スリット");
  EXPECT_EQ(js.Button("cmdHoop")->text(), "含む");
  EXPECT_EQ(js.Row("D13"), kHoopRow);
}

TEST(ShapeScreen, CountsTheHighStrengthRowsOfItsRange) {
  Scoped js(kShapeScreen);
  for (const std::int64_t shape : {5, 5, 100}) {
    Cells bar = TenBars(19, shape, 0);
    bar.emplace_back("予備2", std::int64_t{3});
    js.site.AddRow(At(bar, 5, shape));
  }
  js.Start();
  js.EnterShapes(1, 87);
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 2 + 1);  // the tally adds 1 where the site has any
  js.EnterShapes(87, 87);
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 0 + 1);
}

TEST(ShapeScreen, FormChangeChangesTheCaptionAndNotTheFigures) {
  Scoped js(kShapeScreen);
  std::int16_t mask = 1;
  js.parts.choose_forms = [&mask] { Selection.MaterialFormMask = FormMask(mask); };
  js.Start();
  js.Run();
  const std::pair<std::int16_t, const char*> captions[] = {{1, "生材"},     {2, "生材加工"}, {4, "切断"},
                                                           {8, "切断加工"}, {3, "すべて"},   {15, "すべて"}};
  for (const auto& [chosen, caption] : captions) {
    mask = chosen;
    js.Click("Command2");
    EXPECT_EQ(js.Label("Label9"), caption);
    EXPECT_EQ(js.Row("D19"), kD19Row);
  }
}

TEST(ShapeScreen, PrintsTheUlbonReportOfToday) {
  Scoped js(kShapeScreen);
  std::vector<PrintOrder> orders;
  js.parts.print = [&](const PrintOrder& order) {
    orders.push_back(order);
    return std::string();
  };
  SaveSetting(kDateStyleKey, 2);
  js.Start();
  js.Key(Qt::Key_F3);
  EXPECT_TRUE(orders.empty());  // no tally yet
  js.Run();
  js.Box("txtDay")->setText("3");
  js.Box("txtSubKojNa")->setText(" 二期 ");
  RunState.ReportBody = 0;
  js.Key(Qt::Key_F3);
  ASSERT_EQ(orders.size(), 1U);
  EXPECT_TRUE(orders[0].ulbon);
  EXPECT_EQ(orders[0].date.year + "/" + orders[0].date.month + "/" + orders[0].date.day, "08/11/21");
  EXPECT_EQ(orders[0].sub_project, " 二期 ");  // the report trims it
  EXPECT_EQ(orders[0].result.ulbon_percent, 0);
  EXPECT_EQ(RunState.ReportBody, 1);
}

TEST(ShapeScreen, AnEmptyScheduleTalliesToZero) {
  Scoped js(kShapeScreen);
  js.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
  js.Start();
  EXPECT_EQ(js.Number("txtStartKeijouNo"), "0");
  js.Run();
  EXPECT_EQ(js.Row("総　　合　　計"), "0 kg|0 kg||||");
}

TEST(TallyScreens, OpenFromTheMenuUnderTheirNames) {
  const SiteFixture site;
  int opened = 0;
  for (const MenuScreen& row : MenuScreens()) {
    if (row.form == "SETJS") continue;
    EXPECT_EQ(row.make()->objectName().toStdString(), row.form);
    ++opened;
  }
  EXPECT_EQ(opened, 6);
}

TEST(ScopedScreens, HaveTheirTitlesAndButtons) {
  const std::pair<const ResultScreen*, const char*> titles[] = {{&kPageScreen, "頁行別重量集計"},
                                                                {&kShapeScreen, "形状重量集計"},
                                                                {&kPageShapeScreen, "頁行別形状重量集計"}};
  for (const auto& [screen, title] : titles) {
    Scoped js(*screen);
    js.Start();
    js.Run();
    const bool shapes = screen == &kShapeScreen;
    EXPECT_EQ(js.form->windowTitle(), title);
    EXPECT_EQ(js.Button("cmdPrint")->text(), "印     字 （F1）");
    EXPECT_EQ(js.Button("cmdMeisai")->text(), "明 細 表 示 （F5）");
    EXPECT_EQ(js.Button("cmdExit")->text(), "終    了 （Esc）");
    EXPECT_EQ(js.Button("cmdPGChange")->text(), "頁 行 変 更 （F7）");
    for (const char* button : {"cmdUSum", "cmdPrint2", "CmdVReturn", "Command6", "Command1"}) {
      EXPECT_FALSE(js.Shows(button)) << title << button;
    }
    EXPECT_EQ(js.Shows("cmdurubon"), shapes);
    EXPECT_EQ(js.Shows("cmdPGChange"), !shapes);
    EXPECT_EQ(js.Shows("Command2"), screen != &kPageShapeScreen);
    EXPECT_TRUE(js.Shows("Command3"));
  }
}

TEST(ScopedScreens, CycleTheHoopsThroughIncludedLeftOutAndOnly) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    js.Start();
    js.Run();
    js.Click("cmdHoop");
    EXPECT_EQ(js.Button("cmdHoop")->text(), "含まず");
    EXPECT_EQ(js.Label("Label11"), "(形状No87)を");
    EXPECT_EQ(js.Row("D13"), kNoRow);
    js.Click("cmdHoop");
    EXPECT_EQ(js.Button("cmdHoop")->text(), "のみ");
    EXPECT_EQ(js.Label("Label11"), "(形状No87)");
    EXPECT_EQ(js.Row("D13"), kHoopRow);
    EXPECT_EQ(js.Row("D19"), kNoRow);
    js.Click("cmdHoop");
    EXPECT_EQ(js.Button("cmdHoop")->text(), "含む");
    EXPECT_EQ(js.Row("D19"), kD19Row);
  }
}

TEST(ScopedScreens, CycleThePlatesAndKeepTheButtonsOfTheFirstRun) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    js.Start();
    js.Run();
    js.Click("cmdTei");
    EXPECT_EQ(js.Button("cmdTei")->text(), "含まず");
    EXPECT_EQ(js.Row("D25"), kNoRow);
    js.Click("cmdTei");
    EXPECT_EQ(js.Button("cmdTei")->text(), "のみ");
    EXPECT_EQ(js.Row("D25"), kD25Row);
    EXPECT_EQ(js.Row("D19"), kNoRow);
    EXPECT_TRUE(js.Shows("cmdTei"));
    EXPECT_TRUE(js.Shows("cmdHoop"));  // the mode leaves no hoop, and can still be taken back
  }
}

TEST(ScopedScreens, HaveTheButtonsOfHoopsAndPlatesWhereTheRangeHasSuchShapes) {
  Scoped js(kPageScreen);
  js.Start();
  js.EnterPositions(2, 1, 2, 2);
  EXPECT_FALSE(js.Shows("cmdHoop"));
  EXPECT_FALSE(js.Shows("Label11"));
  EXPECT_FALSE(js.Shows("cmdTei"));
  EXPECT_TRUE(js.Shows("Command3"));
  js.Key(Qt::Key_F7);
  js.EnterPositions(1, 2, 1, 2);
  EXPECT_TRUE(js.Shows("cmdHoop"));
  EXPECT_TRUE(js.Shows("Label11"));
  EXPECT_FALSE(js.Shows("cmdTei"));
}

TEST(ScopedScreens, KindChangeRunsTheDialogThenTheTallyAndShowsTheKinds) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(8); };
    js.Start();
    js.Run();
    js.Click("Command3");
    EXPECT_EQ(js.Label("Label8"), "スリットのみ");
    EXPECT_EQ(js.Row("D19"), kNoRow);
    EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(8));
  }
}

TEST(ScopedScreens, AModeOfShapesThatTheNewKindsDoNotHaveGoesBackToIncluded) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    for (const std::int32_t kinds : {4, 8, 12}) {
      Scoped js(*screen);
      js.parts.choose_kinds = [kinds] { Selection.MaterialKindMask = KindMask(kinds); };
      js.Start();
      js.Run();
      js.Click("cmdTei");
      js.Click("cmdTei");
      js.Click("Command3");
      EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others) << kinds;
      EXPECT_EQ(js.Button("cmdTei")->text(), "含む");
    }
    for (const std::int32_t kinds : {2, 8, 10}) {
      Scoped js(*screen);
      js.parts.choose_kinds = [kinds] { Selection.MaterialKindMask = KindMask(kinds); };
      js.Start();
      js.Run();
      js.Click("cmdHoop");
      js.Click("cmdHoop");
      js.Click("Command3");
      EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others) << kinds;
      EXPECT_EQ(js.Button("cmdHoop")->text(), "含む");
      EXPECT_EQ(js.Label("Label11"), "(形状No87)を");
    }
  }
}

TEST(ScopedScreens, FormChangeOfThePageScreenShowsTheFormsInShort) {
  Scoped js(kPageScreen);
  std::int16_t mask = 1;
  js.parts.choose_forms = [&mask] { Selection.MaterialFormMask = FormMask(mask); };
  js.Start();
  js.Run();
  const char* const captions[] = {"生",           "生加",       "生･生加",    "切",           "生･切",
                                  "生加･切",      "生･生加･切", "切加",       "生･切加",      "生加･切加",
                                  "生･生加･切加", "切･切加",    "生･切･切加", "生加･切･切加", "すべて"};
  for (const char* caption : captions) {
    js.Click("Command2");
    EXPECT_EQ(js.Label("Label9"), caption);
    ++mask;
  }
}

TEST(ScopedScreens, ANarrowedTallyCannotBePrintedUntilItIsWholeAgain) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    js.Start();
    js.Run();
    js.Click("cmdTei");
    EXPECT_FALSE(js.Shows("cmdPrint"));
    EXPECT_FALSE(js.Shows("cmdurubon"));
    js.Key(Qt::Key_F1);
    EXPECT_FALSE(js.Shows("SSPanel3"));
    js.Click("cmdTei");
    js.Click("cmdTei");
    EXPECT_TRUE(js.Shows("cmdPrint"));
  }
}

TEST(ScopedScreens, ATallyNarrowedWhileThePanelIsOpenCannotBePrinted) {
  Scoped js(kPageScreen);
  int prints = 0;
  js.parts.print = [&](const PrintOrder&) {
    ++prints;
    return std::string();
  };
  js.Start();
  js.Run();
  js.Key(Qt::Key_F1);
  js.Click("cmdTei");
  js.Key(Qt::Key_F1);
  EXPECT_EQ(prints, 0);
  js.Click("cmdTei");
  js.Click("cmdTei");
  js.Key(Qt::Key_F1);
  EXPECT_EQ(prints, 1);
}

TEST(ScopedScreens, PrintFromThePanelAndStayThere) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    std::vector<PrintOrder> orders;
    js.parts.print = [&](const PrintOrder& order) {
      orders.push_back(order);
      return std::string();
    };
    js.Start();
    js.Run();
    RunState.ReportBody = 0;
    js.Key(Qt::Key_F1);
    EXPECT_EQ(RunState.ReportBody, 1);
    for (const int key : {Qt::Key_F1, Qt::Key_F3, Qt::Key_F5}) js.Key(key);
    ASSERT_EQ(orders.size(), 3U);
    EXPECT_EQ(orders[0].paper, ReportPaper::a4y);
    EXPECT_EQ(orders[1].paper, ReportPaper::a4t);
    EXPECT_EQ(orders[2].paper, ReportPaper::b5y);
    EXPECT_FALSE(orders[0].ulbon);
    EXPECT_EQ(orders[0].result.ulbon_percent, 0);
    EXPECT_TRUE(js.Shows("SSPanel3"));
    js.Key(Qt::Key_Escape);
    EXPECT_TRUE(js.Shows("SSPanel2"));
    EXPECT_EQ(js.Focused(), "dbgJS");
  }
}

TEST(ScopedScreens, WithoutATallyThePrintPanelServesSettingsAndReturnAlone) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    int prints = 0;
    int settings = 0;
    js.parts.print = [&](const PrintOrder&) {
      ++prints;
      return std::string();
    };
    js.parts.open_settings = [&] { ++settings; };
    js.Start();
    const std::string first = js.Focused();
    js.Key(Qt::Key_F1);
    ASSERT_TRUE(js.Shows("SSPanel3"));
    for (const int key : {Qt::Key_F1, Qt::Key_F3, Qt::Key_F5}) js.Key(key);
    EXPECT_EQ(prints, 0);
    js.Key(Qt::Key_F7);
    EXPECT_EQ(settings, 1);
    js.Key(Qt::Key_Escape);
    EXPECT_FALSE(js.Shows("SSPanel3"));
    EXPECT_EQ(js.Focused(), first);
    js.Run();
    js.Key(Qt::Key_F1);
    js.Key(Qt::Key_F1);
    EXPECT_EQ(prints, 1);
  }
}

TEST(ScopedScreens, WithoutATallyTheButtonsOfAResultAreNotServed) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped js(*screen);
    int details = 0;
    js.parts.open_detail = [&](TallyResult result) {
      ++details;
      return result;
    };
    js.Start();
    js.Key(Qt::Key_F5);
    EXPECT_EQ(details, 0);
    EXPECT_FALSE(js.Shows("Command3"));
    js.Run();
    js.Key(Qt::Key_F5);
    EXPECT_EQ(details, 1);
  }
}

TEST(ScopedScreens, WhatIsNotReadyYetSaysSo) {
  Scoped js(kShapeScreen);
  js.Start();
  js.Run();
  js.Key(Qt::Key_F3);
  EXPECT_THAT(js.Message(), HasSubstr("印字"));
  js.Click("Command3");
  EXPECT_THAT(js.Message(), HasSubstr("材質変更"));
  js.Click("Command2");
  EXPECT_THAT(js.Message(), HasSubstr("材料変更"));
  js.Key(Qt::Key_F5);
  EXPECT_THAT(js.Message(), HasSubstr("明細表示"));
  EXPECT_EQ(js.site.Messages().size(), 4U);
}

TEST(ScopedScreens, EscLeavesFromInputAndFromResult) {
  for (const ResultScreen* screen : test::ScopedScreens()) {
    Scoped input(*screen);
    input.Start();
    input.Key(Qt::Key_Escape);
    EXPECT_FALSE(input.form->isVisible());
    Scoped result(*screen);
    result.Start();
    result.Run();
    result.Key(Qt::Key_Escape);
    EXPECT_FALSE(result.form->isVisible());
    EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
    EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
  }
}

TEST(ScopedScreens, TheBusyNoticeHasTheWordsOfItsScreen) {
  const std::pair<const ResultScreen*, const char*> notices[] = {
      {&kPageScreen, "お待ち下さい"}, {&kShapeScreen, "計算中！！"}, {&kPageShapeScreen, "計算中！！"}};
  for (const auto& [screen, notice] : notices) {
    Scoped js(*screen);
    js.Start();
    EXPECT_EQ(js.Label("WaitMsgL"), notice);
  }
}

TEST(ScopedScreens, StartModesWithoutSlitBarsLeaveTheSlitWordOut) {
  Scoped js(kPageScreen, 4);
  js.parts.choose_kinds = [] { Selection.MaterialKindMask = KindMask(9); };
  js.Start();
  js.Run();
  js.Click("Command3");
  EXPECT_EQ(js.Label("Label8"), "異形");
  EXPECT_FALSE(js.Shows("cmdHoop"));
}

TEST(ShapeScreen, BoxesThatWereChangedWithoutEnterGoBackToTheTalliedRangeWhenTheFocusLeavesThem) {
  Scoped js(kShapeScreen);
  js.Start();
  js.EnterShapes(2, 100);
  js.Box("txtStartKeijouNo")->setFocus();
  js.Box("txtStartKeijouNo")->setText("5");
  js.Key(Qt::Key_Tab);
  ASSERT_EQ(js.Focused(), "txtEndKeijouNo");
  EXPECT_EQ(js.Number("txtStartKeijouNo"), "5") << "the input is still in the boxes";
  js.Button("cmdHoop")->setFocus();
  Settle();
  EXPECT_EQ(js.Number("txtStartKeijouNo"), "2");
  EXPECT_EQ(js.Number("txtEndKeijouNo"), "100");
}

TEST(ShapeScreen, BeforeItsFirstTallyTheBoxesKeepWhatWasTyped) {
  Scoped js(kShapeScreen);
  js.Start();
  js.Box("txtStartKeijouNo")->setText("5");
  js.Box("txtStartKeijouNo")->setFocus();
  js.Button("cmdExit")->setFocus();
  Settle();
  EXPECT_EQ(js.Number("txtStartKeijouNo"), "5");
}

TEST(PageScreens, ShowTheirRangeBesideTheResult) {
  for (const ResultScreen* screen : kPageScreens) {
    Scoped js(*screen);
    js.Start();
    js.EnterPositions(1, 2, 2, 1);
    EXPECT_TRUE(js.Shows("lblRange"));
    EXPECT_EQ(js.Label("lblRange"), "1頁 2行 ～ 2頁 1行");
  }
}

}  // namespace rbt::test
