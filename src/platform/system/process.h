// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

namespace rbt {

/// Window style of a program that is started; only Windows acts on it.
enum class WindowStyle { hidden = 0, normal = 1, minimised = 2, maximised = 3 };

/// Starts a program of the family, `\rbk\kakou\rbweldcnt.exe` with its arguments split at blanks, and returns
/// when it has ended, pending events run once afterwards. A name without a folder is that of a program beside
/// this one, see `OwnProgram`. Throws `file` naming the program when it does not exist, cannot be started.
void RunAndWait(std::string_view command_line, WindowStyle style);
/// The same, with pending events run about every millisecond, so that the window stays painted.
void RunAndWaitPoll(std::string_view command_line, WindowStyle style);

/// Lets pending events of the windows run, if there are any.
void RunPendingEvents();

/// What starts a sibling and returns when it has ended, `polling` with pending events run meanwhile: the
/// system's own start, or a test's note.
using Launcher = std::function<void(std::string_view command_line, WindowStyle style, bool polling)>;
void LaunchProgram(std::string_view command_line, WindowStyle style, bool polling);

}  // namespace rbt
