// SPDX-License-Identifier: MIT
#include "data/calc_choice.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(CalcChoice, TellsHighStrengthOfEveryMask) {
  for (std::int32_t mask = 0; mask <= 15; ++mask) {
    const bool high_strength = mask / 4 % 2 == 1;
    const CalcChoice expected = !high_strength ? CalcChoice::without_high_strength
                                : mask == 4    ? CalcChoice::high_strength_alone
                                               : CalcChoice::high_strength_with_others;
    EXPECT_EQ(CalcChoiceOf(KindMask(mask)), expected) << mask;
  }
}

TEST(CalcChoice, IsTheNumberOfTheCommandLine) {
  EXPECT_EQ(static_cast<int>(CalcChoice::without_high_strength), 0);
  EXPECT_EQ(static_cast<int>(CalcChoice::high_strength_alone), 1);
  EXPECT_EQ(static_cast<int>(CalcChoice::high_strength_with_others), 2);
}

}  // namespace
}  // namespace rbt
