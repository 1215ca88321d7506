// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_range.h"

#include <gtest/gtest.h>

#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::kNull;
using test::Number;
using test::ScheduleSite;

std::optional<FloorExtent> ExtentOf(const std::vector<Value>& floors) {
  ScheduleSite site;
  for (const Value& floor : floors) site.AddRow({{"階", floor}});
  return ReadFloorExtent(site.Work());
}

TEST(FloorExtent, HoldsTheNumberedFloorsAndLeavesTheSpecialOnesOut) {
  EXPECT_EQ(ExtentOf({Number(1), Number(7), Number(76), Number(78)}), (FloorExtent{1, 7, false}));
  EXPECT_EQ(ExtentOf({Number(-2), Number(0), Number(75)}), (FloorExtent{-2, 75, true}));
}

TEST(FloorExtent, HoldsTheSpecialFloorsWhereThereAreNoOthers) {
  EXPECT_EQ(ExtentOf({Number(77)}), (FloorExtent{77, 77, false}));
  EXPECT_EQ(ExtentOf({Number(78), Number(76)}), (FloorExtent{76, 78, false}));
}

TEST(FloorExtent, PassesOverCodesThatAreNoFloorAndNulls) {
  EXPECT_EQ(ExtentOf({Number(-6), Number(79), kNull, Number(3)}), (FloorExtent{3, 3, false}));
  EXPECT_EQ(ExtentOf({Number(-6), Number(79), kNull}), std::nullopt);
  EXPECT_EQ(ExtentOf({}), std::nullopt);
}

TEST(FloorExtent, FindsTheFoundationOrBasements) {
  EXPECT_TRUE((FloorExtent{0, 5, true}).KaiFound());
  EXPECT_TRUE((FloorExtent{-1, 5, false}).KaiFound());
  EXPECT_TRUE((FloorExtent{-2, -1, false}).KaiFound());
  EXPECT_FALSE((FloorExtent{1, 5, false}).KaiFound());
  EXPECT_FALSE((FloorExtent{76, 78, false}).KaiFound());
}

TEST(AllFloors, StartAtTheFoundationWhereThereIsOneOrABasement) {
  EXPECT_EQ(AllFloors({1, 7, false}), (FloorRange{1, 7}));
  EXPECT_EQ(AllFloors({0, 7, true}), (FloorRange{0, 7}));
  EXPECT_EQ(AllFloors({-2, 7, true}), (FloorRange{0, 7}));
  EXPECT_EQ(AllFloors({-2, 7, false}), (FloorRange{0, 7}));
  EXPECT_EQ(AllFloors({76, 78, false}), (FloorRange{76, 78}));
}

TEST(AllFloors, EndAtTheLowestFloorWhereEverythingLiesBelowGround) {
  EXPECT_EQ(AllFloors({-2, 0, true}), (FloorRange{0, -2}));
  EXPECT_EQ(AllFloors({-2, -1, false}), (FloorRange{0, -2}));
  EXPECT_EQ(AllFloors({0, 0, true}), (FloorRange{0, 0}));
}

TEST(PartStart, IsTheLowestFloorForAStartOf0WithAFoundationOrABasement) {
  EXPECT_EQ(PartStart({0, 5}, {-2, 7, true}), -2);
  EXPECT_EQ(PartStart({0, 5}, {-2, 7, false}), -2);
  EXPECT_EQ(PartStart({0, 5}, {0, 7, true}), 0);
  EXPECT_EQ(PartStart({0, 5}, {1, 7, false}), 0);
  EXPECT_EQ(PartStart({1, 5}, {-2, 7, true}), 1);
  EXPECT_EQ(PartStart({76, 76}, {-2, 7, true}), 76);
}

TEST(PartStart, IsTheFoundationAloneForBothBoxes0UnlessThereAreBasementsAlone) {
  EXPECT_EQ(PartStart({0, 0}, {-2, 7, true}), 0);
  EXPECT_EQ(PartStart({0, 0}, {-2, 7, false}), -2);
  EXPECT_EQ(PartStart({0, 0}, {-2, -1, false}), -2);
}

constexpr FloorExtent kStoreys{1, 7, false};
constexpr FloorExtent kWithFoundation{-2, 7, true};
constexpr FloorExtent kBelowGround{-3, -1, false};

