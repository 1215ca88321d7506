// SPDX-License-Identifier: MIT
#include "screens/panels/digit_box.h"

#include <QLineEdit>

namespace rbt {

namespace {

QString DigitsOf(const QString& text) {
  QString digits;
  for (const QChar character : text) {
    if (character.digitValue() >= 0) digits += QChar('0' + character.digitValue());
  }
  return digits;
}

}  // namespace

void TakeDigitsOnly(QLineEdit& box, int most_digits) {
  box.setAlignment(Qt::AlignRight);
  QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, most_digits](const QString& text) {
    const QString digits = DigitsOf(text).left(most_digits);
    if (digits == text) return;
    const int kept = static_cast<int>(DigitsOf(text.left(box.cursorPosition())).size());
    box.setText(digits);
    box.setCursorPosition(kept);
  });
}

}  // namespace rbt
