// SPDX-License-Identifier: MIT
#include "desktop/key_table.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "desktop/action.h"

namespace rbt {

bool IsPress(const QKeyEvent& event, int key) {
  constexpr Qt::KeyboardModifiers kCommandModifiers =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (event.key() != key || (event.modifiers() & kCommandModifiers)) return false;
  const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
  return !(digit && (event.modifiers() & Qt::KeypadModifier));
}

bool IsRepeat(const QKeyEvent& event) { return event.isAutoRepeat(); }

KeyPreview::KeyPreview(QWidget& form, Answer answer)
    : QObject(&form), form_(form), answer_(std::move(answer)) {
  qApp->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
  if (static_cast<QWidget*>(receiver)->window() != &form_) return false;
  const auto& press = static_cast<const QKeyEvent&>(*event);
  bool answered = false;
  const bool finished = RunAction(form_, [&] { answered = answer_(press); });
  if (!answered && finished) return false;
  event->accept();
  return true;
}

}  // namespace rbt
