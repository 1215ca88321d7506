// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_words.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(SpecialFloorWord, IsThatOfTheFloorsAboveTheStoreys) {
  EXPECT_EQ(SpecialFloorWord(76), "Ｒ階");
  EXPECT_EQ(SpecialFloorWord(77), "ＰＨ階");
  EXPECT_EQ(SpecialFloorWord(78), "階なし");
  EXPECT_EQ(SpecialFloorWord(75), "");
  EXPECT_EQ(SpecialFloorWord(0), "");
}

TEST(TakenBesideWords, NameTheSpecialFloorsThatWereTaken) {
  const char* const words[] = {"",
                               "Ｒ階を含む。",
                               "Ｐ階を含む。",
                               "Ｒ階、Ｐ階を含む。",
                               "階なしを含む。",
                               "Ｒ階、階なしを含む。",
                               "Ｐ階、階なしを含む。",
                               "Ｒ階、Ｐ階、階なしを含む。"};
  for (std::int16_t mask = 0; mask < 8; ++mask) EXPECT_EQ(TakenBesideWords(SpecialMask(mask)), words[mask]);
}

}  // namespace
}  // namespace rbt
