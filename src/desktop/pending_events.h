// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Lets `RunPendingEvents` keep the windows painted. What the user types, clicks or closes meanwhile is
/// dropped: a key pressed while the program waits must not start a second action afterwards.
void InstallPendingEvents();

}  // namespace rbt
