// SPDX-License-Identifier: MIT
#include "session/floorpart/floor_input.h"

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

constexpr FloorExtent kStoreys{2, 7, false};
constexpr FloorExtent kWithBasements{-2, 7, true};
constexpr FloorExtent kBelowGround{-3, 0, true};

FloorInput Entered(const FloorExtent& extent, const char* start, const char* end) {
  FloorInput input(extent);
  input.Type(FloorInput::kStart, start);
  input.Type(FloorInput::kEnd, end);
  return input;
}

struct StartCase {
  FloorExtent extent;
  const char* text;
  bool passes;
};

struct RangeCase {
  FloorExtent extent;
  const char* start;
  const char* end;
  std::optional<FloorRange> range;
};

}  // namespace

TEST(FloorInput, HoldsTheFirstFloorToTheScheduleWhereThereIsAFoundationOrABasement) {
  const StartCase cases[] = {
      {kWithBasements, "", false},    {kWithBasements, "-2", true},  {kWithBasements, "0", true},
      {kWithBasements, "7", true},    {kWithBasements, "-3", false}, {kWithBasements, "8", false},
      {kWithBasements, "7.4", false}, {kWithBasements, "1.6", true}, {kWithBasements, "76", true},
      {kWithBasements, "78", true},   {kWithBasements, "79", false}, {kWithBasements, "99999", false},
      {kStoreys, "", false},          {kStoreys, "1", true},         {kStoreys, "9", true},
      {kStoreys, "-5", true},         {kStoreys, "-6", false},       {kStoreys, "1.4", true},
      {kStoreys, "1.6", false},       {kStoreys, "78", true},        {kStoreys, "79", false},
  };
  for (const StartCase& row : cases) {
    EXPECT_EQ(Entered(row.extent, row.text, "").StartPasses(), row.passes) << row.text;
  }
}

TEST(FloorInput, KnowsAFirstFloorThatStandsByItself) {
  EXPECT_FALSE(Entered(kStoreys, "75", "").StartIsSpecial());
  EXPECT_TRUE(Entered(kStoreys, "76", "").StartIsSpecial());
  EXPECT_FALSE(Entered(kStoreys, "", "").StartIsSpecial());
}

TEST(FloorInput, GivesTheRangeOfTwoBoxesThatPass) {
  const RangeCase cases[] = {
      {kStoreys, "2", "7", FloorRange{2, 7}},
      {kStoreys, "2", "", std::nullopt},
      {kStoreys, "", "7", std::nullopt},
      {kStoreys, "2", "8", std::nullopt},
      {kStoreys, "5", "4", std::nullopt},
      {kStoreys, "2", "76", FloorRange{2, 76}},
      {kStoreys, "76", "78", FloorRange{76, 78}},
      {kStoreys, "0", "1", std::nullopt},
      {kStoreys, "1.6", "7", std::nullopt},
      {kWithBasements, "-2", "7", FloorRange{-2, 7}},
      {kWithBasements, "0", "-1", std::nullopt},
      {kWithBasements, "-3", "7", std::nullopt},
      {kBelowGround, "0", "-3", FloorRange{0, -3}},
      {kBelowGround, "0", "-2", std::nullopt},
      {kBelowGround, "-3", "0", FloorRange{-3, 0}},
  };
  for (const RangeCase& row : cases) {
    EXPECT_EQ(Entered(row.extent, row.start, row.end).Range(), row.range) << row.start << " " << row.end;
  }
}

TEST(FloorInput, CopiesTheFirstFloorIntoTheBoxOfTheLastOne) {
  FloorInput input = Entered(kStoreys, "77", "5");
  input.CopyStartToEnd();
  EXPECT_EQ(input.AsTyped(), (FloorInput::Texts{"77", "77"}));
}

}  // namespace rbt::test
