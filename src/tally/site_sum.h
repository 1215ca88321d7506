// SPDX-License-Identifier: MIT
#pragma once

#include "tally/closing_sums.h"
#include "tally/tally_result.h"

namespace rbt {

/// Whether the cell of diameter row `d` and stock column `l` has stock weight, installed weight or bars above
/// 0.
bool HoldsSomething(const TallyTable& table, int d, int l);

/// What is kept of a bulk tally until the next site is added to it: of each deformed diameter its welds,
/// threads, plates and cuts, of each cell that holds something the two weights and the bars, of each Ulbon
/// diameter metres, kilograms (both to four decimals) and welds. Spirals and metres outside the cells are
/// not. Keeping twice is keeping once.
TallyTable KeptForSum(const TallyTable& table);

/// A site's bulk tally on top of the sites before it, of which `before` is what was kept: what is kept is the
/// sum of both, and the weights by diameter, the totals and the loss rate are closed over that sum. An Ulbon
/// diameter weighs all its metres, or what was kept where the site has none. Everything else (spirals, high
/// strength, warning, selection) is the site's own. Faults: `overflow`.
TallyResult SumOfSites(const TallyTable& before, TallyResult site, const ClosingRules& rules);

}  // namespace rbt
