// SPDX-License-Identifier: MIT
#include "screens/panels/range_panel.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/action.h"
#include "desktop/key_table.h"
#include "screens/panels/boxes.h"
#include "screens/panels/digit_box.h"

namespace rbt {

void RangePanel::SetBoxes(std::vector<QLineEdit*> boxes, int most_digits) {
  for (QLineEdit* box : boxes) TakeDigitsOnly(*box, most_digits);
  SetBoxes(std::move(boxes));
}

void RangePanel::SetBoxes(std::vector<QLineEdit*> boxes) {
  boxes_ = std::move(boxes);
  for (QLineEdit* box : boxes_) box->installEventFilter(this);
}

void RangePanel::Bind(RangeIntents intents) {
  intents_ = std::move(intents);
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    connect(boxes_[box], &QLineEdit::textChanged, this,
            [this, box] { intents_.type(box, boxes_[box]->text().toStdString()); });
  }
}

void RangePanel::Show(const RangeView& view) {
  for (std::size_t box = 0; box < boxes_.size(); ++box) ShowText(*boxes_[box], view.texts.at(box));
  setEnabled(view.enabled);
}

void RangePanel::FocusBox(std::size_t box) { FocusText(*boxes_.at(box)); }

bool RangePanel::HoldsFocus() const {
  return std::find(boxes_.begin(), boxes_.end(), window()->focusWidget()) != boxes_.end();
}

bool RangePanel::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::FocusOut && intents_.leave) {
    // Where the focus goes shows once the move is over; within the boxes, and to another window, is no leave.
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (!HoldsFocus()) RunAction(*this, intents_.leave);
        },
        Qt::QueuedConnection);
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto at = std::find(boxes_.begin(), boxes_.end(), receiver);
  if (at == boxes_.end()) return false;
  const auto box = static_cast<std::size_t>(at - boxes_.begin());
  const auto& press = static_cast<const QKeyEvent&>(*event);
  if (IsPress(press, Qt::Key_Return) || IsPress(press, Qt::Key_Enter)) {
    if (!IsRepeat(press)) RunAction(*this, [this, box] { intents_.enter(box); });
    return true;
  }
  if (!IsPress(press, Qt::Key_Up)) return false;
  if (box > 0) FocusBox(box - 1);
  return true;
}

}  // namespace rbt
