// SPDX-License-Identifier: MIT
// The range that a scoped screen asks for.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "session/result/result_presenter_driver.h"
#include "shell/context/run_state.h"
#include "support/fault_of.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

const ResultScreen* const kPageScreens[] = {&kPageScreen, &kPageShapeScreen};

std::string Texts(const ResultScreenView& view) {
  std::string all;
  for (const std::string& text : view.range.texts) all += text + "|";
  return all;
}

/// Enter in a box of a range, and what comes of it.
struct EnterCase {
  std::vector<const char*> texts;
  std::size_t box;
  const char* message;  ///< empty: the box passes
  FocusRequest focus;
};

void ExpectEnter(Presented& js, const EnterCase& row) {
  js.Open();
  for (std::size_t box = 0; box < row.texts.size(); ++box) js.presenter->TypeRange(box, row.texts[box]);
  js.presenter->EnterRangeBox(row.box);
  const ResultScreenView view = js.View();
  const std::string where = Texts(view) + std::to_string(row.box);
  EXPECT_EQ(js.Message(), row.message) << where;
  EXPECT_TRUE(view.focus == row.focus) << where;
}

}  // namespace

TEST(RangeOfPages, StartsWithTheFirstAndTheLastPosition) {
  for (const ResultScreen* screen : kPageScreens) {
    Presented js(*screen);
    js.Open();
    EXPECT_EQ(Texts(js.View()), "1|1|4|7|");
  }
}

TEST(RangeOfPages, OfAnEmptyScheduleIsNotAskedForAndTheFocusIsOnTheWayOut) {
  for (const ResultScreen* screen : kPageScreens) {
    Presented js(*screen);
    js.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
    js.Open();
    ResultScreenView view = js.View();
    EXPECT_FALSE(view.range.has_rows);
    EXPECT_TRUE((view.focus == FocusRequest{FocusTarget::leave}));
    js.presenter->TakeRange();
    EXPECT_FALSE(js.View().result_shown);
  }
}

TEST(RangeOfPages, EnterTestsABoxAndMovesOnWhenItPasses) {
  const EnterCase cases[] = {
      {{"1", "1", "4", "7"}, 0, "", {FocusTarget::range, 1}},
      {{"1", "1", "4", "7"}, 1, "", {FocusTarget::range, 2}},
      {{"1", "1", "4", "7"}, 2, "", {FocusTarget::range, 3}},
      {{"1", "1", "4", "7"}, 3, "", {FocusTarget::grid}},
      {{"1", "4", "2", "1"}, 3, "", {FocusTarget::grid}},
      {{"1", "2", "1", "2"}, 3, "", {FocusTarget::grid}},
      {{"3", "1", "4", "7"}, 0, "3頁にはデーターがありません。", {FocusTarget::range, 0}},
      {{"", "1", "4", "7"}, 0, "0頁にはデーターがありません。", {FocusTarget::range, 0}},
      {{"2", "3", "4", "7"}, 1, "2頁3行にはデーターがありません。", {FocusTarget::range, 1}},
      {{"2", "1", "1", "1"}, 2, "開始頁より大きい頁を入力して下さい。", {FocusTarget::range, 2}},
      {{"1", "3", "1", "2"}, 3, "開始行より大きい行を入力して下さい。", {FocusTarget::range, 3}},
      // Tab and the mouse pass boxes by: the last Enter tests them all.
      {{"3", "1", "4", "7"}, 3, "3頁にはデーターがありません。", {FocusTarget::range, 0}},
  };
  for (const ResultScreen* screen : kPageScreens) {
    Presented js(*screen);
    for (const EnterCase& row : cases) ExpectEnter(js, row);
  }
}

TEST(RangeOfPages, ARefusalBearsTheTitleOfItsScreen) {
  Presented js(kPageShapeScreen);
  js.Open().TypeRange(0, "3");
  js.presenter->EnterRangeBox(0);
  EXPECT_EQ(js.site.Messages().back().title, "頁行別形状重量集計");
}

