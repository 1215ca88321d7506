// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;

namespace rbt {

/// A text box that takes the digits 0 to 9 only, typed and pasted alike: full-width digits become half-width,
/// everything else is dropped.
void TakeDigitsOnly(QLineEdit& box, int most_digits);
/// The same with one minus and one point among the digits.
void TakeNumberOnly(QLineEdit& box, int most_characters);

}  // namespace rbt
