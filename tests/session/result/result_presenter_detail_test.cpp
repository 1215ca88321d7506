// SPDX-License-Identifier: MIT
// The way from a result screen to its purchase list and back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "session/result/result_presenter_driver.h"
#include "support/fault_of.h"
#include "tally/captions.h"
#include "tally/detail/detail_change.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr KindMask kOneKind(1);
constexpr FormMask kOneForm(1);

/// Twenty bars of D19 by 6.0 m, 13.5 kg each, in place of ten.
TallyResult WithTwentyBars(TallyResult result) {
  return CorrectCell(std::move(result), BarCell{3, 5}, 20, 18);
}

}  // namespace

TEST(ResultPresenterDetail, HandsItsResultOnAndShowsAndPrintsTheOneThatComesBack) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    TallyResult handed;
    js.detail = [&](TallyResult result) {
      handed = result;
      return WithTwentyBars(std::move(result));
    };
    js.OpenWithResult();
    EXPECT_THAT(js.Row("D19"), StartsWith("135 |")) << screen->name;
    js.presenter->ShowDetail();
    EXPECT_TRUE((js.View().focus == FocusRequest{FocusTarget::grid}));
    EXPECT_EQ(handed.kind, screen->kind);
    EXPECT_EQ(handed.Grid().BarCount[3][5], 10);
    EXPECT_THAT(js.Row("D19"), StartsWith("270 |")) << screen->name;
    js.presenter->OpenPrint(SheetBody::with_ulbon);
    js.presenter->Print(ReportPaper::a4t);
    ASSERT_FALSE(js.orders.empty());
    EXPECT_EQ(js.orders.back().result, WithTwentyBars(handed));
    EXPECT_THAT(js.calls, ElementsAre("detail", "print"));
  }
}

TEST(ResultPresenterDetail, KeepsTheKindsThatItsResultIsOf) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.kinds = [] { Selection.MaterialKindMask = kOneKind; };
    js.detail = WithTwentyBars;
    js.OpenWithResult();
    js.presenter->ChooseKinds();
    const std::string told = js.View().filters.kinds;
    js.presenter->ShowDetail();
    EXPECT_EQ(Selection.MaterialKindMask, kOneKind) << screen->name;
    EXPECT_EQ(js.View().filters.kinds, told);
    EXPECT_FALSE(js.View().print.shown) << "a part of the picture";
  }
}

TEST(ResultPresenterDetail, TellsAllKindsOnceTheyWereTalliedAnewInTheList) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.kinds = [] { Selection.MaterialKindMask = kOneKind; };
    js.detail = [](const TallyResult& result) { return CountTally(result.kind); };
    js.OpenWithResult();
    js.presenter->ChooseKinds();
    js.presenter->ShowDetail();
    EXPECT_EQ(Selection.MaterialKindMask, kAllKinds) << screen->name;
    const std::string all(KindCaption(kAllKinds));
    EXPECT_EQ(js.View().filters.kinds, screen->IsScoped() ? all : StripSlitWord(all));
    EXPECT_TRUE(js.View().print.shown);
  }
}

TEST(ResultPresenterDetail, TellsTheSelectionThatASavedTallyLoadedThereIsOf) {
  for (const ResultScreen* screen : ResultScreens()) {
    Presented js(*screen);
    js.detail = [](TallyResult result) {
      // As loading leaves it: in the selection as in the result.
      Selection.MaterialFormMask = kOneForm;
      Selection.HoopMode = ShapeFilter::left_out;
      Selection.MaterialKindMask = kOneKind;
      result.selection = Selection;
      result.origin = ResultOrigin::loaded;
      return result;
    };
    js.OpenWithResult();
    js.presenter->ShowDetail();
    const FilterView filters = js.View().filters;
    EXPECT_EQ(filters.kinds, KindCaption(kOneKind)) << screen->name;
    EXPECT_EQ(filters.forms, screen->form_caption(kOneForm)) << screen->name;
    EXPECT_EQ(filters.cycle_hoops.caption, ShapeFilterCaption(ShapeFilter::left_out)) << screen->name;
    EXPECT_EQ(filters.hoops_note, HoopsNote(ShapeFilter::left_out)) << screen->name;
    EXPECT_FALSE(js.View().print.shown) << "a part of the picture";
  }
}

TEST(ResultPresenterDetail, TellsNoRangeOfASavedTallyUntilItsRowsAreTalliedAgain) {
  for (const ResultScreen* screen : {&kPageScreen, &kPageShapeScreen}) {
    Presented js(*screen);
    js.detail = WithTwentyBars;
    js.OpenWithResult();
    const std::string told = js.View().filters.range;
    EXPECT_NE(told, "");
    js.presenter->ShowDetail();
    EXPECT_EQ(js.View().filters.range, told) << "a correction is of the same rows";
    js.detail = [](TallyResult result) {
      result.was_saved = true;
      return WithTwentyBars(std::move(result));
    };
    js.presenter->ShowDetail();
    EXPECT_EQ(js.View().filters.range, "") << screen->name;
    js.presenter->CycleHoops();
    EXPECT_EQ(js.View().filters.range, told);
  }
}

TEST(ResultPresenterDetail, KeepsTheUpliftOfItsUlbonRows) {
  Presented js(kBulkScreen);
  js.detail = [](const TallyResult& result) { return CountTally(result.kind); };
  js.Open().BeginUplift();
  js.presenter->TypeUplift("10");
  js.presenter->TakeUplift();
  const std::string raised = js.Row("U 9");
  js.presenter->ShowDetail();
  EXPECT_EQ(js.Row("U 9"), raised);
}

TEST(ResultPresenterDetail, AFaultOfTheListLeavesTheScreenAsItWas) {
  Presented js(kBulkScreen);
  js.kinds = [] { Selection.MaterialKindMask = kOneKind; };
  js.detail = [](const TallyResult&) -> TallyResult { throw Fault(FaultKind::file, "no list"); };
  js.Open().ChooseKinds();
  const ResultScreenView before = js.View();
  EXPECT_EQ(FaultOf([&] { js.presenter->ShowDetail(); }), FaultKind::file);
  EXPECT_EQ(js.View().rows, before.rows);
  EXPECT_EQ(js.View().filters.kinds, before.filters.kinds);
  EXPECT_EQ(Selection.MaterialKindMask, kOneKind);
}

}  // namespace rbt::test