TEST(RangeOfPages, AreTakenIntoTheSelection) {
  Presented js(kPageScreen);
  js.Open();
  js.Enter({1, 2, 2, 1});
  EXPECT_EQ(Selection.StartPage, 1);
  EXPECT_EQ(Selection.StartLine, 2);
  EXPECT_EQ(Selection.EndPage, 2);
  EXPECT_EQ(Selection.EndLine, 1);
  EXPECT_EQ(js.Row("D19"), "0 |0 |0 |0|0|");
  EXPECT_EQ(js.Row("D32"), "374 |374 |0 |3|0|");
}

TEST(RangeOfPages, APageBeyond16BitsIsAFaultThatNamesItsBox) {
  Presented js(kPageScreen);
  js.site.AddRow(At(TenBars(19, 1, 0), 40000, 1));
  js.Open().TypeRange(2, "40000");
  js.presenter->TypeRange(3, "1");
  EXPECT_EQ(FaultTextOf([&] { js.presenter->TakeRange(); }), "overflow: txtEndPage: 40000 in 16 bits");
}

TEST(RangeOfPages, AskedForAnewTakesEveryFilterBack) {
  for (const ResultScreen* screen : kPageScreens) {
    Presented js(*screen);
    js.kinds = [] { Selection.MaterialKindMask = KindMask(7); };
    js.OpenWithResult().ChooseKinds();
    js.presenter->CycleHoops();
    js.presenter->CyclePlates();
    Selection.MaterialFormMask = FormMask(1);
    Selection.IncludeUlbon = false;
    js.presenter->AskForRange();
    const FilterView filters = js.View().filters;
    EXPECT_EQ(filters.kinds, "異形・高強度・ネジ・スリット");
    EXPECT_EQ(filters.forms, "すべて");
    EXPECT_EQ(filters.cycle_hoops.caption, "含む");
    EXPECT_EQ(filters.cycle_plates.caption, "含む");
    EXPECT_EQ(Selection.MaterialKindMask, kAllKinds);
    EXPECT_EQ(Selection.MaterialFormMask, kAllForms);
    EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
    EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others);
    EXPECT_TRUE(Selection.IncludeUlbon);
    EXPECT_FALSE(RunState.HasAnchorPlateRows);
    EXPECT_EQ(Texts(js.View()), "1|1|4|7|") << "what was typed stays";
  }
}

TEST(RangeOfShapes, StartsWithTheSmallestAndTheLargestShape) {
  Presented js(kShapeScreen);
  js.Open();
  EXPECT_EQ(Texts(js.View()), "1|138|");
}

TEST(RangeOfShapes, OfAnEmptyScheduleIsNoughtAndTalliesToNothing) {
  Presented js(kShapeScreen);
  js.site.Execute(kScheduleFile, "DELETE FROM 加工テーブル");
  js.Open().TakeRange();
  EXPECT_EQ(Texts(js.View()), "0|0|");
  EXPECT_TRUE(js.View().result_shown);
}

TEST(RangeOfShapes, IsTestedInItsLastBoxAndSetBackToTheSchedulesShapes) {
  struct Case {
    const char* first;
    const char* last;
    const char* message;
    const char* texts;
    FocusRequest focus;
  };
  const Case cases[] = {
      {"0", "87", "形状Noの最小値より小さい値は、入力できません", "1|87|", {FocusTarget::range, 0}},
      {"0", "999", "形状Noの最小値より小さい値は、入力できません", "1|999|", {FocusTarget::range, 0}},
      {"1", "139", "形状Noの最大値より大きい値は、入力できません", "1|138|", {FocusTarget::range, 1}},
      {"87", "5", "左側より小さい値は、入力できません", "87|5|", {FocusTarget::range, 1}},
  };
  Presented js(kShapeScreen);
  for (const Case& row : cases) {
    js.Open().TypeRange(0, row.first);
    js.presenter->EnterRangeBox(0);
    EXPECT_TRUE((js.View().focus == FocusRequest{FocusTarget::range, 1})) << "the first box tests nothing";
    js.presenter->TypeRange(1, row.last);
    js.presenter->EnterRangeBox(1);
    const ResultScreenView view = js.View();
    EXPECT_EQ(js.Message(), row.message);
    EXPECT_EQ(js.site.Messages().back().title, "入力エラー");
    EXPECT_EQ(Texts(view), row.texts);
    EXPECT_TRUE(view.focus == row.focus) << row.message;
    EXPECT_FALSE(view.result_shown);
  }
}

