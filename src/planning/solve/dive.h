// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "planning/solve/columns.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// What came of the columns of a task.
struct ColumnsResult {
  Cutting cutting;             ///< the best found; empty when it is not better than the one given
  std::vector<double> prices;  ///< of the items, that prove the best bound; empty when there is none
};

/// Whole bars from the linear program: its whole parts are cut, then its largest fraction, prices found anew
/// for what is left, and from every depth the rest is cut greedily. `start` is a cutting to improve on.
ColumnsResult CutByColumns(const CuttingTask& task, const Cutting& start, Pace& pace);

}  // namespace rbt::planning
