// SPDX-License-Identifier: MIT
#include "session/result/result_screen.h"

#include "shell/context/run_state.h"
#include "tally/selection.h"

namespace rbt {

namespace {

constexpr int kAll = 15;
constexpr int kHighStrengthBit = 4;

}  // namespace

void SetSelectionDefaults() {
  constexpr std::int16_t kHighStrengthWithOthers = 2;
  Selection.MaterialKindMask = kAll;
  Selection.MaterialFormMask = kAll;
  Selection.PrevMaterialKindMask = kAll;
  Selection.IncludeUlbon = 1;
  if (RunState.AccumulateFlag == 0) Selection.MaterialCalcChoice = kHighStrengthWithOthers;
  Selection.HoopMode = 0;
  Selection.AnchorPlateMode = 0;
}

bool ShowsWholePicture(bool ulbon_view) {
  const bool all_forms = Selection.MaterialFormMask == 0 || Selection.MaterialFormMask == kAll;
  return Selection.MaterialKindMask == kAll && all_forms && Selection.AnchorPlateMode == 0 &&
         Selection.HoopMode == 0 && !ulbon_view;
}

int CalcChoiceOf(int material_kind_mask) {
  if ((material_kind_mask & kHighStrengthBit) == 0) return 0;
  return material_kind_mask == kHighStrengthBit ? 1 : 2;
}

}  // namespace rbt
