// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "planning/problem/problem.h"

namespace rbt::planning {

/// Yen a tonne by milligrams of bar make so many times the millionths of a yen.
inline constexpr std::int64_t kPriceByWeightPerMicro = 1'000;

/// True for 0 (none given) and the deformed diameters.
bool IsPlannedDiameter(int diameter);
/// Weight of a mm of bar; a diameter of 0 weighs 1 kg a metre. Faults: subscript out of range.
Milligrams UnitMilligrams(int diameter);
/// Weight of a bar as the tally weighs it: to three significant figures; of diameter 0 its unit weight.
/// Faults: subscript out of range.
Milligrams TableMilligrams(int diameter, int mm);

}  // namespace rbt::planning
