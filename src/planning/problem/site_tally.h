// SPDX-License-Identifier: MIT
#pragma once

#include "tally/closing_sums.h"
#include "tally/tally_grid.h"

namespace rbt::planning {

/// The bulk tally of the rows that a plan is made from.
struct SiteTally {
  TallyTable schedule;  ///< closed: what the tally shows
  /// Not closed: the same installed lengths, but only the bars of the rows that stay as scheduled. A plan's
  /// bars are added before it is closed.
  TallyTable kept;
  ClosingRules closing;
};

}  // namespace rbt::planning
