// SPDX-License-Identifier: MIT
#include "tally/material_choice.h"

namespace rbt {

namespace {

bool TakeKindMask(SelectionData& selection, KindMask kinds) {
  selection.MaterialKindMask = kinds;
  selection.MaterialFormMask = kAllForms;
  return !kinds.IsNone();
}

}  // namespace

bool TakeKinds(SelectionData& selection, KindMask kinds, bool include_ulbon) {
  if (!TakeKindMask(selection, kinds)) return false;
  selection.IncludeUlbon = include_ulbon;
  return true;
}

bool TakeKindsWithoutUlbon(SelectionData& selection, KindMask kinds) {
  selection.UlbonOnly = false;
  return TakeKindMask(selection, kinds);
}

void TakeUlbonAlone(SelectionData& selection) {
  selection.UlbonOnly = true;
  selection.MaterialKindMask = KindMask();
}

bool TakeForms(SelectionData& selection, FormMask forms) {
  selection.MaterialFormMask = forms;
  return !forms.IsNone();
}

}  // namespace rbt
