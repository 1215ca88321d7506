// SPDX-License-Identifier: MIT
#pragma once

class QEvent;

namespace rbt {

/// True of what the user types, clicks or closes.
bool IsInput(const QEvent& event);

/// Keeps the windows painted: for `RunPendingEvents`. What the user types, clicks or closes meanwhile is
/// dropped: a key pressed while the program waits must not start a second action afterwards.
void ProcessEventsWithoutInput();

}  // namespace rbt
