// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace rbt {

/// Gives a form its first size and place, before it is shown: those that the user left it with, else as large
/// as it is designed, in the middle of the screen. Either way it lies within the screen's work area, its
/// window frame included. Where the user leaves it is kept under its object name; a form without a name, and
/// a settings file that cannot be written, keep nothing.
void PlaceForm(QWidget& form);

}  // namespace rbt
