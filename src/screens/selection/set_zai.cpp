// SPDX-License-Identifier: MIT
#include "screens/selection/set_zai.h"

#include <QCloseEvent>

#include "ui_set_zai.h"

namespace rbt {

namespace {

std::array<QCheckBox*, 4> SetUp(Ui::setZai& ui, QWidget& dialog) {
  ui.setupUi(&dialog);
  return {ui.Check1_0, ui.Check1_1, ui.Check1_2, ui.Check1_3};
}

}  // namespace

setZai::setZai()
    : ui_(std::make_unique<Ui::setZai>()), kinds_(*this, SetUp(*ui_, *this), choice_, [this] { Show(); }) {
  Show();
  connect(ui_->ChkU, &QCheckBox::toggled, this, [this](bool ticked) { choice_.TickUlbon(ticked); });
  ui_->Check1_0->setFocus();
}

setZai::~setZai() = default;

void setZai::Show() {
  const ChoiceView view = choice_.View();
  ui_->ChkU->setChecked(view.ulbon);
  kinds_.Show(view);
}

void setZai::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace rbt
