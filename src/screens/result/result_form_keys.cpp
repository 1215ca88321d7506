// SPDX-License-Identifier: MIT
// The buttons and keys of the result form, and what they call.
#include <QAbstractButton>
#include <QKeyEvent>
#include <QPushButton>

#include "desktop/action.h"
#include "desktop/key_table.h"
#include "screens/result/result_form.h"
#include "ui_result_form.h"

namespace rbt {

struct ResultForm::Action {
  const char* button;
  int key;  ///< 0 when it has none
  void (ResultForm::*handler)();
};

const std::vector<ResultForm::Action>& ResultForm::Actions() {
  using F = ResultForm;
  static const std::vector<Action> actions{
      {"cmdPrint", Qt::Key_F1, &F::cmdPrint_Click},
      {"cmdUSum", Qt::Key_F2, &F::cmdUSum_Click},
      {"cmdurubon", Qt::Key_F3, &F::cmdurubon_Click},
      {"cmdPrint2", 0, &F::cmdPrint2_Click},
      {"CmdVReturn", 0, &F::CmdVReturn_Click},
      {"cmdMeisai", Qt::Key_F5, &F::cmdMeisai_Click},
      {"cmdPGChange", Qt::Key_F7, &F::cmdPGChange_Click},
      {"Command6", Qt::Key_F6, &F::Command6_Click},
      {"cmdExit", Qt::Key_Escape, &F::cmdExit_Click},
      {"Command1", 0, &F::Command1_Click},
      {"Command2", 0, &F::Command2_Click},
      {"Command3", 0, &F::Command3_Click},
      {"cmdHoop", 0, &F::cmdHoop_Click},
      {"cmdTei", 0, &F::cmdTei_Click},
      {"btnA4Y", Qt::Key_F1, &F::btnA4Y_Click},
      {"btnA4T", Qt::Key_F3, &F::btnA4T_Click},
      {"btnB5Y", Qt::Key_F5, &F::btnB5Y_Click},
      {"chkPreview", Qt::Key_F8, &F::chkPreview_Press},
      {"btnSettei", Qt::Key_F7, &F::btnSettei_Click},
      {"btnReturn", Qt::Key_Escape, &F::btnReturn_Click},
  };
  return actions;
}

std::vector<int> ResultForm::Keys(const ResultScreen& screen) {
  std::vector<int> keys;
  for (const Action& action : Actions()) {
    if (action.key != 0 && HasControl(screen, action.button)) keys.push_back(action.key);
  }
  return keys;
}

void ResultForm::ConnectControls() {
  for (const Action& action : Actions()) {
    const auto* button = findChild<QPushButton*>(action.button);
    if (button == nullptr) continue;  // a check box turns over by itself
    connect(button, &QPushButton::clicked, this,
            [this, handler = action.handler] { RunAction(*this, [&] { (this->*handler)(); }); });
  }
  connect(ui_->txtPercent, &QLineEdit::returnPressed, this,
          [this] { RunAction(*this, [this] { txtPercent_Enter(); }); });
  new KeyPreview(*this, [this](const QKeyEvent& press) { return AnswerPress(press); });
}

bool ResultForm::AnswerPress(const QKeyEvent& press) {
  bool ours = false;
  for (const Action& action : Actions()) {
    if (action.key == 0 || !IsPress(press, action.key) || !HasControl(screen_, action.button)) continue;
    ours = true;
    const auto* button = findChild<QAbstractButton*>(action.button);
    if (print_panel_->IsOpen() != ui_->SSPanel3->isAncestorOf(button)) continue;
    if (!IsRepeat(press) && button->isVisibleTo(this) && button->isEnabled()) (this->*action.handler)();
    break;
  }
  return ours;
}

}  // namespace rbt
