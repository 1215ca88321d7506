// SPDX-License-Identifier: MIT
#include "tally/ulbon_totals.h"

#include "data/diameters.h"
#include "platform/numbers/number_words.h"

namespace rbt {

double UpliftedUlbonWeight(const TallyTable& table, int d, double percent) {
  const double weight = table.UlbonWeight[d] + table.SpiralUlbonByDia[d].ToDouble();
  return Fix(weight + weight * percent / 100.0 + 0.5);
}

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
