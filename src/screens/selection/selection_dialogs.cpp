// SPDX-License-Identifier: MIT
#include "screens/selection/selection_dialogs.h"

#include "desktop/form.h"
#include "screens/selection/set_zai.h"
#include "screens/selection/set_zai_kai_bui.h"
#include "screens/selection/set_zairyou.h"

namespace rbt {

namespace {

template <typename Dialog>
void Choose() {
  Dialog dialog;
  ShowModally(dialog);
}

}  // namespace

void ChooseKinds() { Choose<setZai>(); }
void ChooseForms() { Choose<setZairyou>(); }
void ChooseKindsOfFloorsAndParts() { Choose<setZaiKaiBui>(); }

}  // namespace rbt
