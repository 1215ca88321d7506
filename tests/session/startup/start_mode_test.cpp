// SPDX-License-Identifier: MIT
#include "session/startup/start_mode.h"

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

TEST(StartMode, IsMinusOneWithoutACommandLine) { EXPECT_EQ(ParseStartMode(""), -1); }

TEST(StartMode, IsTheFirstNumber) {
  EXPECT_EQ(ParseStartMode("2"), 2);
  EXPECT_EQ(ParseStartMode("4 7"), 4);
  EXPECT_EQ(ParseStartMode("-1"), -1);
}

TEST(StartMode, IsZeroForAWordWithoutDigits) { EXPECT_EQ(ParseStartMode("menu"), 0); }

TEST(StartMode, IsTheNumberThatAWordBeginsWith) { EXPECT_EQ(ParseStartMode("3x"), 3); }

TEST(StartMode, IsZeroBehindABlankForTheFirstWordIsEmptyThen) { EXPECT_EQ(ParseStartMode(" 2"), 0); }

TEST(StartMode, BeyondItsRangeOverflows) { EXPECT_THROW(ParseStartMode("3000000000"), Fault); }

TEST(StartArgs, OfThreeNumbersAreTwo) {
  EXPECT_EQ(ParseStartArgs("4 5 6"), (std::array<std::int32_t, 10>{4, 5}));
}

TEST(StartArgs, AreSplitAtSingleBlanks) {
  EXPECT_EQ(ParseStartArgs("4  5"), (std::array<std::int32_t, 10>{4, 0}));
}

}  // namespace
}  // namespace rbt
