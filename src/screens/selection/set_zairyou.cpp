// SPDX-License-Identifier: MIT
#include "screens/selection/set_zairyou.h"

#include "ui_set_zairyou.h"

namespace rbt {

namespace {

std::array<QCheckBox*, 4> SetUp(Ui::setZairyou& ui, QWidget& dialog) {
  ui.setupUi(&dialog);
  return {ui.Chk_0, ui.Chk_1, ui.Chk_2, ui.Chk_3};
}

}  // namespace

setZairyou::setZairyou()
    : ui_(std::make_unique<Ui::setZairyou>()),
      forms_(*this, SetUp(*ui_, *this), choice_, [this] { Show(); }) {
  Show();
  ui_->Chk_0->setFocus();
}

setZairyou::~setZairyou() = default;

void setZairyou::Show() { forms_.Show(choice_.View()); }

}  // namespace rbt
