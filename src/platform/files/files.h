// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace rbt {

/// Whether anything stands under a name, be it a link that leads nowhere.
bool IsTaken(const std::filesystem::path& name);

/// Whether a path is that of a folder or leads to something below it, by its components; links are not
/// followed.
bool LiesIn(const std::filesystem::path& folder, const std::filesystem::path& path);

/// Whether this user may make files in a folder.
bool TakesFiles(const std::filesystem::path& folder);

/// Whether this user may write a file anew, or make it where there is none; folders that are missing are
/// made.
bool MayBeReplaced(const std::filesystem::path& file);

/// The bytes of a file; throws `file`.
std::string ReadFileBytes(const std::filesystem::path& file);
/// Writes the whole file or leaves the old one, see `FileInWork`. An existing file keeps its permissions; a
/// symbolic link stays and its target is replaced. Throws `file` with the path and the system's cause.
void WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes);

}  // namespace rbt
