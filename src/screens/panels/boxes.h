// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <QLineEdit>
#include <QPushButton>

#include "session/panels/views.h"

namespace rbt {

/// Writes a text into a box; one that it has already leaves cursor and selection where they are.
void ShowText(QLineEdit& box, std::string_view text);
/// Puts the focus on a box and selects it.
void FocusText(QLineEdit& box);
/// Selects a box's text whenever the focus comes to it, by a click too; if asked for, also when it goes.
enum class SelectAt { getting_focus, getting_and_losing_focus };
void SelectAtFocus(QLineEdit& box, SelectAt when = SelectAt::getting_focus);
/// The control's room stays its own while it is out of sight.
void KeepRoomOf(QWidget& control);
void ShowButton(QPushButton& button, const ButtonView& view);

}  // namespace rbt
