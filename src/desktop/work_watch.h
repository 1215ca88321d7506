// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/work.h"

namespace rbt {

/// For `Services.OnWork`: an action that has worked for a second without asking its user shows a panel that
/// tells so and offers to stop it, by its button or Esc; all else that is typed or clicked meanwhile is
/// dropped, nothing that falls due is begun. The panel lies in the window that the action works in, or is one
/// of its own where there is none.
WorkHook ShowWork();

/// For `RunPendingEvents`: keeps the windows painted; the user reaches the panel, where it shows, and nothing
/// else.
void ProcessEventsOfWork();

/// Takes the panel away; the second is counted anew.
void HideWork();

}  // namespace rbt
