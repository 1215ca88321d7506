// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace rbt {

/// Gives a form what all forms share: Enter presses the button that has the focus and moves on from a check
/// box or an option, Tab comes to the chosen option of a group, the arrow keys move the focus from button to
/// button as the eye goes. Once, after `setupUi` and before the controls are filled.
void PrepareForm(QWidget& form);

/// Puts a form in the middle of its screen, whole pixels towards the upper left.
void Center_Form(QWidget& form);

/// Shows a form over all others, where `PlaceForm` puts it, and returns when it is hidden or closed; the
/// window below is active again then.
void ShowModally(QWidget& form);

/// The same in place of the active window, which is out of sight meanwhile and active again then.
void ShowInPlace(QWidget& form);

/// Moves the focus from the focused button to the nearest visible, enabled button, check box or option of the
/// form that lies in the direction of the arrow key; false when there is none.
bool MoveFocusByArrow(QWidget& form, int arrow_key);

/// Moves the focus on from the control that has it, as Tab does.
void MoveFocusOn(QWidget& control);

}  // namespace rbt
