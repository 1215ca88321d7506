// SPDX-License-Identifier: MIT
#pragma once

#include "support/kilograms.h"
#include "tally/closing_sums.h"
#include "tally/detail/detail_cell.h"

namespace rbt::test {

/// Stock columns by their length.
inline constexpr int kAt3m5 = 0;
inline constexpr int kAt6m = 5;
inline constexpr int kAt8m = 9;
inline constexpr int kAt9m5 = 12;
inline constexpr int kAt13m = 18;

inline void PutTallied(TallyTable& table, int d, int l, std::int32_t bars) {
  table.BarCount[d][l] = bars;
  table.StockWeight[d][l] = Kg(bars * BarWeight(d, l));
}

/// As a tally leaves it: 5 bars of D10 by 3.5 m (1.96 kg each: 9.8 kg), 10 of D19 by 6.0 m (13.5 kg: 135 kg),
/// 3 of D25 by 8.0 m (31.8 kg: 95.4 kg), with fittings of D19 and D25. Stock 10 + 135 + 95 = 240 kg.
inline TallyTable TalliedTable() {
  TallyTable table;
  PutTallied(table, 0, kAt3m5, 5);
  PutTallied(table, 3, kAt6m, 10);
  PutTallied(table, 5, kAt8m, 3);
  table.CutLengthM[3][kAt6m] = 59.0;
  table.WeldCount[3] = 4;
  table.WeldCount[5] = 12;
  table.ThreadCount[5] = 2;
  table.PlateCount[3] = 1;
  table.CutCount[3] = 1020;
  CloseSums(table, {});
  return table;
}

}  // namespace rbt::test
