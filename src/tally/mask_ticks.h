// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

namespace rbt {

/// The four kinds or the four forms as ticked boxes: index i stands for the bit 2 to the power of i.
using MaskTicks = std::array<bool, 4>;

inline constexpr MaskTicks kAllTicked{true, true, true, true};

/// The boxes that a mask of 0 to 15 ticks.
constexpr MaskTicks TicksOfMask(std::int32_t mask) {
  MaskTicks ticks{};
  for (bool& ticked : ticks) {
    ticked = mask % 2 != 0;
    mask /= 2;
  }
  return ticks;
}

/// The mask of the ticked boxes, 0 to 15.
constexpr std::int32_t MaskOfTicks(const MaskTicks& ticks) {
  std::int32_t mask = 0;
  std::int32_t bit = 1;
  for (const bool ticked : ticks) {
    if (ticked) mask += bit;
    bit *= 2;
  }
  return mask;
}

}  // namespace rbt
