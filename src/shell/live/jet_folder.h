// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "shell/live/live_database.h"

namespace rbt {

/// Those of several files of the family (`\RBK\DATA\...`) that are there and are real Jet files.
std::vector<std::filesystem::path> JetFilesAmong(std::initializer_list<std::string> family_paths);

/// What this user has answered for the Jet files of a folder; nothing before he was asked. Kept in the
/// registry, by the folder's path without its links.
std::optional<JetChoice> RememberedJetChoice(const std::filesystem::path& folder);
/// Keeps the answer, `read_in_place` or `import`. Where the registry cannot be written it is passed over:
/// the question comes again.
void RememberJetChoice(const std::filesystem::path& folder, JetChoice choice);

/// Whether this user knows that a Jet file is only read and that what is saved stays in this program; kept
/// likewise, by the file's path.
bool WasToldOfReading(const std::filesystem::path& jet_file);
void NoteToldOfReading(const std::filesystem::path& jet_file);

}  // namespace rbt
