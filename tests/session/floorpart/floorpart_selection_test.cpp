// SPDX-License-Identifier: MIT
// The filters of the screens of floors and parts.
#include <gtest/gtest.h>

#include "session/floorpart/floorpart_driver.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

const char* TotalOf(const FloorPartScreen& screen) { return &screen == &kFloorScreen ? "合　計" : "合計"; }

}  // namespace

TEST(FloorPartFilters, HoopsAreTakenLeftOutAndShownAlone) {
  struct {
    const char* caption;
    const char* note;
    const char* total;
  } const steps[] = {{"含まず", "(形状No87)を", "135|239|0|0|374"},
                     {"のみ", "(形状No87)", "60|0|0|0|60"},
                     {"含む", "(形状No87)を", "195|239|0|0|434"}};
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenWithAll();
    for (const auto& step : steps) {
      js.presenter->CycleHoops();
      const FloorPartView view = js.View();
      EXPECT_EQ(view.filters.cycle_hoops.caption, step.caption);
      EXPECT_EQ(view.filters.hoops_note, step.note);
      EXPECT_TRUE(view.filters.cycle_hoops.shown) << "also where no hoop is left to see";
      EXPECT_EQ(js.Row(TotalOf(*screen)), step.total) << step.caption;
    }
  }
}

TEST(FloorPartFilters, AnchorPlatesAreTakenLeftOutAndShownAlone) {
  struct {
    const char* caption;
    const char* total;
  } const steps[] = {{"含まず", "195|0|0|0|195"}, {"のみ", "0|239|0|0|239"}, {"含む", "195|239|0|0|434"}};
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.OpenWithAll();
    for (const auto& step : steps) {
      js.presenter->CyclePlates();
      EXPECT_EQ(js.View().filters.cycle_plates.caption, step.caption);
      EXPECT_EQ(js.Row(TotalOf(*screen)), step.total) << step.caption;
    }
  }
}

TEST(FloorPartFilters, AreOfferedWhereTheFloorsHoldSuchShapes) {
  struct {
    const char* floor;
    const char* buttons;
  } const cases[] = {{"1", "kinds forms"}, {"2", "kinds forms plates"}, {"3", "kinds forms hoops"}};
  for (const FloorPartScreen* screen : kBothScreens) {
    for (const auto& row : cases) {
      FloorPartPresented js(*screen);
      js.Open();
      js.Enter(row.floor, row.floor);
      EXPECT_EQ(FilterButtons(js.View()), row.buttons) << row.floor;
    }
  }
}

TEST(FloorPartFilters, ChosenKindsAreTalliedAndTold) {
  for (const FloorPartScreen* screen : kBothScreens) {
    FloorPartPresented js(*screen);
    js.kinds = [] { Selection.MaterialKindMask = KindMask(6); };
    js.OpenWithAll().ChooseKinds();
    EXPECT_EQ(js.View().filters.kinds, "ネジ･高強度");
    EXPECT_EQ(js.Row(TotalOf(*screen)), "0|239|0|0|239") << "the load takes shape 138 for threaded";
  }
}

TEST(FloorPartFilters, UlbonAloneIsAChoiceOfItsOwn) {
  FloorPartPresented js(kPartScreen);
  js.kinds = [] {
    Selection.MaterialKindMask = KindMask();
    Selection.UlbonOnly = true;
  };
  js.OpenWithAll().ChooseKinds();
  EXPECT_EQ(js.View().filters.kinds, "ウルボン");
  EXPECT_EQ(js.Labels(), "U 6|U 7|U 9|U11|U12|U16|   |D10|D13|D16|D19|D22|D25|D29|D32|D35|D38|D41|D51|合計|");
  EXPECT_NE(js.Row("U 9"), "0|0|0|0|0");
  EXPECT_EQ(js.Row("D19"), "0|0|0|0|0");
}

TEST(FloorPartFilters, AChoiceThatChangesNothingTalliesNothing) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll();
  js.site.AddRow(On(1, 1, TenBars(19, 1, 0)));
  js.presenter->ChooseKinds();
  js.presenter->ChooseForms();
  EXPECT_EQ(js.Row("1階"), "135|0|0|0|135");
  js.presenter->CycleHoops();
  EXPECT_EQ(js.Row("1階"), "270|0|0|0|270") << "a tally would have told";
}

TEST(FloorPartFilters, FormsAreToldShortAfterAChoiceAndLongAfterARun) {
  FloorPartPresented js(kFloorScreen);
  js.forms = [] { Selection.MaterialFormMask = FormMask(8); };
  js.OpenWithAll().ChooseForms();
  EXPECT_EQ(js.View().filters.forms, "切加");
  js.presenter->BeginChange();
  js.presenter->TakeUplift();
  EXPECT_EQ(js.View().filters.forms, "切断加");
}

TEST(FloorPartFilters, NewKindsBringTheFormsBackAsTheDialogDoes) {
  FloorPartPresented js(kFloorScreen);
  js.forms = [] { Selection.MaterialFormMask = FormMask(1); };
  js.kinds = [] { Selection.MaterialFormMask = kAllForms; };
  js.OpenWithAll().ChooseForms();
  EXPECT_EQ(js.View().filters.forms, "生");
  js.presenter->ChooseKinds();
  EXPECT_EQ(js.View().filters.forms, "すべて");
}

TEST(PartScreen, EachRunStartsFromTheFullSelection) {
  FloorPartPresented js(kPartScreen);
  js.kinds = [] { Selection.MaterialKindMask = KindMask(2); };
  js.OpenWithAll().CycleHoops();
  js.presenter->CyclePlates();
  js.presenter->ChooseKinds();
  js.presenter->BeginChange();
  js.presenter->TypeUplift("0");
  js.presenter->TakeUplift();
  const FilterView filters = js.View().filters;
  EXPECT_EQ(filters.cycle_hoops.caption, "含む");
  EXPECT_EQ(filters.cycle_plates.caption, "含む");
  EXPECT_EQ(filters.kinds, "異形･高強度･ネジ･スリット");
  EXPECT_EQ(js.Row("合計"), "195|239|0|0|434");
}

TEST(FloorScreen, KeepsItsFiltersWhenItIsRaised) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll().CycleHoops();
  js.presenter->BeginChange();
  js.presenter->TypeUplift("10");
  js.presenter->TakeUplift();
  EXPECT_EQ(js.View().filters.cycle_hoops.caption, "含まず");
  EXPECT_EQ(js.Row("合　計"), "149|263|0|0|412");
}

TEST(FloorPartFilters, RowsAreStripedByTheSetting) {
  FloorPartPresented js(kFloorScreen);
  js.OpenWithAll();
  EXPECT_EQ(js.View().grid.colours, AlternateColours());
  EXPECT_TRUE(js.View().grid.colours.has_value());
  EXPECT_EQ(js.View().grid.columns[6].width, 1250);
}

}  // namespace rbt::test
