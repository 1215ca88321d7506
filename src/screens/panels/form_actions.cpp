// SPDX-License-Identifier: MIT
#include "screens/panels/form_actions.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPushButton>

#include "desktop/action.h"
#include "desktop/key_table.h"
#include "desktop/texts.h"

namespace rbt {

FormActions::FormActions(QWidget& form, std::vector<FormAction> actions, KeysAct keys_act)
    : QObject(&form), form_(form), actions_(std::move(actions)), keys_act_(keys_act) {
  for (const FormAction& action : actions_) {
    if (action.control.empty()) continue;
    const auto* button = form_.findChild<QPushButton*>(Text(action.control));
    if (button == nullptr) continue;
    connect(button, &QPushButton::clicked, this, [this, &action] { RunAction(form_, action.call); });
  }
  new KeyPreview(form_, [this](const QKeyEvent& press) { return Answer(press); });
}

bool FormActions::CanBePressed(const FormAction& action) const {
  if (action.control.empty()) return true;
  const auto* button = form_.findChild<QAbstractButton*>(Text(action.control));
  return button->isVisibleTo(&form_) && button->isEnabled();
}

bool FormActions::Answer(const QKeyEvent& press) const {
  bool ours = false;
  for (const FormAction& action : actions_) {
    if (action.key == 0 || !IsPress(press, action.key)) continue;
    ours = true;
    if (keys_act_ != KeysAct::always && !CanBePressed(action)) continue;
    if (!IsRepeat(press)) action.call();
    break;
  }
  return ours;
}

}  // namespace rbt
