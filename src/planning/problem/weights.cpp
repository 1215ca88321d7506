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
constexpr Milligrams kFourFigures = 1000;

/// Halves to the even figure. In whole numbers, because near halves a product of doubles falls to either
/// side.
Milligrams ToThreeFigures(Milligrams weight) {
  Milligrams figure = 1;
  while (weight / figure >= kFourFigures) figure *= 10;
  const Milligrams figures = weight / figure;
  const Milligrams twice_rest = weight % figure * 2;
  const bool up = twice_rest > figure || (twice_rest == figure && figures % 2 == 1);
  return (figures + (up ? 1 : 0)) * figure;
}

}  // namespace

bool IsPlannedDiameter(int diameter) { return diameter == 0 || DiameterIndex(diameter) >= 0; }

Milligrams UnitMilligrams(int diameter) {
  if (diameter == 0) return kUnitWithoutDiameter;
  return std::llround(UnitWeight(DiameterIndex(diameter)) * kMilligramsPerKilogram / kMmPerMetre);
}

Milligrams TableMilligrams(int diameter, int mm) {
  if (diameter == 0) return kUnitWithoutDiameter * mm;
  return ToThreeFigures(UnitMilligrams(diameter) * mm);
}

}  // namespace rbt::planning
