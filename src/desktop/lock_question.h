// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "platform/system/patience.h"

namespace rbt {

/// Asks whether to wait on for a file that another program holds: to try again, or to give up the action, or
/// the program where it cannot go on without. What was typed before is not taken for an answer.
bool AskToWaitOn(const std::filesystem::path& file);

/// For `Services.OnWait`: notes that the running action waits, so that what is typed meanwhile is dropped
/// when it ends, and paints the windows anew now and then: a program that waits must not look like one that
/// hangs.
WaitHook NoteWaits();

}  // namespace rbt
