// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "store/database.h"

namespace rbt {

/// The name of the working copy of a file that stays as it is: `NAME.MDB.work` beside it, or the same name in
/// a folder of the user's cache that belongs to the file's whole path. `beside` tells which is meant.
std::filesystem::path WorkingCopyBeside(const std::filesystem::path& file);
std::filesystem::path WorkingCopyInCache(const std::filesystem::path& file);
/// That of both where this user's work on the file goes: beside it where the folder takes files.
std::filesystem::path WorkingCopyOf(const std::filesystem::path& file, bool only_read);

/// How the working copy of a Jet file stands.
enum class CopyState {
  missing,  ///< there is none yet: a session makes it
  fresh,    ///< a session takes it as it is
  stale,    ///< the Jet file has changed, or another version of the program made it: a session makes it anew
  foreign,  ///< what stands under its name is none, or damaged: a session sets it aside as
            ///< `NAME.MDB.work.bad`
};

struct CopyLook {
  std::filesystem::path copy;  ///< where a session works
  CopyState state = CopyState::missing;
  std::string why;                ///< of a stale or foreign one
  std::size_t saved_tallies = 0;  ///< that nobody has but the copy
  std::size_t refused_rows = 0;   ///< of the Jet file that the store could not take
};
/// Looks at the working copy of a real Jet file as a session would, and changes nothing.
CopyLook LookAtWorkingCopy(const std::filesystem::path& jet_file, bool only_read);

/// Where a row of a working copy stands in its Jet file.
struct JetPlace {
  std::uint32_t page = 0;
  std::uint8_t slot = 0;

  friend bool operator==(const JetPlace&, const JetPlace&) = default;
};
/// That of a row by its number in the store; nothing for a row that was made here.
std::optional<JetPlace> JetPlaceOf(Database& working_copy, std::string_view table, std::int64_t row);

}  // namespace rbt
