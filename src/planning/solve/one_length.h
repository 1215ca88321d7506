// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// Plans of a supply's groups that buy one length alone: what comes out where no other length is allowed and
/// nothing limits their number.
class OneLengthPlans {
 public:
  OneLengthPlans(const Problem& problem, std::size_t supply);

  /// The plan of each group from a length, an index into the supply's that holds every piece; nothing where
  /// it is proven that together they cost no less than `below`.
  std::optional<std::vector<Candidate>> Make(std::size_t length, Micros below, Pace& pace);

 private:
  /// True when linear programs say that the groups cost no less.
  bool CannotCostLess(Micros below, Pace& pace) const;

  const Supply& supply_;
  Problem alone_;  ///< the supply and its groups, by and by with each length
};

}  // namespace rbt::planning
