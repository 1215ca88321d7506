// SPDX-License-Identifier: MIT
#include "tally/selection.h"

namespace rbt {

SelectionData Selection;

namespace {

/// These bars have no anchor plates; those are not bent to welded hoops.
constexpr KindMask kKindsWithoutPlates = KindMask::Of({MaterialKind::high_strength, MaterialKind::slit});
constexpr KindMask kKindsWithoutHoops = KindMask::Of({MaterialKind::threaded, MaterialKind::slit});

}  // namespace

void ResetMeaninglessModes(SelectionData& selection) {
  const KindMask kinds = selection.MaterialKindMask;
  if (kinds == selection.PrevMaterialKindMask) return;
  const bool no_plates = kinds.IsWithin(kKindsWithoutPlates);
  const bool no_hoops = kinds.IsWithin(kKindsWithoutHoops);
  if (no_plates && selection.AnchorPlateMode == 2) selection.AnchorPlateMode = 0;
  if (no_hoops && selection.HoopMode == 2) selection.HoopMode = 0;
}

}  // namespace rbt
