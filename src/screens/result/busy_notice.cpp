// SPDX-License-Identifier: MIT
#include "screens/result/busy_notice.h"

#include <initializer_list>

#include <QPushButton>

#include "platform/system/process.h"
#include "ui_result_form.h"

namespace rbt {

BusyNotice::BusyNotice(Ui::ResultForm& ui, QWidget& form, QWidget* range)
    : ui_(ui), focus_(form.focusWidget()) {
  for (QWidget* button :
       std::initializer_list<QWidget*>{ui.Command1, ui.Command2, ui.Command3, ui.cmdHoop, ui.cmdTei}) {
    if (button->isHidden()) continue;
    button->hide();
    hidden_.push_back(button);
  }
  for (QWidget* control :
       std::initializer_list<QWidget*>{ui.cmdPrint, ui.cmdurubon, ui.cmdMeisai, ui.cmdPGChange, ui.cmdExit,
                                       ui.cmdPrint2, ui.Command6, range}) {
    if (control == nullptr || !control->isEnabled()) continue;
    control->setEnabled(false);
    disabled_.push_back(control);
  }
  ui.SSPanel4->show();
  RunPendingEvents();
}

BusyNotice::~BusyNotice() {
  for (QWidget* button : hidden_) button->show();
  for (QWidget* control : disabled_) control->setEnabled(true);
  ui_.SSPanel4->hide();
  if (focus_ != nullptr && focus_->isVisible()) focus_->setFocus();
}

}  // namespace rbt
