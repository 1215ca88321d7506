// SPDX-License-Identifier: MIT
// Raising the figures by a percentage, and correcting them by hand.
#include <gtest/gtest.h>

#include "session/floorpart/floorpart_driver.h"
#include "support/fault_of.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

constexpr const char* kAsked = "操作選択: ％入力しますか＝はい、重量修正＝いいえ|";
constexpr const char* kAskedAgain =
    "操作選択: 再度の％増しは出来ません。一度終了するか重量修正をしてください\n\n"
    "はい＝終了、いいえ＝重量修正|";
constexpr const char* kEscEnds = "重量修正作業を中断する場合は、ESCキーを押して下さい|";

}  // namespace

TEST(Uplift, AsksForThePercentageWithEverythingElseOutOfReach) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenWithAll().BeginChange();
    EXPECT_EQ(js.Told(), kAsked);
    EXPECT_EQ(js.site.Messages().back().buttons, MessageButtons::yes_no);
    const FloorPartView view = js.View();
    EXPECT_TRUE(view.uplift.shown);
    EXPECT_EQ(view.focus, FloorPartFocus::uplift);
    EXPECT_EQ(MainButtons(view) + FilterButtons(view), "");
    EXPECT_FALSE(view.grid.open);
  }
}

TEST(Uplift, RaisesTheBarsAndGoesOutOfTheWay) {
  FloorPartPresented js(kFloorScreen);
  js.OpenRaised("10");
  const FloorPartView view = js.View();
  EXPECT_FALSE(view.uplift.shown);
  EXPECT_EQ(MainButtons(view), "print floors weights save load manage leave");
  EXPECT_EQ(FilterButtons(view), "kinds forms hoops plates");
  EXPECT_EQ(js.Row("1階"), "149|0|0|0|149");  // 11 bars of 13.5 kg
  EXPECT_EQ(js.Row("2階"), "0|263|0|0|263");  // 11 of 23.9
  EXPECT_EQ(js.Row("3階"), "66|0|0|0|66");    // 11 of 5.97
  EXPECT_EQ(js.meanwhile.back().raise_note, "上乗せ中です  お待ち下さい");
}

TEST(Uplift, OfPartsIsTheirOwn) {
  FloorPartPresented js(kPartScreen);
  js.OpenRaised("10");
  EXPECT_EQ(js.Row("D19"), "149|0|0|0|149");
  EXPECT_EQ(Selection.BuiUwanoseRitu, 0.1);
  EXPECT_EQ(Selection.UwanoseRitu, 0.0);
}

TEST(Uplift, StaysWhenTheFiguresAreFilteredAfterwards) {
  FloorPartPresented js(kFloorScreen);
  js.OpenRaised("10").CycleHoops();
  EXPECT_EQ(js.Row("合　計"), "149|263|0|0|412");
}

TEST(Uplift, OfNothingLeavesTheFiguresAndCanBeAskedForAgain) {
  FloorPartPresented js(kFloorScreen);
  js.OpenRaised("");
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
  js.presenter->BeginChange();
  EXPECT_EQ(js.Told(), std::string(kAsked) + kAsked);
}

TEST(Uplift, IsNotGivenTwice) {
  FloorPartPresented js(kFloorScreen);
  js.OpenRaised("10").BeginChange();
  EXPECT_EQ(js.Told(1), kAskedAgain);
  const FloorPartView view = js.View();
  EXPECT_FALSE(view.uplift.shown) << "yes leaves it at that";
  EXPECT_FALSE(view.grid.open);
  EXPECT_EQ(MainButtons(view), "print floors weights save load manage leave");
  EXPECT_EQ(js.Row("1階"), "149|0|0|0|149");
}

TEST(Uplift, LeadsOnToACorrection) {
  FloorPartPresented js(kFloorScreen);
  js.OpenRaised("10");
  js.site.Answer(MessageAnswer::no);
  js.presenter->BeginChange();
  EXPECT_EQ(js.Told(1), std::string(kAskedAgain) + "階別集計: " + kEscEnds);
  EXPECT_TRUE(js.View().grid.open);
  js.presenter->Correct(0, 1, "150");
  EXPECT_EQ(js.Row("合　計"), "216|263|0|0|479");
}

TEST(Uplift, BeyondAllCountsIsAFaultAndLeadsBackToTheInput) {
  FloorPartPresented js(kFloorScreen);
  EXPECT_NE(FaultTextOf([&] { js.OpenRaised("99999999999"); }), "");
  EXPECT_TRUE(js.View().input.shown);
  EXPECT_EQ(Selection.UwanoseRitu, 0.0);
}

TEST(Correction, OpensTheGridAtItsFirstCellWithEverythingElseOutOfReach) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenForCorrection();
    EXPECT_EQ(js.Told(), std::string(kAsked) + std::string(screen->title) + ": " + kEscEnds);
    const FloorPartView view = js.View();
    EXPECT_TRUE(view.grid.open);
    EXPECT_EQ(view.focus, FloorPartFocus::first_cell);
    EXPECT_EQ(MainButtons(view) + FilterButtons(view), "");
  }
}

