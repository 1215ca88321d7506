// SPDX-License-Identifier: MIT
#include "screens/selection/set_zai_kai_bui.h"

#include <QCloseEvent>

#include "desktop/action.h"
#include "tally/material_choice.h"
#include "ui_set_zai_kai_bui.h"

namespace rbt {

namespace {

TickBoxes SetUp(Ui::setZaiKaiBui& ui, QWidget& dialog) {
  ui.setupUi(&dialog);
  // The dialog keeps its size while the kinds are out of sight.
  QSizePolicy room = ui.Frame1->sizePolicy();
  room.setRetainSizeWhenHidden(true);
  ui.Frame1->setSizePolicy(room);
  return TickBoxes({ui.Check1_0, ui.Check1_1, ui.Check1_2, ui.Check1_3});
}

}  // namespace

setZaiKaiBui::setZaiKaiBui() : ui_(std::make_unique<Ui::setZaiKaiBui>()), kinds_(SetUp(*ui_, *this)) {
  ConnectSelectionDialog(*this, *ui_->Command1, [this] { Command1_Click(); });
  Selection.PrevMaterialKindMask = Selection.MaterialKindMask;
  kinds_.Show(Selection.MaterialKindMask.AsTicks());
  QRadioButton* chosen = Selection.UlbonOnly ? ui_->Option1_0 : ui_->Option1_1;
  chosen->setChecked(true);
  chosen->setFocus();
  Option1_Click();
  for (QRadioButton* option : {ui_->Option1_0, ui_->Option1_1}) {
    connect(option, &QRadioButton::clicked, this, [this] { RunAction(*this, [this] { Option1_Click(); }); });
  }
}

setZaiKaiBui::~setZaiKaiBui() = default;

void setZaiKaiBui::Option1_Click() {
  const bool ulbon = ui_->Option1_0->isChecked();
  if (ulbon) {
    // スリット筋 keeps its tick for the way back.
    for (QCheckBox* box : {ui_->Check1_0, ui_->Check1_1, ui_->Check1_2}) box->setChecked(false);
  }
  ui_->Frame1->setVisible(!ulbon);
}

void setZaiKaiBui::Command1_Click() {
  if (ui_->Option1_0->isChecked()) {
    TakeUlbonAlone(Selection);
    hide();
  } else if (TakeKindsWithoutUlbon(Selection, KindMask::OfTicks(kinds_.Ticks()))) {
    hide();
  } else {
    kinds_.SayNothingTicked(kNoKindMessage);
  }
}

void setZaiKaiBui::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace rbt
