// SPDX-License-Identifier: MIT
#include "screens/panels/range_panel.h"

#include <algorithm>
#include <string>

#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/action.h"
#include "desktop/key_table.h"
#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "screens/panels/digit_box.h"

namespace rbt {

void RangePanel::OnTaken(std::function<void()> handler) { taken_ = std::move(handler); }

void RangePanel::SetBoxes(std::vector<QLineEdit*> boxes, int most_digits) {
  boxes_ = std::move(boxes);
  for (QLineEdit* box : boxes_) {
    TakeDigitsOnly(*box, most_digits);
    box->installEventFilter(this);
  }
}

void RangePanel::SetNumber(std::size_t box, std::int32_t number) {
  boxes_.at(box)->setText(QString::number(number));
}

std::int32_t RangePanel::Number(std::size_t box) const {
  return ToInt32(LeadingNumber(boxes_.at(box)->text().toStdString()),
                 boxes_.at(box)->objectName().toStdString());
}

bool RangePanel::FocusBox(std::size_t box) {
  QLineEdit* next = boxes_.at(box);
  if (next->isHidden()) return false;
  next->setFocus(Qt::TabFocusReason);
  next->selectAll();
  return true;
}

bool RangePanel::Passes(std::size_t box) {
  const std::optional<RangeRefusal> refusal = Refusal(box);
  if (!refusal) return true;
  const std::string own_title = window()->windowTitle().toStdString();
  MsgBox(refusal->text, refusal->title.empty() ? own_title : refusal->title);
  if (refusal->back_to) SetNumber(refusal->box, *refusal->back_to);
  FocusBox(refusal->box);
  return false;
}

void RangePanel::TakeRange() {
  if (boxes_.empty() || boxes_.front()->isHidden()) return;
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    if (!Passes(box)) return;
  }
  WriteSelection();
  if (taken_) taken_();
}

void RangePanel::Enter(std::size_t box) {
  if (box + 1 == boxes_.size()) {
    TakeRange();
  } else if (Passes(box)) {
    FocusBox(box + 1);
  }
}

bool RangePanel::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto at = std::find(boxes_.begin(), boxes_.end(), receiver);
  if (at == boxes_.end()) return false;
  const auto box = static_cast<std::size_t>(at - boxes_.begin());
  const auto& press = static_cast<const QKeyEvent&>(*event);
  if (IsPress(press, Qt::Key_Return) || IsPress(press, Qt::Key_Enter)) {
    if (!IsRepeat(press)) RunAction(*this, [this, box] { Enter(box); });
    return true;
  }
  if (!IsPress(press, Qt::Key_Up)) return false;
  if (box > 0) FocusBox(box - 1);
  return true;
}

}  // namespace rbt
