// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Lets `MsgBox` show a box over the active window. Enter takes the focused answer (the first), Esc the
/// cautious one: cancel, else no, else ok. Runs of blanks and line breaks stand as they are told.
void InstallMessageBox();

/// True while such a box is shown.
bool MessageBoxOpen();

}  // namespace rbt
