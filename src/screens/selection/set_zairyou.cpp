// SPDX-License-Identifier: MIT
#include "screens/selection/set_zairyou.h"

#include "tally/material_choice.h"
#include "ui_set_zairyou.h"

namespace rbt {

namespace {

TickBoxes SetUp(Ui::setZairyou& ui, QWidget& dialog) {
  ui.setupUi(&dialog);
  return TickBoxes({ui.Chk_0, ui.Chk_1, ui.Chk_2, ui.Chk_3});
}

}  // namespace

setZairyou::setZairyou() : ui_(std::make_unique<Ui::setZairyou>()), forms_(SetUp(*ui_, *this)) {
  ConnectSelectionDialog(*this, *ui_->Command1, [this] { Command1_Click(); });
  forms_.Show(Selection.MaterialFormMask.AsTicks());
  ui_->Chk_0->setFocus();
}

setZairyou::~setZairyou() = default;

void setZairyou::Command1_Click() {
  if (TakeForms(Selection, FormMask::OfTicks(forms_.Ticks()))) {
    hide();
  } else {
    forms_.SayNothingTicked(kNoFormMessage);
    forms_.Show(kAllForms.AsTicks());
  }
}

}  // namespace rbt
