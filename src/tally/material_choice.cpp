// SPDX-License-Identifier: MIT
#include "tally/material_choice.h"

namespace rbt {

namespace {

bool TakeKindMask(SelectionData& selection, const MaskTicks& kinds) {
  selection.MaterialKindMask = MaskOfTicks(kinds);
  selection.MaterialFormMask = static_cast<std::int16_t>(MaskOfTicks(kAllTicked));
  return selection.MaterialKindMask != 0;
}

}  // namespace

bool TakeKinds(SelectionData& selection, const MaskTicks& kinds, bool include_ulbon) {
  if (!TakeKindMask(selection, kinds)) return false;
  selection.IncludeUlbon = include_ulbon ? 1 : 0;
  return true;
}

bool TakeKindsWithoutUlbon(SelectionData& selection, const MaskTicks& kinds) {
  selection.UlbonOnly = 0;
  return TakeKindMask(selection, kinds);
}

void TakeUlbonAlone(SelectionData& selection) {
  selection.UlbonOnly = 1;
  selection.MaterialKindMask = 0;
}

bool TakeForms(SelectionData& selection, const MaskTicks& forms) {
  selection.MaterialFormMask = static_cast<std::int16_t>(MaskOfTicks(forms));
  return selection.MaterialFormMask != 0;
}

}  // namespace rbt
