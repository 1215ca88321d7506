// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "shell/live/source_note.h"
#include "store/database.h"

namespace rbt {

/// The working copy of a file that stays as it is: `NAME.MDB.work` beside it, or that name in a folder of the
/// user's cache that belongs to the file's whole path. A copy that was made when the file was spelled in
/// another letter case goes on under its name.
std::filesystem::path WorkingCopyBeside(const std::filesystem::path& file);
std::filesystem::path WorkingCopyInCache(const std::filesystem::path& file);
/// That of both which keeps what this user saves: the one beside the file where the folder takes files.
std::filesystem::path ArchiveCopyOf(const std::filesystem::path& file);

/// A working copy, opened, and what it notes of its Jet file.
struct OpenedCopy {
  Database database;
  SourceNote note;
};
/// What stands under a working copy's name; nothing where there is none, or where it cannot be read as one.
/// Throws `locked`.
std::optional<OpenedCopy> OpenIfCopy(const std::filesystem::path& copy, bool for_reading);

/// How the working copy of a Jet file stands.
enum class CopyState {
  missing,   ///< there is none yet: a session makes it
  fresh,     ///< a session takes it as it is
  stale,     ///< the Jet file has changed: a session makes it anew
  outdated,  ///< another version of the program made it: a session makes it anew
  foreign,   ///< what stands under its name is none, or is damaged: a session sets it aside
};

struct CopyLook {
  std::filesystem::path copy;  ///< where a session works
  CopyState state = CopyState::missing;
  std::size_t saved_tallies = 0;  ///< that nobody has but the copy
  std::int64_t refused_rows = 0;  ///< of the Jet file that the store could not take
};
/// Looks at the working copy of a real Jet file as a session would that may write, and changes nothing.
CopyLook LookAtWorkingCopy(const std::filesystem::path& jet_file);

/// Where a row of a working copy stands in its Jet file.
struct JetPlace {
  std::uint32_t page = 0;
  std::uint8_t slot = 0;

  friend bool operator==(const JetPlace&, const JetPlace&) = default;
};
/// That of a row by its number in the store; nothing for a row that was made here.
std::optional<JetPlace> JetPlaceOf(Database& working_copy, std::string_view table, std::int64_t row);

}  // namespace rbt
