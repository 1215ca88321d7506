// SPDX-License-Identifier: MIT
#include "session/result/result_screen.h"

#include "shell/context/run_state.h"
#include "tally/selection.h"

namespace rbt {

void SetSelectionDefaults() {
  Selection.MaterialKindMask = kAllKinds;
  Selection.MaterialFormMask = kAllForms;
  Selection.PrevMaterialKindMask = kAllKinds;
  Selection.IncludeUlbon = true;
  if (RunState.AccumulateFlag == 0) Selection.MaterialCalcChoice = CalcChoice::high_strength_with_others;
  Selection.HoopMode = ShapeFilter::with_others;
  Selection.AnchorPlateMode = ShapeFilter::with_others;
}

bool ShowsWholePicture(const SelectionData& selection) {
  const FormMask forms = selection.MaterialFormMask;
  return selection.MaterialKindMask.IsAll() && (forms.IsNone() || forms.IsAll()) &&
         selection.AnchorPlateMode == ShapeFilter::with_others &&
         selection.HoopMode == ShapeFilter::with_others;
}

}  // namespace rbt
