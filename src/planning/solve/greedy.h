// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// Of bars that cost equally little for what they carry, as all do that are full: the shortest, or that which
/// carries most. Neither is better for all pieces.
enum class Ties { shorter, fuller };

/// Cuts what is left of each item: bar by bar, the longest piece left with those that fill the rest of a bar
/// best, from the bar that costs least for what it carries; rest bars before any that is bought. Every item
/// must fit a bar that can be bought. Nothing where it was stopped before all was cut.
std::optional<Cutting> CutGreedily(const CuttingTask& task, ByIndex<std::int64_t> left, Pace& pace,
                                   Ties ties = Ties::shorter);

/// What such a cutting took, in steps of about a nanosecond.
std::int64_t GreedySteps(const CuttingTask& task, const Cutting& cutting);

}  // namespace rbt::planning
