// SPDX-License-Identifier: MIT
#pragma once

#include "archive/accumulation/hozon.h"
#include "support/root_folder.h"
#include "tally/site_sum.h"

namespace rbt::test {

/// A tally with figures in every field that is kept, by `n` different from one to the next.
inline TallyTable SampleSum(int n) {
  TallyTable table;
  for (int d = 0; d < 12; ++d) {
    table.WeldCount[d] = n + d;
    table.ThreadCount[d] = n + 2 * d;
    table.PlateCount[d] = n + 3 * d;
    table.CutCount[d] = n + 4 * d;
    const int l = (d + n) % 19;
    table.BarCount[d][l] = n * 10 + d;
    table.StockWeight[d][l] = Currency::FromTenThousandths(n * 1'000'003 + d);
    table.InstalledWeight[d][l] = Currency::FromTenThousandths(n * 900'001 + d);
  }
  for (int d = 12; d < 18; ++d) {
    table.UlbonLengthM[d] = n + d * 0.001;
    table.UlbonWeight[d] = n + d * 0.0001;
    table.UlbonWeldCount[d] = n + d;
  }
  return table;
}

}  // namespace rbt::test
