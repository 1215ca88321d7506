// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

namespace rbt {

/// Window style of a program that is started; only Windows acts on it.
enum class WindowStyle { hidden = 0, normal = 1, minimised = 2, maximised = 3 };

/// Starts a program of the family, `\rbk\kakou\rbweldcnt.exe` with its arguments split at blanks, and returns
/// when it has ended, pending events run once afterwards. Throws `file` naming the program when it does not
/// exist, cannot be started.
void RunAndWait(std::string_view command_line, WindowStyle style);
/// The same, with pending events run about every millisecond, so that the window stays painted.
void RunAndWaitPoll(std::string_view command_line, WindowStyle style);

/// Lets pending events of the window run; does nothing until the desktop sets its hook.
void RunPendingEvents();
void SetPendingEventsHook(std::function<void()> hook);

/// What tests put in place of starting programs; empty restores the system's own start. The second argument
/// is true for the polling form.
using Launcher = std::function<void(std::string_view command_line, WindowStyle style, bool polling)>;
void SetLauncher(Launcher launcher);

}  // namespace rbt
