// SPDX-License-Identifier: MIT
#include "tally/spirals.h"

#include "data/diameters.h"

namespace rbt {
namespace {

bool IsTakenIn(MaterialKind spiral, const SelectionData& selection) {
  return spiral == MaterialKind::ulbon ? selection.IncludeUlbon : selection.MaterialKindMask.Has(spiral);
}

void AddSpiral(TallyTable& table, const SpiralRow& row, const SelectionData& selection) {
  for (std::size_t i = 0; i < kSpiralKinds.size(); ++i) {
    if (!row.IsOf(kSpiralKinds[i]) || !IsTakenIn(kSpiralKinds[i], selection)) continue;
    table.SpiralWeight[static_cast<int>(i)] += row.weight;
    if (kSpiralKinds[i] == MaterialKind::ulbon) {
      table.SpiralUlbonByDia[row.diameter_code ? UlbonIndex(*row.diameter_code) : -1] += row.weight;
    }
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
  table.SpiralKinds = SpiralMask();
  if (LeavesSpiralsOut(selection)) return;
  for (const SpiralRow& row : rows) AddSpiral(table, row, selection);
  SpiralMask::Ticks have_weight{};
  for (std::size_t i = 0; i < kSpiralKinds.size(); ++i) {
    Currency& weight = table.SpiralWeight[static_cast<int>(i)];
    weight = WholeKilograms(weight);
    have_weight[i] = weight > Currency();
    if (have_weight[i]) table.SpiralTotal += weight;
  }
  table.SpiralKinds = SpiralMask::OfTicks(have_weight);
}

}  // namespace rbt
