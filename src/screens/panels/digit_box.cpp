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

QString NumberOf(const QString& text) {
  QString number;
  for (const QChar character : text) {
    // Full-width signs stand as far from theirs as full-width digits do.
    constexpr char16_t kToHalfWidth = u'！' - u'!';
    const bool full_width = character.unicode() >= u'！' && character.unicode() <= u'～';
    const QChar half_width = full_width ? QChar(character.unicode() - kToHalfWidth) : character;
    if (character.digitValue() >= 0) {
      number += QChar('0' + character.digitValue());
    } else if ((half_width == u'-' || half_width == u'.') && !number.contains(half_width)) {
      number += half_width;
    }
  }
  return number;
}

/// A box that keeps what `kept` leaves of its text, the cursor staying where it is in it.
void TakeOnly(QLineEdit& box, QString (*kept)(const QString& text), int most) {
  box.setAlignment(Qt::AlignRight);
  QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, kept, most](const QString& text) {
    const QString wanted = kept(text).left(most);
    if (wanted == text) return;
    const int before_cursor = static_cast<int>(kept(text.left(box.cursorPosition())).size());
    box.setText(wanted);
    box.setCursorPosition(before_cursor);
  });
}

}  // namespace

void TakeDigitsOnly(QLineEdit& box, int most_digits) { TakeOnly(box, DigitsOf, most_digits); }

void TakeNumberOnly(QLineEdit& box, int most_characters) { TakeOnly(box, NumberOf, most_characters); }

}  // namespace rbt
