// SPDX-License-Identifier: MIT
#include "screens/panels/date_boxes.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/message_box.h"
#include "platform/system/message.h"
#include "screens/panels/boxes.h"
#include "screens/panels/digit_box.h"
#include "ui_date_boxes.h"

namespace rbt {

namespace {

constexpr std::array<int, DateEntry::kBoxes> kMostDigitsOfBox{4, 2, 2};

}  // namespace

DateBoxes::DateBoxes(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::DateBoxes>()), boxes_{} {
  ui_->setupUi(this);
  boxes_ = {ui_->txtYear, ui_->txtMonth, ui_->txtDay};
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    TakeDigitsOnly(*boxes_[box], kMostDigitsOfBox[box]);
    boxes_[box]->installEventFilter(this);
  }
}

DateBoxes::~DateBoxes() = default;

void DateBoxes::Bind(DateEntry& date) {
  date_ = &date;
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    connect(boxes_[box], &QLineEdit::textChanged, this,
            [this, box] { date_->Type(box, boxes_[box]->text().toStdString()); });
  }
}

void DateBoxes::Show(const DateTexts& texts, bool enabled) {
  const std::array<const std::string*, DateEntry::kBoxes> shown{&texts.year, &texts.month, &texts.day};
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    ShowText(*boxes_[box], *shown[box]);
    boxes_[box]->setEnabled(enabled);
  }
}

void DateBoxes::FocusBox(std::size_t box) { FocusText(*boxes_.at(box)); }

std::size_t DateBoxes::FocusedBox() const {
  const auto at = std::find(boxes_.begin(), boxes_.end(), window()->focusWidget());
  return static_cast<std::size_t>(at - boxes_.begin());
}

bool DateBoxes::Accepts(std::size_t boxes) {
  const std::optional<DateRefusal> refusal = date_->Refusal(boxes);
  if (!refusal) return true;
  MsgBox(refusal->text, window()->windowTitle().toStdString());
  FocusBox(refusal->box);
  return false;
}

/// The mouse can leave the boxes too. A click is let come to its end first: it may put the boxes away.
void DateBoxes::CheckAfterLeaving() {
  constexpr std::chrono::milliseconds kClick{20};
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    QTimer::singleShot(kClick, this, &DateBoxes::CheckAfterLeaving);
    return;
  }
  if (!ui_->txtYear->isEnabled() || MessageBoxOpen()) return;
  // What lies to the left of the focus was passed by on the way there.
  RunAction(*this, [this] { Accepts(FocusedBox()); });
}

/// Back to the left a box is left as it stands: what is wrong in it may have to be mended there.
bool DateBoxes::Move(std::size_t from, int step) {
  if (!Accepts(step > 0 ? from + 1 : from)) return true;
  const int to = static_cast<int>(from) + step;
  if (to < 0 || to >= static_cast<int>(boxes_.size())) return false;
  FocusText(*boxes_[static_cast<std::size_t>(to)]);
  return true;
}

bool DateBoxes::AnswerKey(std::size_t box, int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!Move(box, 1)) MoveFocusOn(*boxes_[box]);
      return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
      Move(box, 1);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
      Move(box, -1);
      return true;
    default:
      return false;
  }
}

bool DateBoxes::eventFilter(QObject* receiver, QEvent* event) {
  if (date_ == nullptr) return false;
  if (event->type() == QEvent::FocusOut) {
    QMetaObject::invokeMethod(this, &DateBoxes::CheckAfterLeaving, Qt::QueuedConnection);
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto at = std::find(boxes_.begin(), boxes_.end(), receiver);
  if (at == boxes_.end()) return false;
  const auto box = static_cast<std::size_t>(at - boxes_.begin());
  bool answered = true;  // a fault answers too
  RunAction(*this, [&] { answered = AnswerKey(box, static_cast<QKeyEvent*>(event)->key()); });
  return answered;
}

}  // namespace rbt
