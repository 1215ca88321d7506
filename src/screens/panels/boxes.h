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
/// The control's room stays its own while it is out of sight.
void KeepRoomOf(QWidget& control);
void ShowButton(QPushButton& button, const ButtonView& view);

}  // namespace rbt
