// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "shell/live/jet_original.h"
#include "store/database.h"

namespace rbt {

/// What a working copy notes of the Jet file that it was made of.
struct SourceNote {
  std::string version;       ///< of the import that made it
  std::string stamp;         ///< see `FileStamp`
  bool settled = false;      ///< see `JetOriginal`
  std::int64_t size = 0;     ///< bytes
  std::string digest;        ///< SHA-256 of the bytes that were read
  std::string mark;          ///< tells this copy from any other that is ever made
  std::int64_t refused = 0;  ///< rows that the store could not take

  /// False for a copy that another version of the import made: it is no more than what was saved in it.
  bool IsOfThisVersion() const;
  /// True where nothing tells of a change: the file stands as it was noted.
  bool Tells(const std::optional<FileStamp>& now) const;
  /// The same for a Jet file itself. While another program has it open a share may put off its times: then
  /// the bytes are compared, too.
  bool StandsFor(const std::filesystem::path& jet_file) const;
  /// True for a file of the noted size whose bytes are the noted ones.
  bool TellsBytesOf(const std::filesystem::path& file) const;
  bool TellsBytesOf(const JetOriginal& original) const;
};

SourceNote NoteOf(const JetOriginal& original);
/// Nothing in a database that is no working copy.
std::optional<SourceNote> ReadSourceNote(Database& database);
/// Makes its table, or replaces what is noted there.
void WriteSourceNote(Database& working_copy, const SourceNote& note);

}  // namespace rbt
