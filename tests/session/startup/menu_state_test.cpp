// SPDX-License-Identifier: MIT
#include "session/startup/menu_state.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rbt {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// Everything that can narrow the menu out of the way.
struct Surroundings {
  RunStateData run_state;
  SettingsData settings;
  std::string weight_tally;

  Surroundings() {
    run_state.HasWeldCounter = run_state.HasJoinCounter = run_state.HasPlateCounter = true;
    settings.ShippingDate = 1;
  }
  MenuState Menu(std::int32_t start_mode) const {
    return MenuStateOf(TraitsOfStartMode(start_mode), run_state, settings, weight_tally);
  }
};

TEST(MenuState, WithoutAStartModeTheMenuIsFull) {
  const MenuState menu = Surroundings().Menu(-1);
  EXPECT_THAT(menu.shown, ElementsAreArray(MenuControls()));
  EXPECT_FALSE(menu.minimised);
  EXPECT_FALSE(menu.pass_on_to);
  EXPECT_FALSE(menu.status_text);
}

TEST(MenuState, StartModes1And4ShowTheFirstFiveButtonsAndTheCounters) {
  EXPECT_THAT(Surroundings().Menu(1).shown, ElementsAre("cmdShuukei", "cmdPGShuukei", "cmdKeijoShuukei",
                                                        "cmdKeijoPGShuukeia", "cmdTouroS", "cmdWeldCount"));
  EXPECT_THAT(Surroundings().Menu(4).shown,
              ElementsAre("cmdShuukei", "cmdPGShuukei", "cmdKeijoShuukei", "cmdKeijoPGShuukeia", "cmdTouroS",
                          "cmdWeldCount", "cmdCouplerCount"));
}

TEST(MenuState, AnyOtherStartModeShowsOnlyTheCounters) {
  for (const std::int32_t mode : {0, 5, -2}) {
    EXPECT_THAT(Surroundings().Menu(mode).shown,
                ElementsAre("cmdWeldCount", "cmdPlateCount", "cmdCouplerCount"))
        << mode;
  }
}

TEST(MenuState, TheWeldCounterFollowsItsProgramInEveryStartMode) {
  for (const std::int32_t mode : {-1, 0, 1, 2, 3, 4}) {
    Surroundings around;
    EXPECT_TRUE(around.Menu(mode).Shows("cmdWeldCount")) << mode;
    around.run_state.HasWeldCounter = false;
    EXPECT_FALSE(around.Menu(mode).Shows("cmdWeldCount")) << mode;
  }
}

TEST(MenuState, CouplerAndPlateCountersStayHiddenInStartModes1And3) {
  for (const std::int32_t mode : {1, 3}) {
    EXPECT_FALSE(Surroundings().Menu(mode).Shows("cmdCouplerCount")) << mode;
    EXPECT_FALSE(Surroundings().Menu(mode).Shows("cmdPlateCount")) << mode;
  }
}

TEST(MenuState, CountersWithoutTheirProgramsAreHidden) {
  Surroundings around;
  around.run_state = {};
  const MenuState menu = around.Menu(-1);
  EXPECT_FALSE(menu.Shows("cmdCouplerCount"));
  EXPECT_FALSE(menu.Shows("cmdPlateCount"));
}

TEST(MenuState, TheLedgerTallyNeedsTheShippingDate) {
  Surroundings around;
  EXPECT_TRUE(around.Menu(-1).Shows("cmdKaiBuiK"));
  around.settings.ShippingDate = 0;
  EXPECT_FALSE(around.Menu(-1).Shows("cmdKaiBuiK"));
}

TEST(MenuState, TheCallersMarkRestrictsTheMenuAndItsStatusLine) {
  Surroundings around;
  around.weight_tally = "j";
  const MenuState menu = around.Menu(-1);
  EXPECT_THAT(menu.shown, ElementsAre("cmdShuukei", "cmdPGShuukei", "cmdKaiShuukei", "cmdBuiShuukei",
                                      "cmdKaiBuiK", "cmdWeldCount"));
  EXPECT_EQ(menu.status_text, "F1 ～ F10　キーで選択して下さい（マウスクリックでも可）　　　　ESC：終了");
}

TEST(MenuState, AnyOtherMarkDoesNot) {
  for (const char* mark : {"", "J", "k", "jj"}) {
    Surroundings around;
    around.weight_tally = mark;
    EXPECT_THAT(around.Menu(-1).shown, ElementsAreArray(MenuControls())) << mark;
  }
}

TEST(MenuState, StartModes2And3AreMinimisedAndPassOnToTheCompanion) {
  EXPECT_TRUE(Surroundings().Menu(2).minimised);
  EXPECT_EQ(Surroundings().Menu(2).pass_on_to, "\\rbk\\rbtally2.exe 2");
  EXPECT_TRUE(Surroundings().Menu(3).minimised);
  EXPECT_EQ(Surroundings().Menu(3).pass_on_to, "\\rbk\\rbtally2.exe 3");
}

TEST(MenuState, WithoutAnythingOnDiskStartMode0ShowsNothing) {
  EXPECT_THAT(MenuStateOf(TraitsOfStartMode(0), {}, {}, "").shown, IsEmpty());
}

}  // namespace
}  // namespace rbt
