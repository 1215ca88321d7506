// SPDX-License-Identifier: MIT
#include "data/shapes.h"

#include <algorithm>

namespace rbt {

namespace {

constexpr std::array<int, 2> kTwoPlateShapes{143, 146};
constexpr std::array<int, 4> kStraightEndedShapes{138, 139, 140, 143};

template <typename Ranges>
bool IsInside(const Ranges& ranges, int shape) {
  return std::any_of(ranges.begin(), ranges.end(), [shape](const ShapeRange& range) {
    return shape >= range.first && shape <= range.last;
  });
}

template <typename Values, typename Value>
bool IsOneOf(const Values& values, Value value) {
  return std::find(values.begin(), values.end(), value) != values.end();
}

}  // namespace

bool IsAnchorPlateShape(int shape) { return IsInside(AnchorPlateShapes, shape); }

bool IsThreadedShape(int shape) { return IsInside(kThreadedShapes, shape); }

int PlatesPerBar(int shape) {
  if (!IsAnchorPlateShape(shape)) return 0;
  return IsOneOf(kTwoPlateShapes, shape) ? 2 : 1;
}

bool IsStraightShape(int shape, const StartModeTraits& start_mode) {
  if (shape == kStraightShape) return true;
  return !start_mode.only_plain_bars_are_straight && IsOneOf(kStraightEndedShapes, shape);
}

}  // namespace rbt
