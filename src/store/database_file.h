// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/fault.h"

namespace rbt {

/// The file is no database of the store but a real Jet file.
class JetFileFault : public Fault {
 public:
  using Fault::Fault;
};

/// As many of a file's first bytes as tell a database.
inline constexpr int kMarkBytes = 20;

/// Throws `file` when something else than a regular file stands under the name, or nothing does.
void RequireRegularFile(const std::filesystem::path& file);
/// Throws `file` when the first bytes of a file are not those of a database of the store.
void RequireStoreMark(const std::filesystem::path& file, std::string_view first_bytes);

/// True for an existing regular file that begins as a database of the store or a real Jet file does. Not for
/// a file that this process has open as a database: closing it here would lose that one's locks. One that
/// cannot be read throws `file`.
bool BeginsAsDatabase(const std::filesystem::path& file);

/// Makes an empty database; a file that exists throws `file`.
void CreateDatabaseFile(const std::filesystem::path& file);

/// Not the file that is copied is at fault but the place of the new one: a full disk, a name that is taken.
class CopyTargetFault : public Fault {
 public:
  using Fault::Fault;
};

/// Copies a database of the store, as it stands at one moment, into a new file; a target that exists stays.
/// Throws what opening and reading the source throws, and `CopyTargetFault`.
void CopyDatabaseFile(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace rbt
