// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

class QWidget;

namespace rbt {

/// Runs one action of a form, whatever event it comes from. A fault ends the action and is shown in a message
/// box under the form's title, unless the user has stopped the action; the form stays usable. Returns whether
/// the action came to its end.
bool RunAction(const QWidget& form, const std::function<void()>& action);
/// The same before there is a form.
bool RunAction(std::string_view title, const std::function<void()>& action);

/// True while an action of any form runs, also while it waits in a message box or for a sibling program.
bool ActionRunning();

}  // namespace rbt
