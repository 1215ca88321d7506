// SPDX-License-Identifier: MIT
#include "screens/panels/form_actions.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>

#include "desktop/action.h"
#include "desktop/key_card.h"
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

bool FormActions::Acts(const FormAction& action) const {
  return keys_act_ == KeysAct::always || CanBePressed(action);
}

void FormActions::ShowKeys() const {
  std::vector<KeyCardRow> rows;
  for (const FormAction& action : actions_) {
    if (action.key == 0 || action.control.empty() || !Acts(action)) continue;
    const auto* button = form_.findChild<QAbstractButton*>(Text(action.control));
    rows.push_back({QKeySequence(action.key).toString(), button->text().simplified(), button->toolTip()});
  }
  ShowKeyCard(form_.windowTitle(), rows);
}

bool FormActions::Answer(const QKeyEvent& press) const {
  if (press.modifiers().testFlag(Qt::ShiftModifier) && IsPress(press, Qt::Key_F1)) {
    if (!IsRepeat(press)) ShowKeys();
    return true;
  }
  bool ours = false;
  for (const FormAction& action : actions_) {
    if (action.key == 0 || !IsPress(press, action.key)) continue;
    ours = true;
    if (!Acts(action)) continue;
    if (!IsRepeat(press)) action.call();
    break;
  }
  return ours;
}

}  // namespace rbt
