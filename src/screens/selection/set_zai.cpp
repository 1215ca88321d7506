// SPDX-License-Identifier: MIT
#include "screens/selection/set_zai.h"

#include <QCloseEvent>

#include "tally/material_choice.h"
#include "ui_set_zai.h"

namespace rbt {

namespace {

TickBoxes SetUp(Ui::setZai& ui, QWidget& dialog) {
  ui.setupUi(&dialog);
  return TickBoxes({ui.Check1_0, ui.Check1_1, ui.Check1_2, ui.Check1_3});
}

}  // namespace

setZai::setZai() : ui_(std::make_unique<Ui::setZai>()), kinds_(SetUp(*ui_, *this)) {
  ConnectSelectionDialog(*this, *ui_->Command1, [this] { Command1_Click(); });
  Selection.PrevMaterialKindMask = Selection.MaterialKindMask;
  kinds_.Show(Selection.MaterialKindMask.AsTicks());
  ui_->ChkU->setChecked(Selection.IncludeUlbon);
  ui_->Check1_0->setFocus();
}

setZai::~setZai() = default;

void setZai::Command1_Click() {
  if (TakeKinds(Selection, KindMask::OfTicks(kinds_.Ticks()), ui_->ChkU->isChecked())) {
    hide();
  } else {
    kinds_.SayNothingTicked(kNoKindMessage);
  }
}

void setZai::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace rbt
