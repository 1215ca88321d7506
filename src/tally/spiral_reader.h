// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "store/database.h"
#include "tally/spirals.h"

namespace rbt {

/// The spirals of a site, summed by material and diameter; none when the file has no table スパイラル.
std::vector<SpiralRow> ReadSpirals(Database& companion);

}  // namespace rbt
