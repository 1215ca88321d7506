// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"

namespace rbt::planning {

/// What may be bought of a supply.
struct PurchaseLimits {
  std::size_t most_lengths = 0;
  std::vector<std::int64_t> least_bars;  ///< of each length that is bought at all, at least 1
  /// Bars that may be filled one way or another before it is given up.
  int most_tried = 0;
};

/// What came of looking at every plan.
struct EveryPlan {
  bool finished = false;  ///< false: nothing is known
  int tried = 0;          ///< bars that were filled for it
  /// The cheapest plan, a candidate for each group; nothing where no plan keeps the limits.
  std::optional<std::vector<Candidate>> cheapest = std::nullopt;
};

/// Looks at every plan of a supply's groups whose bars all carry a piece, where these have few pieces.
/// Nothing is known where the cheapest has a bar that only fills a lot, see `HasSpareBar`.
EveryPlan TryEveryPlan(const Problem& problem, std::span<const std::size_t> groups,
                       const PurchaseLimits& limits);

}  // namespace rbt::planning