TEST(RangeOfShapes, ATakenRangeResetsKindsAndModesAndKeepsTheForms) {
  Presented js(kShapeScreen);
  js.kinds = [] { Selection.MaterialKindMask = KindMask(7); };
  js.OpenWithResult().ChooseKinds();
  js.presenter->CycleHoops();
  js.presenter->CyclePlates();
  Selection.MaterialFormMask = FormMask(1);
  Selection.IncludeUlbon = false;
  js.Enter({2, 100});
  EXPECT_TRUE(Selection.IncludeUlbon);
  EXPECT_EQ(Selection.ShapeStart, 2);
  EXPECT_EQ(Selection.ShapeEnd, 100);
  EXPECT_EQ(Selection.MaterialKindMask, kAllKinds);
  EXPECT_EQ(Selection.PrevMaterialKindMask, kAllKinds);
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_EQ(Selection.AnchorPlateMode, ShapeFilter::with_others);
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(1));
  EXPECT_EQ(js.View().filters.kinds, "異形・高強度・ネジ・スリット");
  EXPECT_EQ(js.View().filters.forms, "生材");
  EXPECT_EQ(js.Row("D13"), "60 |60 |0 |3|0|");
  EXPECT_EQ(js.Row("D19"), "0 |0 |0 |0|0|");
}

TEST(RangeOfShapes, GoesBackToTheTalliedOneWhenTheInputLeavesIt) {
  Presented js(kShapeScreen);
  js.Open().TypeRange(0, "5");
  js.presenter->LeaveRange();
  EXPECT_EQ(Texts(js.View()), "5|138|") << "there is no result yet";
  js.Enter({2, 100});
  js.presenter->TypeRange(0, "9");
  js.presenter->TypeRange(1, "1");
  js.presenter->LeaveRange();
  EXPECT_EQ(Texts(js.View()), "2|100|");
  EXPECT_EQ(js.View().filters.range, "") << "the boxes tell it";
}

TEST(RangeOfPages, IsToldBesideTheResult) {
  for (const ResultScreen* screen : kPageScreens) {
    Presented js(*screen);
    js.Open();
    EXPECT_EQ(js.View().filters.range, "");
    js.Enter({1, 2, 2, 1});
    EXPECT_EQ(js.View().filters.range, "1頁 2行 ～ 2頁 1行");
    js.presenter->TypeRange(0, "2");
    js.presenter->CycleHoops();
    EXPECT_EQ(js.View().filters.range, "1頁 2行 ～ 2頁 1行") << "typed is not tallied";
  }
}

TEST(RangeOfShapes, CountsItsHighStrengthRows) {
  Presented js(kShapeScreen);
  for (const std::int64_t shape : {5, 5, 100}) {
    Cells bar = TenBars(19, shape, 0);
    bar.emplace_back("予備2", std::int64_t{3});
    js.site.AddRow(At(bar, 5, shape));
  }
  js.Open();
  js.Enter({1, 87});
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 2 + 1);  // the tally adds 1 where the site has any
  js.Enter({87, 87});
  EXPECT_EQ(TallyGrid.HighStrengthRowCount, 0 + 1);
}

TEST(BulkRange, IsNone) {
  Presented js(kBulkScreen);
  js.Open().TakeRange();
  EXPECT_TRUE(js.meanwhile.empty()) << "no tally runs";
}

}  // namespace rbt::test
