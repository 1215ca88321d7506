// SPDX-License-Identifier: MIT
#include "demo/stock_choice.h"

#include <algorithm>
#include <limits>

namespace rbt::demo {

namespace {

const StockLimits& LimitsOf(std::int32_t diameter) {
  for (const StockLimits& limits : kStockLimits) {
    if (limits.diameter == diameter) return limits;
  }
  return kStockLimits[0];
}

}  // namespace

StockChoice ChooseStock(std::int32_t diameter, std::int32_t cut_mm, std::int32_t total) {
  if (cut_mm > 12000) return {13.0, 1, total};
  const StockLimits& limits = LimitsOf(diameter);
  StockChoice best{12.0, 1, total};
  std::int64_t least_waste = std::numeric_limits<std::int64_t>::max();
  for (std::int32_t stock_mm = limits.shortest_mm; stock_mm <= limits.longest_mm; stock_mm += 500) {
    if (stock_mm < cut_mm) continue;
    // No more pieces are cut from a bar than the line needs.
    const std::int32_t pieces = std::min(stock_mm / cut_mm, total);
    const std::int32_t stock_bars = (total + pieces - 1) / pieces;
    const std::int64_t waste =
        static_cast<std::int64_t>(stock_bars) * stock_mm - static_cast<std::int64_t>(total) * cut_mm;
    if (waste < least_waste) {
      least_waste = waste;
      best = {stock_mm / 1000.0, pieces, stock_bars};
    }
  }
  return best;
}

}  // namespace rbt::demo