TEST(RefusedRange, TakesFloorsOfTheSchedule) {
  EXPECT_EQ(RefusedRange({1, 7}, kStoreys), std::nullopt);
  EXPECT_EQ(RefusedRange({3, 3}, kStoreys), std::nullopt);
  EXPECT_EQ(RefusedRange({-2, 7}, kWithFoundation), std::nullopt);
  EXPECT_EQ(RefusedRange({0, 0}, kWithFoundation), std::nullopt);
  EXPECT_EQ(RefusedRange({-3, -2}, kBelowGround), std::nullopt);
}

bool RefusedAtStart(FloorRange range, const FloorExtent& extent) {
  const auto refusal = RefusedRange(range, extent);
  return refusal && refusal->at_start;
}

bool RefusedAtEnd(FloorRange range, const FloorExtent& extent) {
  const auto refusal = RefusedRange(range, extent);
  return refusal && !refusal->at_start;
}

TEST(RefusedRange, RefusesCodesThatAreNoFloor) {
  EXPECT_TRUE(RefusedAtStart({-6, 7}, kStoreys));
  EXPECT_TRUE(RefusedAtStart({79, 79}, kStoreys));
  EXPECT_TRUE(RefusedAtEnd({1, 79}, kStoreys));
  EXPECT_TRUE(RefusedAtEnd({-5, -6}, kStoreys));
}

TEST(RefusedRange, RefusesAnEndBelowTheStart) {
  EXPECT_TRUE(RefusedAtEnd({5, 4}, kStoreys));
  EXPECT_TRUE(RefusedAtEnd({78, 77}, kStoreys));
  EXPECT_TRUE(RefusedAtEnd({0, -1}, kWithFoundation));
}

TEST(RefusedRange, RefusesAnEndAboveTheHighestFloorUnlessItIsSpecial) {
  EXPECT_TRUE(RefusedAtEnd({1, 8}, kStoreys));
  EXPECT_TRUE(RefusedAtEnd({1, 75}, kStoreys));
  for (std::int16_t special = 76; special <= 78; ++special) {
    EXPECT_EQ(RefusedRange({1, special}, kStoreys), std::nullopt) << special;
    EXPECT_EQ(RefusedRange({special, special}, kWithFoundation), std::nullopt) << special;
  }
}

TEST(RefusedRange, HoldsTheStartToTheScheduleWhereThereIsAFoundationOrABasement) {
  EXPECT_TRUE(RefusedAtStart({-3, 5}, kWithFoundation));
  EXPECT_TRUE(RefusedAtStart({8, 8}, kWithFoundation));
  EXPECT_TRUE(RefusedAtStart({0, 0}, kBelowGround));
  EXPECT_EQ(RefusedRange({-3, 5}, kStoreys), std::nullopt);
  EXPECT_EQ(RefusedStart(8, kStoreys), std::nullopt);
  EXPECT_EQ(RefusedStart(76, kWithFoundation), std::nullopt);
}

TEST(RefusedRange, RefusesAStartOf0WithAnEndBelowTheLowestFloor) {
  constexpr FloorExtent from_3{3, 7, false};
  EXPECT_TRUE(RefusedAtEnd({0, 2}, from_3));
  EXPECT_TRUE(RefusedAtEnd({0, 0}, from_3));
  EXPECT_EQ(RefusedRange({0, 3}, from_3), std::nullopt);
  EXPECT_EQ(RefusedRange({1, 2}, from_3), std::nullopt);
}

TEST(RefusedRange, AlwaysTakesWhatTheButtonForAllFloorsEnters) {
  for (std::int16_t lowest = -5; lowest <= 78; ++lowest) {
    const std::int16_t top = lowest > 75 ? 78 : 75;
    for (std::int16_t highest = lowest; highest <= top; ++highest) {
      for (const bool foundation : {false, true}) {
        if (foundation && (lowest > 0 || highest < 0)) continue;
        const FloorExtent extent{lowest, highest, foundation};
        EXPECT_EQ(RefusedRange(AllFloors(extent), extent), std::nullopt) << lowest << ' ' << highest;
      }
    }
  }
}

TEST(TakeFloors, PutsTheFloorsAndWhereTheTalliesBeginIntoTheSelection) {
  SelectionData selection;
  TakeFloors(selection, {0, 5}, SpecialMask(3), {-2, 7, true});
  EXPECT_EQ(selection.KaiStart, 0);
  EXPECT_EQ(selection.KaiEnd, 5);
  EXPECT_EQ(selection.KaiMin, -2);
  EXPECT_EQ(selection.BuiStart, -2);
  EXPECT_EQ(selection.TokubetuMask, SpecialMask(3));
}

}  // namespace
}  // namespace rbt
