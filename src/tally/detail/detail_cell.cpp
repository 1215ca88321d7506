// SPDX-License-Identifier: MIT
#include "tally/detail/detail_cell.h"

namespace rbt {

namespace {

template <typename Table>
auto& CountIn(Table& table, int d, Fitting fitting) {
  switch (fitting) {
    case Fitting::threads:
      return table.ThreadCount[d];
    case Fitting::plates:
      return table.PlateCount[d];
    case Fitting::cuts:
      return table.CutCount[d];
    case Fitting::welds:
      break;
  }
  return table.WeldCount[d];
}

}  // namespace

std::int32_t& FittingCount(TallyTable& table, int d, Fitting fitting) { return CountIn(table, d, fitting); }

std::int32_t FittingCount(const TallyTable& table, int d, Fitting fitting) {
  return CountIn(table, d, fitting);
}

std::int32_t FittingTotal(const TallyTable& table, Fitting fitting) {
  switch (fitting) {
    case Fitting::threads:
      return table.TotalThreadCount;
    case Fitting::plates:
      return table.TotalPlateCount;
    case Fitting::cuts:
      return table.TotalCutCount;
    case Fitting::welds:
      break;
  }
  return table.TotalWeldCount;
}

}  // namespace rbt
