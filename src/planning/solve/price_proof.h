// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// Whole prices and the bound that they prove.
struct PriceProof {
  ByIndex<Micros> prices;  ///< parallel to the items
  Micros bound = 0;
};

/// Prices that are a first guess (in cost units, parallel to the items), made whole and raised or lowered
/// together until the dearest content that is worth most for its bar's cost is worth just that: what they
/// then prove; nothing where it was stopped. The items' mix is not looked at. Takes an exact table of the
/// largest capacity.
std::optional<PriceProof> ProveBound(const CuttingTask& task, std::span<const double> prices, Pace& pace);

/// What a piece takes of a bar at the least price for capacity: proven without a table.
PriceProof ProveMaterialBound(const CuttingTask& task);
/// The same as a first guess.
ByIndex<double> MaterialPrices(const CuttingTask& task);

/// A bound rounded up to a multiple of the greatest common measure of the costs, when these are whole.
Micros RoundUpBound(const CuttingTask& task, Micros bound);

}  // namespace rbt::planning
