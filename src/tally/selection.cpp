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
  const auto take_back = [](ShapeFilter& filter) {
    if (filter == ShapeFilter::alone) filter = ShapeFilter::with_others;
  };
  if (kinds.IsWithin(kKindsWithoutPlates)) take_back(selection.AnchorPlateMode);
  if (kinds.IsWithin(kKindsWithoutHoops)) take_back(selection.HoopMode);
}

}  // namespace rbt
