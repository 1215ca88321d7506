// SPDX-License-Identifier: MIT
#include "data/start_mode.h"

#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rbt {
namespace {

constexpr std::int32_t kFirst = -1;
constexpr std::int32_t kLast = 10;

/// The start modes from -1 to 10 that have a trait.
template <typename Has>
std::set<std::int32_t> ModesThat(Has has) {
  std::set<std::int32_t> modes;
  for (std::int32_t number = kFirst; number <= kLast; ++number) {
    if (has(TraitsOfStartMode(number))) modes.insert(number);
  }
  return modes;
}

std::set<std::int32_t> ModesWith(bool StartModeTraits::*trait) {
  return ModesThat([&](const StartModeTraits& traits) { return traits.*trait; });
}

std::set<std::int32_t> ModesWithout(bool StartModeTraits::*trait) {
  return ModesThat([&](const StartModeTraits& traits) { return !(traits.*trait); });
}

using Modes = std::set<std::int32_t>;

TEST(StartModeTraits, TheFullMenuIsThatOfNoNumberAndTheReducedOneThatOf1And3And4) {
  for (std::int32_t number = kFirst; number <= kLast; ++number) {
    const MenuExtent expected = number == -1                      ? MenuExtent::full
                                : Modes{1, 3, 4}.contains(number) ? MenuExtent::reduced
                                                                  : MenuExtent::none;
    EXPECT_EQ(TraitsOfStartMode(number).menu, expected) << number;
  }
}

TEST(StartModeTraits, TheCouplerCounterIsKeptFrom1And3AndThePlateCounterFrom4Too) {
  EXPECT_EQ(ModesWithout(&StartModeTraits::offers_coupler_counter), (Modes{1, 3}));
  EXPECT_EQ(ModesWithout(&StartModeTraits::offers_plate_counter), (Modes{1, 3, 4}));
}

TEST(StartModeTraits, TwoAndThreePassOnToTheCompanionWithTheirNumber) {
  EXPECT_EQ(ModesThat([](const StartModeTraits& traits) { return traits.PassesOn(); }), (Modes{2, 3}));
  EXPECT_EQ(TraitsOfStartMode(2).pass_on_to, "\\rbk\\rbtally2.exe 2");
  EXPECT_EQ(TraitsOfStartMode(3).pass_on_to, "\\rbk\\rbtally2.exe 3");
}

TEST(StartModeTraits, TheCompanionOfRegisteredNamesIsTold0By1And3And4By4) {
  for (std::int32_t number = kFirst; number <= kLast; ++number) {
    const std::string told = Modes{1, 3}.contains(number) ? " 0" : number == 4 ? " 4" : "";
    EXPECT_EQ(TraitsOfStartMode(number).name_companion, "\\rbk\\rbtally2.exe" + told) << number;
  }
}

TEST(StartModeTraits, OneAndThreeKnowNoPlatesNoProbesAndNoCuts) {
  EXPECT_EQ(ModesWithout(&StartModeTraits::counts_plates), (Modes{1, 3}));
  EXPECT_EQ(ModesWithout(&StartModeTraits::probes_presence), (Modes{1, 3}));
  EXPECT_EQ(ModesWith(&StartModeTraits::hides_cuts), (Modes{1, 3}));
}

TEST(StartModeTraits, TheTallyOfRegisteredNamesAsksForPlatesInNoneOf1And2And3) {
  EXPECT_EQ(ModesWithout(&StartModeTraits::probes_plates_of_names), (Modes{1, 2, 3}));
}

TEST(StartModeTraits, OneAndThreeAndFourKnowPlainBarsAloneNoShapeFiltersAndNoSlitBars) {
  EXPECT_EQ(ModesWith(&StartModeTraits::only_plain_bars_are_straight), (Modes{1, 3, 4}));
  EXPECT_EQ(ModesWithout(&StartModeTraits::offers_shape_filters), (Modes{1, 3, 4}));
  EXPECT_EQ(ModesWith(&StartModeTraits::hides_slit), (Modes{1, 3, 4}));
}

TEST(StartModeTraits, TheBulkScreensKindsLoseTheSlitWordWithoutANumberToo) {
  EXPECT_EQ(ModesWith(&StartModeTraits::hides_slit_in_bulk_kinds), (Modes{-1, 1, 3, 4}));
}

TEST(StartModeTraits, ANumberThatMeansNothingHasTheDefaults) {
  for (const std::int32_t number : {-2, 0, 5, 10, 1000}) {
    EXPECT_EQ(TraitsOfStartMode(number), StartModeTraits()) << number;
  }
}

}  // namespace
}  // namespace rbt
