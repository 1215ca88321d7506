// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "data/materials.h"
#include "platform/numbers/currency.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

/// Weight of the spiral reinforcement of one material and diameter.
struct SpiralRow {
  std::optional<std::int32_t> material;       ///< 材質: 1 deformed, 2 Ulbon, 3 high strength
  std::optional<std::int32_t> diameter_code;  ///< 径
  Currency weight;                            ///< 重量, kilograms; null is 0

  bool IsOf(MaterialKind code) const { return material == static_cast<std::int32_t>(code); }
};

/// Sets the spiral fields of the table: the selection's materials in whole kilograms each, their total, and
/// Ulbon by diameter unrounded. All are 0 when the tally shows hoops or anchor plates only. Faults:
/// `subscript out of range` for an Ulbon spiral of no Ulbon diameter.
void FoldSpirals(TallyTable& table, std::span<const SpiralRow> rows, const SelectionData& selection);

/// True when hoops or anchor plates alone are tallied: then no spiral belongs to the tally.
bool LeavesSpiralsOut(const SelectionData& selection);

}  // namespace rbt
