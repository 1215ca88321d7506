// SPDX-License-Identifier: MIT
#include "screens/panels/boxes.h"

#include <QEvent>
#include <QTimer>

#include "desktop/texts.h"

namespace rbt {

namespace {

class FocusSelection : public QObject {
 public:
  FocusSelection(QLineEdit& box, SelectAt when) : QObject(&box), box_(box), when_(when) {}

  bool eventFilter(QObject* receiver, QEvent* event) override {
    const bool gets = event->type() == QEvent::FocusIn;
    const bool loses = event->type() == QEvent::FocusOut && when_ == SelectAt::getting_and_losing_focus;
    // A click puts the cursor first, and the box itself clears what is selected when it is left.
    if (gets || loses) QTimer::singleShot(0, &box_, [this] { box_.selectAll(); });
    return QObject::eventFilter(receiver, event);
  }

 private:
  QLineEdit& box_;
  SelectAt when_;
};

}  // namespace

void SelectAtFocus(QLineEdit& box, SelectAt when) { box.installEventFilter(new FocusSelection(box, when)); }

void ShowText(QLineEdit& box, std::string_view text) {
  const QString shown = Text(text);
  if (box.text() != shown) box.setText(shown);
}

void FocusText(QLineEdit& box) {
  box.setFocus(Qt::TabFocusReason);
  box.selectAll();
}

void KeepRoomOf(QWidget& control) {
  QSizePolicy room = control.sizePolicy();
  room.setRetainSizeWhenHidden(true);
  control.setSizePolicy(room);
}

void ShowButton(QPushButton& button, const ButtonView& view) {
  if (!view.caption.empty()) button.setText(Text(view.caption));
  button.setVisible(view.shown);
  button.setEnabled(view.enabled);
}

}  // namespace rbt
