// SPDX-License-Identifier: MIT
#include "tally/spirals.h"

#include "data/diameters.h"

namespace rbt {
namespace {

enum Spiral : int { kDeformed = 0, kUlbon = 1, kHighStrength = 2 };

void AddSpiral(TallyTable& table, const SpiralRow& row, const SelectionData& selection) {
  if (row.IsOf(MaterialKind::deformed) && selection.MaterialKindMask.Has(MaterialKind::deformed)) {
    table.SpiralWeight[kDeformed] += row.weight;
  } else if (row.IsOf(MaterialKind::ulbon) && selection.IncludeUlbon) {
    table.SpiralWeight[kUlbon] += row.weight;
    table.SpiralUlbonByDia[row.diameter_code ? UlbonIndex(*row.diameter_code) : -1] += row.weight;
  } else if (row.IsOf(MaterialKind::high_strength) &&
             selection.MaterialKindMask.Has(MaterialKind::high_strength)) {
    table.SpiralWeight[kHighStrength] += row.weight;
  }
}

}  // namespace

bool LeavesSpiralsOut(const SelectionData& selection) {
  return selection.HoopMode == ShapeFilter::alone || selection.AnchorPlateMode == ShapeFilter::alone;
}

void FoldSpirals(TallyTable& table, std::span<const SpiralRow> rows, const SelectionData& selection) {
  table.SpiralTotal = Currency();
  table.SpiralWeight.Clear();
  table.SpiralUlbonByDia.Clear();
  table.SpiralKinds = 0;
  if (LeavesSpiralsOut(selection)) return;
  for (const SpiralRow& row : rows) AddSpiral(table, row, selection);
  for (const int spiral : {kDeformed, kUlbon, kHighStrength}) {
    table.SpiralWeight[spiral] = WholeKilograms(table.SpiralWeight[spiral]);
    if (table.SpiralWeight[spiral] > Currency()) {
      table.SpiralKinds |= 1 << spiral;
      table.SpiralTotal += table.SpiralWeight[spiral];
    }
  }
}

}  // namespace rbt