TEST(Correction, SumsTheRowTheColumnAndTheWholeAfresh) {
  FloorPartPresented js(kFloorScreen);
  js.OpenForCorrection();
  js.presenter->Correct(0, 1, "1,234");
  EXPECT_EQ(js.Row("1階"), "1,234|0|0|0|1,234");
  EXPECT_EQ(js.Row("合　計"), "1,294|239|0|0|1,533");
  js.presenter->Correct(1, 11, "7");
  EXPECT_EQ(js.Row("2階"), "0|239|0|7|246");
  EXPECT_EQ(js.Row("合　計"), "1,294|239|0|7|1,540");
}

TEST(Correction, OfPartsGoesByTheDiameter) {
  FloorPartPresented js(kPartScreen);
  js.OpenForCorrection();
  js.presenter->Correct(3, 1, "100");  // D19
  EXPECT_EQ(js.Row("D19"), "100|0|0|0|100");
  EXPECT_EQ(js.Row("合計"), "160|239|0|0|399");
}

TEST(Correction, LocksTheLabelTheTotalsAndTheRowNumber) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll();
  EXPECT_FALSE(js.presenter->MayCorrect(0, 1)) << "not before it was asked for";
  js.site.Answer(MessageAnswer::no);
  js.presenter->BeginChange();
  for (int column = 0; column < 14; ++column) {
    EXPECT_EQ(js.presenter->MayCorrect(0, column), column >= 1 && column <= 11) << column;
    EXPECT_FALSE(js.presenter->MayCorrect(3, column)) << "total row, column " << column;
  }
  js.presenter->Correct(3, 1, "1");
  js.presenter->Correct(0, 12, "1");
  EXPECT_EQ(js.Row("合　計"), "195|239|0|0|434");
}

TEST(Correction, LocksTheGapBetweenThinAndDeformedBars) {
  FloorPartPresented js(kPartScreen);
  js.kinds = [] {
    Selection.MaterialKindMask = KindMask();
    Selection.UlbonOnly = true;
  };
  js.OpenWithAll().ChooseKinds();
  js.site.Answer(MessageAnswer::no);
  js.presenter->BeginChange();
  EXPECT_TRUE(js.presenter->MayCorrect(5, 1));
  EXPECT_FALSE(js.presenter->MayCorrect(6, 1));
  EXPECT_TRUE(js.presenter->MayCorrect(7, 1));
}

TEST(Correction, TakesDigitsAndCommasAlone) {
  for (const char* text : {"1", "1,234", "1234,", "007"}) {
    EXPECT_TRUE(FloorPartPresenter::IsWeight(text)) << text;
  }
  for (const char* text : {"", ",", "-1", "1.5", "a", "１"}) {
    EXPECT_FALSE(FloorPartPresenter::IsWeight(text)) << text;
  }
  FloorPartPresented js(kFloorScreen);
  js.OpenForCorrection();
  js.presenter->Correct(0, 1, "-5");
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
}

TEST(Correction, OfMoreThanAWeightHoldsIsAFaultAndLeavesTheCell) {
  FloorPartPresented js(kFloorScreen);
  js.OpenForCorrection();
  EXPECT_NE(FaultTextOf([&] { js.presenter->Correct(0, 1, "9999999999999999999"); }), "");
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
}

TEST(Correction, EndsWithTheFiguresHeldAndNothingToSave) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenForCorrection().Correct(0, 1, "500");
    js.presenter->EndCorrection();
    const FloorPartView view = js.View();
    EXPECT_FALSE(view.grid.open);
    EXPECT_EQ(view.focus, FloorPartFocus::first_row);
    EXPECT_EQ(MainButtons(view), "print floors weights load manage leave");
    EXPECT_EQ(view.grid.rows[0][1], "500");
    EXPECT_FALSE(js.presenter->MayCorrect(0, 1));
  }
}

TEST(Correction, IsHeldUntilTheTallyRunsAgain) {
  FloorPartPresented js(kFloorScreen);
  js.OpenForCorrection().Correct(0, 1, "500");
  js.presenter->EndCorrection();
  js.presenter->OpenPrint();
  js.presenter->ClosePrint();
  EXPECT_FALSE(js.View().save.enabled);
  js.presenter->CycleHoops();
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
  EXPECT_TRUE(js.View().save.enabled);
}

TEST(Correction, CanBeTakenUpAgain) {
  FloorPartPresented js(kFloorScreen);
  js.OpenForCorrection().Correct(0, 1, "500");
  js.presenter->EndCorrection();
  js.site.Answer(MessageAnswer::no);
  js.presenter->BeginChange();
  js.presenter->Correct(0, 2, "1");
  EXPECT_EQ(js.Row("1階"), "500|1|0|0|501");
}

TEST(Correction, ThatIsNotUnderWayCannotBeEnded) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll();
  js.View();
  js.presenter->EndCorrection();
  EXPECT_EQ(js.View().focus, FloorPartFocus::stays);
}

}  // namespace rbt::test
