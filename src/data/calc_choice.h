// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "data/kind_mask.h"

namespace rbt {

/// What a choice of kinds says of high strength: rows without a stock length count by it.
enum class CalcChoice : std::int16_t {
  without_high_strength = 0,
  high_strength_alone = 1,
  high_strength_with_others = 2,
};

constexpr CalcChoice CalcChoiceOf(KindMask kinds) {
  if (!kinds.Has(MaterialKind::high_strength)) return CalcChoice::without_high_strength;
  return kinds.IsOne() ? CalcChoice::high_strength_alone : CalcChoice::high_strength_with_others;
}

}  // namespace rbt
