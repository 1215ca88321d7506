// SPDX-License-Identifier: MIT
#include "desktop/form.h"

#include <cstdlib>
#include <limits>

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "desktop/form_place.h"
#include "desktop/wait_sign.h"

namespace rbt {

namespace {

QRect PlaceIn(const QWidget& form, const QWidget& control) {
  return {control.mapTo(&form, QPoint(0, 0)), control.size()};
}

/// How far `to` lies from `from` in the direction of the arrow, a side step counting more than a step ahead;
/// the largest number when it does not lie there.
int ArrowDistance(const QRect& from, const QRect& to, int arrow_key) {
  constexpr int kSideStep = 4;
  int ahead = 0;
  switch (arrow_key) {
    case Qt::Key_Up:
      ahead = from.top() - to.bottom();
      break;
    case Qt::Key_Down:
      ahead = to.top() - from.bottom();
      break;
    case Qt::Key_Left:
      ahead = from.left() - to.right();
      break;
    case Qt::Key_Right:
      ahead = to.left() - from.right();
      break;
    default:
      break;
  }
  if (ahead <= 0) return std::numeric_limits<int>::max();
  const bool vertical = arrow_key == Qt::Key_Up || arrow_key == Qt::Key_Down;
  const QPoint apart = to.center() - from.center();
  return ahead + kSideStep * std::abs(vertical ? apart.x() : apart.y());
}

class ButtonArrows : public QObject {
 public:
  explicit ButtonArrows(QWidget& form) : QObject(&form), form_(form) {}

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    constexpr Qt::KeyboardModifiers kOthers = ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    switch (press.key()) {
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_Left:
      case Qt::Key_Right:
        if (press.modifiers() & kOthers) return false;
        MoveFocusByArrow(form_, press.key());
        return true;  // at the edge the focus stays
      default:
        return false;
    }
  }

 private:
  QWidget& form_;
};

/// Enter in a check box or an option: the next control, so that a form is filled in with Space and Enter.
class EnterMovesOn : public QObject {
 public:
  explicit EnterMovesOn(QObject& form) : QObject(&form) {}

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    if (press.key() != Qt::Key_Return && press.key() != Qt::Key_Enter) return false;
    // Held down it would run through to a button and press that.
    if (!press.isAutoRepeat()) MoveFocusOn(*static_cast<QWidget*>(receiver));
    return true;
  }
};

/// Tab comes to the chosen option of a group, not to its first one.
void LeadTabToTheChosen(QRadioButton& option) {
  QObject::connect(&option, &QRadioButton::toggled, &option, [&option] {
    if (option.group() == nullptr) return;
    for (QAbstractButton* each : option.group()->buttons()) {
      each->setFocusPolicy(each->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
  });
}

/// Ends the loop when the watched form goes out of sight.
class HideWatcher : public QObject {
 public:
  HideWatcher(QWidget& form, QEventLoop& loop) : loop_(loop) { form.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide && !event->spontaneous()) loop_.quit();
    return false;
  }

 private:
  QEventLoop& loop_;
};

}  // namespace

void PrepareForm(QWidget& form) {
  auto* arrows = new ButtonArrows(form);
  for (QPushButton* button : form.findChildren<QPushButton*>()) {
    button->setAutoDefault(true);
    button->installEventFilter(arrows);
  }
  auto* enter = new EnterMovesOn(form);
  for (QCheckBox* box : form.findChildren<QCheckBox*>()) box->installEventFilter(enter);
  for (QRadioButton* option : form.findChildren<QRadioButton*>()) {
    option->installEventFilter(enter);
    LeadTabToTheChosen(*option);
  }
}

void Center_Form(QWidget& form) {
  form.ensurePolished();
  const QRect screen = form.screen()->availableGeometry();
  form.move(screen.left() + (screen.width() - form.width()) / 2,
            screen.top() + (screen.height() - form.height()) / 2);
}

void ShowModally(QWidget& form) {
  QEventLoop loop;
  const HideWatcher watcher(form, loop);
  const QPointer<QWidget> below = QApplication::activeWindow();
  form.setWindowModality(Qt::ApplicationModal);
  PlaceForm(form);  // before there is a window: its frame is placed with it
  form.winId();     // makes the window that stays above the one below, wherever the user clicks
  if (below) form.windowHandle()->setTransientParent(below->windowHandle());
  const WorkAtRest rest;
  form.show();
  form.activateWindow();
  if (form.isVisible()) loop.exec();
  if (below) below->activateWindow();
}

void ShowInPlace(QWidget& form) {
  const QPointer<QWidget> before = QApplication::activeWindow();
  // Once the form is up, so that the focus does not go to another window in between.
  QTimer::singleShot(0, &form, [before] {
    if (before) before->hide();
  });
  ShowModally(form);
  if (!before) return;
  before->show();
  before->activateWindow();
}

bool MoveFocusByArrow(QWidget& form, int arrow_key) {
  const auto* from = qobject_cast<QPushButton*>(QApplication::focusWidget());
  if (from == nullptr || !form.isAncestorOf(from)) return false;
  const QRect place = PlaceIn(form, *from);
  QAbstractButton* nearest = nullptr;
  int shortest = std::numeric_limits<int>::max();
  for (QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || !button->isEnabled() || !(button->focusPolicy() & Qt::TabFocus)) continue;
    const int distance = ArrowDistance(place, PlaceIn(form, *button), arrow_key);
    if (distance >= shortest) continue;
    shortest = distance;
    nearest = button;
  }
  if (nearest == nullptr) return false;
  nearest->setFocus(Qt::TabFocusReason);
  return true;
}

void MoveFocusOn(QWidget& control) {
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QApplication::sendEvent(&control, &tab);
}

}  // namespace rbt
