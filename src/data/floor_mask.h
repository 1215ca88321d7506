// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "data/code_mask.h"
#include "data/floors.h"

namespace rbt {

/// The floors above the storeys, which a range of floors takes in only when they are asked for.
inline constexpr std::array kSpecialFloors{kRoofFloor, kPenthouseFloor, kNoFloor};

/// Special floors taken into a range: 1 R floor, 2 penthouse, 4 no floor.
using SpecialMask = CodeMask<std::int16_t, kSpecialFloors>;

constexpr bool IsSpecialFloor(int floor_code) { return floor_code > kHighestStorey; }

}  // namespace rbt
