// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace rbt::demo {

/// How the dimensions of a shape come from the developed length.
enum class Outline {
  straight,    ///< one length
  one_leg,     ///< a leg and the body
  two_legs,    ///< leg, body, leg
  closed,      ///< the sides of a rectangle
  round,       ///< the diameter of a circle
  four_sides,  ///< body, slope, body, slope
};

struct Shape {
  std::int32_t number;    ///< 形状No
  std::string_view name;  ///< 形状名
  Outline outline;
  std::int32_t thread_ends = 0;  ///< ends cut with a thread: they take a coupler or a screwed plate
};

/// The shape table of the demonstration sites. Numbers 138 to 177 follow the trade's reserved ranges:
/// threaded 138 to 143, 162, 163, 166 to 177; with anchor plates 138, 140, 143 to 147, 161, 164 to 169, 175,
/// 176.
std::span<const Shape> Shapes();
/// The shape of a number of the table.
const Shape& ShapeOf(std::int32_t number);

}  // namespace rbt::demo
