// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt::planning {

/// Twice as wide as a cost, for one product.
__extension__ using WideInteger = __int128;

/// a / b < c / d, for b and d above 0, without rounding.
constexpr bool RatioIsLess(std::int64_t a, std::int64_t b, std::int64_t c, std::int64_t d) {
  return static_cast<WideInteger>(a) * d < static_cast<WideInteger>(c) * b;
}

/// a x b / c, rounded down, for numbers at least 0 whose quotient has 64 bits.
constexpr std::int64_t Scaled(std::int64_t a, std::int64_t b, std::int64_t c) {
  return static_cast<std::int64_t>(static_cast<WideInteger>(a) * b / c);
}

}  // namespace rbt::planning
