// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "data/floor_mask.h"

namespace rbt {

/// "Ｒ階", "ＰＨ階", "階なし"; empty for a floor that is not special.
std::string_view SpecialFloorWord(int floor_code);

/// What is told of the special floors taken beside a range: "Ｒ階、階なしを含む。"; empty for none.
std::string_view TakenBesideWords(SpecialMask taken);

}  // namespace rbt
