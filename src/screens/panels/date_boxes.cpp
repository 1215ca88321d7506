// SPDX-License-Identifier: MIT
#include "screens/panels/date_boxes.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLineEdit>

#include "platform/numbers/number_words.h"
#include "platform/system/clock.h"
#include "screens/panels/digit_box.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr int kEraYear = 2;
constexpr double kFirstYearRefused = 32.0;

/// Read each time: the settings form may have saved another one.
int DateStyle() { return ReadSetting(kDateStyleKey); }

}  // namespace

bool YearPasses(const std::string& year, int date_style) {
  return date_style != kEraYear || LeadingNumber(year) < kFirstYearRefused;
}

DateBoxes::DateBoxes(QLineEdit& year, QLineEdit& month, QLineEdit& day)
    : QObject(&year), boxes_{&year, &month, &day} {
  TakeDigitsOnly(year, 4);
  TakeDigitsOnly(month, 2);
  TakeDigitsOnly(day, 2);
  for (QLineEdit* box : boxes_) box->installEventFilter(this);
}

void DateBoxes::FillEmpty() {
  filled_style_ = DateStyle();
  const DateTexts today = DefaultDateTexts(Now());
  const std::array<const std::string*, 3> texts{&today.year, &today.month, &today.day};
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    if (boxes_[i]->text().isEmpty()) boxes_[i]->setText(QString::fromStdString(*texts[i]));
  }
}

void DateBoxes::FillToday() {
  for (QLineEdit* box : boxes_) box->clear();
  FillEmpty();
}

void DateBoxes::SetEnabled(bool enabled) {
  for (QLineEdit* box : boxes_) box->setEnabled(enabled);
}

void DateBoxes::FollowStyle() {
  if (DateStyle() != filled_style_) boxes_[0]->clear();
  FillEmpty();
}

DateTexts DateBoxes::Texts() const {
  return {boxes_[0]->text().toStdString(), boxes_[1]->text().toStdString(), boxes_[2]->text().toStdString()};
}

bool DateBoxes::CheckYear() {
  if (YearPasses(boxes_[0]->text().toStdString(), DateStyle())) return true;
  boxes_[0]->setFocus();
  boxes_[0]->selectAll();
  return false;
}

bool DateBoxes::Move(int from, int step) {
  if (!CheckYear()) return true;
  const int to = from + step;
  if (to < 0 || to >= static_cast<int>(boxes_.size())) return false;
  QLineEdit* box = boxes_[static_cast<std::size_t>(to)];
  box->setFocus(Qt::TabFocusReason);
  box->selectAll();
  return true;
}

bool DateBoxes::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::FocusOut && receiver == boxes_[0]) {
    // The mouse can leave the box too; the focus comes back once the move is over.
    QMetaObject::invokeMethod(
        this, [this] { CheckYear(); }, Qt::QueuedConnection);
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto box = std::find(boxes_.begin(), boxes_.end(), receiver);
  if (box == boxes_.end()) return false;
  const int from = static_cast<int>(box - boxes_.begin());
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!Move(from, 1)) static_cast<QLineEdit*>(receiver)->nextInFocusChain()->setFocus(Qt::TabFocusReason);
      return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
      Move(from, 1);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
      Move(from, -1);
      return true;
    default:
      return false;
  }
}

}  // namespace rbt
