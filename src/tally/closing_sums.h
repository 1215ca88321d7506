// SPDX-License-Identifier: MIT
#pragma once

#include "tally/tally_grid.h"

namespace rbt {

/// What closes a tally's sums. Only the bulk tally takes its settings in: the other tallies leave the 13.0 m
/// column out and never cap.
struct ClosingRules {
  bool sum_13m_column = false;  ///< setting 定尺13有無: column 18 belongs to the sums
  /// Setting 定尺取付書換: a diameter's installed weight never exceeds its stock weight.
  bool cap_installed_weight = false;
};

/// Installed weight per cell, weights per diameter, totals, loss rate, of the twelve deformed diameters: a
/// diameter's stock weight is the sum of its cells each rounded to a whole kilogram, the total that of the
/// diameters rounded again; installed weight stays unrounded up to the total.
void CloseSums(TallyTable& table, const ClosingRules& rules);

}  // namespace rbt
