// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "planning/solve/cutting_task.h"

namespace rbt::planning {

/// Cuts what is left of each item: bar by bar, the longest piece left with those that fill the rest of a bar
/// best, from the bar that costs least for what it carries; rest bars before any that is bought. Every item
/// must fit a bar that can be bought.
Cutting CutGreedily(const CuttingTask& task, ByIndex<std::int64_t> left);

/// What such a cutting took, in steps of about a nanosecond.
std::int64_t GreedySteps(const CuttingTask& task, const Cutting& cutting);

}  // namespace rbt::planning
