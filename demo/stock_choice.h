// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt::demo {

/// Stock lengths that the demonstration company keeps of one diameter, mm; they also stand in its STEEL.INI.
struct StockLimits {
  std::int32_t diameter;
  std::int32_t shortest_mm;
  std::int32_t longest_mm;
};

inline constexpr StockLimits kStockLimits[] = {
    {10, 3500, 12000}, {13, 3500, 12000}, {16, 3500, 12000}, {19, 3500, 12000},
    {22, 3500, 12000}, {25, 3500, 12000}, {29, 3500, 12000}, {32, 3500, 12000},
    {35, 4000, 12000}, {38, 4000, 12000}, {41, 4000, 12000}, {51, 5000, 12000},
};

struct StockChoice {
  double stock_m;               ///< 3.5 to 12.0 in steps of 0.5, or 13.0
  std::int32_t pieces_per_bar;  ///< at least 1
  std::int32_t stock_bars;      ///< total / pieces_per_bar, rounded up
};

/// The stock length with the least waste for `total` pieces of `cut_mm` (1 to 13000), the shorter among
/// equals; thin bars follow the limits of D10. Pieces beyond 12 m come from 13 m bars.
StockChoice ChooseStock(std::int32_t diameter, std::int32_t cut_mm, std::int32_t total);

}  // namespace rbt::demo
