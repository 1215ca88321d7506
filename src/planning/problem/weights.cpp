// SPDX-License-Identifier: MIT
#include "planning/problem/weights.h"

#include <cmath>

#include "data/bar_tables.h"
#include "data/diameters.h"

namespace rbt::planning {
namespace {

constexpr double kMilligramsPerKilogram = 1e6;
constexpr double kMmPerMetre = 1000.0;
constexpr Milligrams kUnitWithoutDiameter = 1000;

}  // namespace

bool IsPlannedDiameter(int diameter) { return diameter == 0 || DiameterIndex(diameter) >= 0; }

Milligrams UnitMilligrams(int diameter) {
  if (diameter == 0) return kUnitWithoutDiameter;
  return std::llround(UnitWeight(DiameterIndex(diameter)) * kMilligramsPerKilogram / kMmPerMetre);
}

Milligrams TableMilligrams(int diameter, int mm) {
  if (diameter == 0) return kUnitWithoutDiameter * mm;
  return std::llround(BarWeightOf(DiameterIndex(diameter), mm / kMmPerMetre) * kMilligramsPerKilogram);
}

}  // namespace rbt::planning
