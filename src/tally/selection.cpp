// SPDX-License-Identifier: MIT
#include "tally/selection.h"

namespace rbt {

SelectionData Selection;

void ResetMeaninglessModes(SelectionData& selection) {
  const std::int32_t kinds = selection.MaterialKindMask;
  if (kinds == selection.PrevMaterialKindMask) return;
  // High-strength and slit bars have no anchor plates; threaded and slit bars are not bent to welded hoops.
  const bool no_plates = kinds == 4 || kinds == 8 || kinds == 12;
  const bool no_hoops = kinds == 2 || kinds == 8 || kinds == 10;
  if (no_plates && selection.AnchorPlateMode == 2) selection.AnchorPlateMode = 0;
  if (no_hoops && selection.HoopMode == 2) selection.HoopMode = 0;
}

}  // namespace rbt
