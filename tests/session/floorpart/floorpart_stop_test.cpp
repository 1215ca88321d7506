// SPDX-License-Identifier: MIT
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "session/floorpart/floorpart_driver.h"
#include "shell/context/site_context.h"
#include "support/stopped_work.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

std::string Picture(const FloorPartPresented& screen) {
  const FloorPartView view = screen.View();
  std::string text =
      fmt::format("{}\n{}\n{}\n{}\n{}\n{}\n", MainButtons(view), FilterButtons(view), view.filters.kinds,
                  view.filters.forms, view.filters.hoops_note, screen.Told());
  for (const std::vector<std::string>& row : view.grid.rows) {
    text += "\n";
    for (const std::string& cell : row) text += cell + "|";
  }
  return text;
}

struct Intent {
  const char* name;
  void (*run)(FloorPartPresenter& presenter);
};

constexpr Intent kIntents[] = {
    {"floors", [](FloorPartPresenter& presenter) { presenter.Run(); }},
    {"hoops", [](FloorPartPresenter& presenter) { presenter.CycleHoops(); }},
    {"plates", [](FloorPartPresenter& presenter) { presenter.CyclePlates(); }},
    {"kinds", [](FloorPartPresenter& presenter) { presenter.ChooseKinds(); }},
    {"forms", [](FloorPartPresenter& presenter) { presenter.ChooseForms(); }},
};

}  // namespace

TEST(StoppedFloorTally, LeavesTheScreenTheSelectionAndTheFileAsTheyWere) {
  constexpr int kPace = 25;
  for (const FloorPartScreen* const each : kBothScreens) {
    for (const Intent& intent : kIntents) {
      FloorPartPresented screen(*each);
      WorkStopper stopper(kPace);
      // The dialogs choose another kind and form each time.
      screen.kinds = [] {
        const bool one = Selection.MaterialKindMask == KindMask(1);
        Selection.MaterialKindMask = one ? kAllKinds : KindMask(1);
      };
      screen.forms = [] {
        const bool one = Selection.MaterialFormMask == FormMask(1);
        Selection.MaterialFormMask = one ? kAllForms : FormMask(1);
      };
      screen.OpenWithAll();
      screen.View();
      std::string picture;
      std::string bytes;
      SelectionData selection;
      StopEverywhere(
          stopper,
          [&] {
            picture = Picture(screen);
            selection = Selection;
            bytes = BytesOf(screen.site.Data(kScheduleFile));
          },
          [&] { intent.run(*screen.presenter); },
          [&] {
            EXPECT_EQ(Picture(screen), picture) << intent.name;
            EXPECT_TRUE(Selection == selection) << intent.name;
            EXPECT_TRUE(BytesOf(screen.site.Data(kScheduleFile)) == bytes) << intent.name;
          });
      if (testing::Test::HasFailure()) return;
    }
  }
}

}  // namespace rbt::test
