// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace rbt::test {

/// Sends a press and a release to the control of the form that has the focus; true when the press was taken.
inline bool Press(QWidget& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  bool repeat = false) {
  const auto receiver = [&form] { return form.focusWidget() != nullptr ? form.focusWidget() : &form; };
  QKeyEvent press(QEvent::KeyPress, key, modifiers, QString(), repeat);
  const bool taken = QApplication::sendEvent(receiver(), &press) && press.isAccepted();
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, QString(), repeat);
  QApplication::sendEvent(receiver(), &release);
  return taken;
}

/// Runs what is due now: activations, deletions, repaints.
inline void Settle() {
  for (int i = 0; i < 5; ++i) {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

}  // namespace rbt::test
