// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_words.h"

#include <array>

#include "tally/mask_text.h"

namespace rbt {

namespace {

/// In the order of `kSpecialFloors`.
constexpr std::array<std::string_view, kSpecialFloors.size()> kWords{"Ｒ階", "ＰＨ階", "階なし"};

constexpr MaskText<SpecialMask> kTakenBeside[] = {
    {1, "Ｒ階を含む。"},
    {2, "Ｐ階を含む。"},
    {3, "Ｒ階、Ｐ階を含む。"},
    {4, "階なしを含む。"},
    {5, "Ｒ階、階なしを含む。"},
    {6, "Ｐ階、階なしを含む。"},
    {7, "Ｒ階、Ｐ階、階なしを含む。"},
};

}  // namespace

std::string_view SpecialFloorWord(int floor_code) {
  for (std::size_t i = 0; i < kSpecialFloors.size(); ++i) {
    if (kSpecialFloors[i] == floor_code) return kWords[i];
  }
  return {};
}

std::string_view TakenBesideWords(SpecialMask taken) { return TextOfMask(kTakenBeside, taken); }

}  // namespace rbt
