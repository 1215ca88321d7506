// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "tally/tally_grid.h"

namespace rbt {

/// The Ulbon total of the result grid in kilograms: the sum of the six rows, spirals included, each raised by
/// `percent` and rounded to whole kilograms.
double UlbonWeightSum(const TallyTable& table, double percent);
/// Gas pressure welds of the six rows.
std::int32_t UlbonWeldSum(const TallyTable& table);

}  // namespace rbt
