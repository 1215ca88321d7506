// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "work.h"

namespace rbt::bench {

/// The middle of several figures, and where half of them lie.
struct Spread {
  double low = 0.0;
  double middle = 0.0;
  double high = 0.0;
};
/// Of one figure at least.
Spread SpreadOf(std::vector<double> figures);

/// What was measured of a work. Ratios are of processor time, to a yardstick that ran right before or behind.
struct Figures {
  Spread wall;       ///< seconds
  Spread processor;  ///< seconds
  Spread x_bare;
  Spread x_fold;
  double peak_mb = 0.0;
  std::optional<Counts> counts;
};

/// Runs work and yardsticks in turn, so often; what comes first changes from turn to turn.
Figures Measure(const Work& work, const DemoSite& site, int turns);

}  // namespace rbt::bench
