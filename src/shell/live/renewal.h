// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "shell/live/jet_original.h"

namespace rbt {

/// Makes the working copy of a Jet file, or makes it anew: whoever has it open goes on with the old one and
/// sees that it has moved. What was saved in the old one goes into the new one, and so does what was saved in
/// `other`, unless it has been joined before; `other` stays. A file of the same bytes is only noted
/// as it stands now, where `other` holds nothing more. One that stands under the copy's name
/// and is none, or is damaged, is set aside as `NAME.MDB.work.bad`, and the user is told; so is he of rows
/// that could not be taken. A file that changes while it is read, or that was written a moment ago and
/// reads otherwise after a pause, is read again, at most three times. Throws `file` for one that keeps
/// changing or is damaged, `locked` where another program is at it for too long, and what the writing throws.
/// The Jet file is only read and never locked.
void RenewWorkingCopy(const std::filesystem::path& jet_file, const std::filesystem::path& copy,
                      const std::filesystem::path& other, const ReadHook& behind_reading = {});

}  // namespace rbt
