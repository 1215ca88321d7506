// SPDX-License-Identifier: MIT
#include "desktop/pending_events.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

namespace rbt {

namespace {

constexpr std::array kInput = {
    QEvent::KeyPress,    QEvent::KeyRelease,       QEvent::ShortcutOverride,   QEvent::Shortcut,
    QEvent::InputMethod, QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
    QEvent::Wheel,       QEvent::TouchBegin,       QEvent::TouchUpdate,        QEvent::TouchEnd,
    QEvent::TabletPress, QEvent::TabletRelease,    QEvent::ContextMenu,        QEvent::Close,
};

class InputDropper : public QObject {
 public:
  InputDropper() { QCoreApplication::instance()->installEventFilter(this); }
  InputDropper(const InputDropper&) = delete;
  InputDropper& operator=(const InputDropper&) = delete;
  ~InputDropper() override { QCoreApplication::instance()->removeEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (!IsInput(*event)) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

bool IsInput(const QEvent& event) {
  return std::find(kInput.begin(), kInput.end(), event.type()) != kInput.end();
}

void ProcessEventsWithoutInput() {
  const InputDropper dropper;
  QCoreApplication::processEvents();
}

}  // namespace rbt
