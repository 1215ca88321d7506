// SPDX-License-Identifier: MIT
#include "reports/ulbon/ulbon_sums.h"

#include "data/diameters.h"
#include "platform/numbers/number_words.h"
#include "tally/views/result_grid.h"

namespace rbt {

double UlbonWeightSum(const TallyTable& table, double percent) {
  double sum = 0.0;
  for (int d = kDeformedRows; d < kDiameterRows; ++d) sum += UpliftedUlbonWeight(table, d, percent);
  return sum;
}

std::int32_t UlbonWeldSum(const TallyTable& table) {
  std::int32_t welds = 0;
  for (int d = kDeformedRows; d < kDiameterRows; ++d) {
    welds = AddInt32(welds, table.UlbonWeldCount[d], "UlbonWeldCount");
  }
  return welds;
}

}  // namespace rbt
