// SPDX-License-Identifier: MIT
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "session/result/result_presenter_driver.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/result_screens.h"
#include "support/stopped_work.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

/// What the user sees of a screen, in words.
std::string Picture(const Presented& js) {
  const ResultScreenView view = js.View();
  std::string text =
      fmt::format("{}\n{}\n{}\n{}\n{}\n{}\n{}\n{}\n{}\n", MainButtons(view), FilterButtons(view),
                  view.filters.kinds, view.filters.forms, view.filters.range, view.filters.hoops_note,
                  view.filters.uplift.text, view.notice, js.Message());
  for (const bool shown : {view.result_shown, view.range.shown, view.ulbon_view, view.busy, view.left}) {
    text += shown ? "yes " : "no ";
  }
  for (const std::string& box : view.range.texts) text += "\n" + box;
  for (const std::vector<std::string>& row : view.rows) {
    text += "\n";
    for (const std::string& cell : row) text += cell + "|";
  }
  return text;
}

struct StoppedIntent {
  const char* name;
  void (*run)(Presented& js);
};

constexpr StoppedIntent kIntents[] = {
    {"hoops", [](Presented& js) { js.presenter->CycleHoops(); }},
    {"plates", [](Presented& js) { js.presenter->CyclePlates(); }},
    {"again", [](Presented& js) { js.presenter->Recalculate(); }},
    {"kinds", [](Presented& js) { js.presenter->ChooseKinds(); }},
    {"forms", [](Presented& js) { js.presenter->ChooseForms(); }},
    {"Ulbon rows", [](Presented& js) { js.presenter->ShowUlbonView(); }},
    {"values", [](Presented& js) { js.presenter->RestoreValues(); }},
    {"range", [](Presented& js) { js.presenter->TakeRange(); }},
};

/// What an intent that comes to its end takes from the schedule file and the current result.
struct Kept {
  std::string picture;
  SelectionData selection;
  TallyTable grid;
  std::string bytes;

  static Kept Of(const Presented& js) {
    return {Picture(js), Selection, TallyGrid, BytesOf(js.site.Data(kScheduleFile))};
  }
};

void ExpectAsBefore(const Presented& js, const Kept& before, const std::string& where) {
  const Kept now = Kept::Of(js);
  EXPECT_EQ(now.picture, before.picture) << where;
  EXPECT_TRUE(now.selection == before.selection) << where;
  EXPECT_TRUE(now.grid == before.grid) << where;
  EXPECT_TRUE(now.bytes == before.bytes) << where << ": the schedule has changed";
}

class StoppedTally : public testing::TestWithParam<const ResultScreen*> {};

}  // namespace

TEST_P(StoppedTally, LeavesTheScreenTheSelectionAndTheFileAsTheyWere) {
  constexpr int kPace = 25;  // a small site's statements are short
  for (const StoppedIntent& intent : kIntents) {
    if (!GetParam()->IsScoped() && intent.name == std::string("range")) continue;
    Presented js(*GetParam());
    WorkStopper stopper(kPace);
    SiteContext.WorkDatabase.reset();
    js.kinds = [] { Selection.MaterialKindMask = KindMask(1); };
    js.forms = [] { Selection.MaterialFormMask = FormMask(1); };
    js.OpenWithResult();
    js.View();  // the focus is asked for once
    Kept before;
    StopEverywhere(
        stopper, [&] { before = Kept::Of(js); }, [&] { intent.run(js); },
        [&] { ExpectAsBefore(js, before, std::string(GetParam()->name) + ", " + intent.name); });
    if (HasFailure()) return;
  }
}

TEST_P(StoppedTally, OfTheFirstRangeLeavesTheInput) {
  if (!GetParam()->IsScoped()) return;
  Presented js(*GetParam());
  WorkStopper stopper;
  SiteContext.WorkDatabase.reset();
  js.Open();
  js.View();
  const Kept before = Kept::Of(js);
  stopper.StopAt(1);
  EXPECT_EQ(FaultOf([&] { js.presenter->TakeRange(); }), FaultKind::stopped);
  ExpectAsBefore(js, before, std::string(GetParam()->name));
}

INSTANTIATE_TEST_SUITE_P(Screens, StoppedTally,
                         testing::Values(&kBulkScreen, &kPageScreen, &kShapeScreen, &kPageShapeScreen),
                         [](const auto& screen) { return std::string(screen.param->name); });

}  // namespace rbt::test
