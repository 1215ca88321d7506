// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "data/start_mode.h"

namespace rbt {

/// Shape numbers, column `形状No`.
inline constexpr int kStraightShape = 1;
/// 溶接閉鎖型フープ, the welded closed hoop.
inline constexpr int kWeldedHoopShape = 87;

/// Shapes `first` to `last`, both included.
struct ShapeRange {
  int first;
  int last;
};

/// Shapes with an anchor plate at one end or at both.
inline constexpr std::array<ShapeRange, 6> AnchorPlateShapes{
    {{138, 138}, {140, 140}, {143, 147}, {161, 161}, {164, 169}, {175, 176}}};
/// The condition that selects them, and its complement, which leaves them out.
inline constexpr std::string_view kAnchorPlateClause =
    " AND (形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR 形状No=161 OR (形状No Between 164 "
    "And 169) OR (形状No Between 175 And 176))";
inline constexpr std::string_view kNoAnchorPlateClause =
    " AND (IsNull(形状No) OR 形状No=0 or 形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR (形状No "
    "Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR 形状No >=177)";

/// Shapes with a thread at one end or at both.
inline constexpr std::array<ShapeRange, 3> kThreadedShapes{{{138, 143}, {162, 163}, {166, 177}}};

/// Whether a 形状No has an anchor plate at one end or at both, a thread likewise. Any number may be asked.
bool IsAnchorPlateShape(int shape);
bool IsThreadedShape(int shape);
/// Anchor plates on one bar of a shape: 0, 1 or 2.
int PlatesPerBar(int shape);

/// A straight shape: a bar with threaded or anchored ends (138, 139, 140, 143) counts as straight unless the
/// start mode knows plain bars alone.
bool IsStraightShape(int shape, const StartModeTraits& start_mode);

}  // namespace rbt
