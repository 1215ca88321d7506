// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "tally/tally_grid.h"

namespace rbt {

/// Weight of Ulbon row `d` (12..17), spirals included, raised by `percent`, in whole kilograms: worked out in
/// double throughout. Faults: subscript out of range.
double UpliftedUlbonWeight(const TallyTable& table, int d, double percent);
/// The Ulbon total in kilograms: the sum of the six rows, each raised by `percent` and rounded to whole
/// kilograms.
double UlbonWeightSum(const TallyTable& table, double percent);
/// Gas pressure welds of the six rows. Faults: overflow.
std::int32_t UlbonWeldSum(const TallyTable& table);

}  // namespace rbt
