// SPDX-License-Identifier: MIT
#include "planning/solve/row_plans.h"

#include <algorithm>

#include "planning/problem/bar_rule.h"

namespace rbt::planning {

BarsOfOneCut CutAlone(const BarRule& rule, int stock_mm, int cut_mm, std::int64_t pieces) {
  BarsOfOneCut bars{stock_mm, cut_mm};
  bars.per_bar = std::max(1, PiecesPerBar(rule, stock_mm, cut_mm));
  bars.full_bars = pieces / bars.per_bar;
  bars.on_last_bar = static_cast<int>(pieces % bars.per_bar);
  return bars;
}

std::optional<BarsOfOneCut> CutFromBestLength(const BarRule& rule, const Supply& supply, const Cut& cut,
                                              const LengthSet& lengths) {
  std::optional<BarsOfOneCut> best;
  Micros best_cost = 0;
  for (const std::size_t l : lengths) {
    const StockLength& length = supply.lengths[l];
    if (PiecesPerBar(rule, length.mm, cut.mm) == 0) continue;
    const BarsOfOneCut bars = CutAlone(rule, length.mm, cut.mm, cut.count);
    const Micros cost = length.cost * bars.Bars();
    if (best && cost > best_cost) continue;
    best = bars;
    best_cost = cost;
  }
  return best;
}

std::optional<BarsOfOneCut> CutFromBestLength(const BarRule& rule, const Supply& supply, const Cut& cut) {
  return CutFromBestLength(rule, supply, cut, AllLengths(supply));
}

const StockLength* FindLength(const Supply& supply, int mm) {
  const auto at = std::ranges::lower_bound(supply.lengths, mm, {}, &StockLength::mm);
  return at != supply.lengths.end() && at->mm == mm ? &*at : nullptr;
}

void AppendPatterns(std::vector<Pattern>& patterns, const BarsOfOneCut& bars) {
  if (bars.full_bars > 0) {
    patterns.push_back({bars.stock_mm, false, bars.full_bars, {{bars.cut_mm, bars.per_bar}}});
  }
  if (bars.on_last_bar > 0) {
    patterns.push_back({bars.stock_mm, false, 1, {{bars.cut_mm, bars.on_last_bar}}});
  }
}

}  // namespace rbt::planning
