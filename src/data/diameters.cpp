// SPDX-License-Identifier: MIT
#include "data/diameters.h"

#include <string>

#include "platform/fault.h"

namespace rbt {
namespace {

const Diameter& RowOf(int diameter_row) {
  if (diameter_row < 0 || diameter_row >= kDiameterRows) {
    throw Fault(FaultKind::subscript_out_of_range, "diameter row " + std::to_string(diameter_row));
  }
  return kDiameters[static_cast<std::size_t>(diameter_row)];
}

int FindRow(int diameter_code, int first, int last) {
  for (int row = first; row <= last; ++row) {
    if (kDiameters[static_cast<std::size_t>(row)].code == diameter_code) return row;
  }
  return -1;
}

}  // namespace

int DiameterIndex(int diameter_code) { return FindRow(diameter_code, 0, kDeformedRows - 1); }

int UlbonIndex(int diameter_code) { return FindRow(diameter_code, kDeformedRows, kDiameterRows - 1); }

int DiameterCode(int diameter_row) { return RowOf(diameter_row).code; }

std::string_view DiameterLabel(int diameter_row) { return RowOf(diameter_row).label; }

double UnitWeight(int diameter_row) { return RowOf(diameter_row).kilograms_per_metre; }

}  // namespace rbt
