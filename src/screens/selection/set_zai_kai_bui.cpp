// SPDX-License-Identifier: MIT
#include "screens/selection/set_zai_kai_bui.h"

#include <QCloseEvent>

#include "desktop/action.h"
#include "ui_set_zai_kai_bui.h"

namespace rbt {

namespace {

std::array<QCheckBox*, 4> SetUp(Ui::setZaiKaiBui& ui, QWidget& dialog) {
  ui.setupUi(&dialog);
  // The dialog keeps its size while the kinds are out of sight.
  QSizePolicy room = ui.Frame1->sizePolicy();
  room.setRetainSizeWhenHidden(true);
  ui.Frame1->setSizePolicy(room);
  return {ui.Check1_0, ui.Check1_1, ui.Check1_2, ui.Check1_3};
}

}  // namespace

setZaiKaiBui::setZaiKaiBui()
    : ui_(std::make_unique<Ui::setZaiKaiBui>()),
      kinds_(*this, SetUp(*ui_, *this), choice_, [this] { Show(); }) {
  Show();
  (ui_->Option1_0->isChecked() ? ui_->Option1_0 : ui_->Option1_1)->setFocus();
  for (QRadioButton* option : {ui_->Option1_0, ui_->Option1_1}) {
    connect(option, &QRadioButton::clicked, this, [this] {
      RunAction(*this, [this] {
        choice_.ChooseUlbonAlone(ui_->Option1_0->isChecked());
        Show();
      });
    });
  }
}

setZaiKaiBui::~setZaiKaiBui() = default;

void setZaiKaiBui::Show() {
  const ChoiceView view = choice_.View();
  (view.ulbon ? ui_->Option1_0 : ui_->Option1_1)->setChecked(true);
  ui_->Frame1->setVisible(view.ticks_shown);
  kinds_.Show(view);
}

void setZaiKaiBui::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace rbt
