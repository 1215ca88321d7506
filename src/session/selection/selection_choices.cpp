// SPDX-License-Identifier: MIT
#include "session/selection/selection_choices.h"

#include <utility>

#include "platform/system/message.h"
#include "tally/material_choice.h"
#include "tally/selection.h"

namespace rbt {

namespace {

constexpr const char* kNoKind = "材質が選択されていません";
constexpr const char* kNoForm = "材料が選択されていません";
constexpr std::size_t kTakenAwayByUlbon = 3;

/// The kinds as they stand, remembered as those before the choice.
Ticks OpenOnKinds() {
  Selection.PrevMaterialKindMask = Selection.MaterialKindMask;
  return Selection.MaterialKindMask.AsTicks();
}

}  // namespace

ChoiceView SelectionChoice::View() {
  ChoiceView view = view_;
  view_.back_to_first = false;
  return view;
}

void SelectionChoice::Refuse(const char* message) {
  MsgBox(message, "未選択");
  view_.back_to_first = true;
}

KindChoice::KindChoice() : SelectionChoice({.ticks = OpenOnKinds(), .ulbon = Selection.IncludeUlbon}) {}

void KindChoice::Take() {
  if (TakeKinds(Selection, KindMask::OfTicks(Shown().ticks), Shown().ulbon)) return Finish();
  Refuse(kNoKind);
}

FloorPartKindChoice::FloorPartKindChoice() : SelectionChoice({.ticks = OpenOnKinds()}) {
  ChooseUlbonAlone(Selection.UlbonOnly);
}

void FloorPartKindChoice::ChooseUlbonAlone(bool alone) {
  Shown().ulbon = alone;
  Shown().ticks_shown = !alone;
  if (!alone) return;
  for (std::size_t box = 0; box < kTakenAwayByUlbon; ++box) Tick(box, false);
}

void FloorPartKindChoice::Take() {
  if (Shown().ulbon) {
    TakeUlbonAlone(Selection);
    return Finish();
  }
  if (TakeKindsWithoutUlbon(Selection, KindMask::OfTicks(Shown().ticks))) return Finish();
  Refuse(kNoKind);
}

FormChoice::FormChoice() : SelectionChoice({.ticks = Selection.MaterialFormMask.AsTicks()}) {}

void FormChoice::Take() {
  if (TakeForms(Selection, FormMask::OfTicks(Shown().ticks))) return Finish();
  Refuse(kNoForm);
  Shown().ticks = kAllForms.AsTicks();
}

}  // namespace rbt
