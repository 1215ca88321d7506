// SPDX-License-Identifier: MIT
#include "screens/panels/boxes.h"

#include "desktop/texts.h"

namespace rbt {

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
