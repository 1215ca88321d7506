// SPDX-License-Identifier: MIT
#include "session/result/result_screen.h"

#include "shell/context/run_state.h"
#include "tally/selection.h"

namespace rbt {

void SetSelectionDefaults() {
  constexpr std::int16_t kHighStrengthWithOthers = 2;
  Selection.MaterialKindMask = kAllKinds;
  Selection.MaterialFormMask = kAllForms;
  Selection.PrevMaterialKindMask = kAllKinds;
  Selection.IncludeUlbon = 1;
  if (RunState.AccumulateFlag == 0) Selection.MaterialCalcChoice = kHighStrengthWithOthers;
  Selection.HoopMode = 0;
  Selection.AnchorPlateMode = 0;
}

bool ShowsWholePicture(bool ulbon_view) {
  const FormMask forms = Selection.MaterialFormMask;
  const bool all_forms = forms.IsNone() || forms.IsAll();
  return Selection.MaterialKindMask.IsAll() && all_forms && Selection.AnchorPlateMode == 0 &&
         Selection.HoopMode == 0 && !ulbon_view;
}

int CalcChoiceOf(KindMask kinds) {
  if (!kinds.Has(MaterialKind::high_strength)) return 0;
  return kinds.IsOne() ? 1 : 2;
}

}  // namespace rbt
