// SPDX-License-Identifier: MIT
#include "screens/selection/tick_boxes.h"

#include <QCheckBox>
#include <QPushButton>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "platform/system/message.h"

namespace rbt {

void TickBoxes::Show(const States& ticks) {
  for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->setChecked(ticks[i]);
}

TickBoxes::States TickBoxes::Ticks() const {
  States ticks{};
  for (std::size_t i = 0; i < boxes_.size(); ++i) ticks[i] = boxes_[i]->isChecked();
  return ticks;
}

void TickBoxes::SayNothingTicked(std::string_view message) const {
  MsgBox(message, "未選択");
  boxes_.front()->setFocus(Qt::OtherFocusReason);
}

void ConnectSelectionDialog(QWidget& dialog, QPushButton& command1, const std::function<void()>& take) {
  PrepareForm(dialog);
  QObject::connect(&command1, &QPushButton::clicked, &dialog, [&dialog, take] { RunAction(dialog, take); });
  new KeyPreview(dialog, [&dialog](const QKeyEvent& press) {
    if (!IsPress(press, Qt::Key_Escape)) return false;
    if (!IsRepeat(press)) dialog.close();
    return true;
  });
}

}  // namespace rbt
