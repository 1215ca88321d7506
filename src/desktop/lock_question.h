// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt {

/// Asks whether to wait on for a file that another program holds: to try again, or to give up the action, or
/// the program where it cannot go on without. What was typed before is not taken for an answer.
bool AskToWaitOn(const std::filesystem::path& file);

/// Notes that the running action waits: what is typed meanwhile is dropped when it ends.
void NoteWait();

}  // namespace rbt
