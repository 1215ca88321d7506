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
/// The same over cells whose installed weight stands already; sums that stand are replaced.
void CloseWeighedCells(TallyTable& table, const ClosingRules& rules);

/// The sum of a diameter's stock cells in the first `columns`, each rounded to a whole kilogram.
Currency StockWeightOfCells(const TallyTable& table, int d, int columns);
/// The totals of stock weight and of fittings anew, from the twelve deformed diameters; the installed total
/// and the loss rate stay. Faults: `overflow`.
void SumStockAndFittings(TallyTable& table);

}  // namespace rbt
