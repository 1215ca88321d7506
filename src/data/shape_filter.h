// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// What a tally does with a family of shapes: the welded hoops, the anchor plates.
enum class ShapeFilter : std::int32_t { with_others = 0, left_out = 1, alone = 2 };

/// The filter of a number that a file or the command line gives; one that means nothing filters nothing.
constexpr ShapeFilter ShapeFilterOf(std::int32_t number) {
  switch (number) {
    case 1:
      return ShapeFilter::left_out;
    case 2:
      return ShapeFilter::alone;
    default:
      return ShapeFilter::with_others;
  }
}

/// The filter that a press of its button leads to: with others, left out, alone, and round again.
constexpr ShapeFilter Next(ShapeFilter filter) {
  return ShapeFilterOf((static_cast<std::int32_t>(filter) + 1) % 3);
}

}  // namespace rbt
