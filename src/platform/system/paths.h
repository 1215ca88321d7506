// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace rbt {

/// The folder that `\RBK\` stands for, as an absolute path; empty when nobody has named one.
std::filesystem::path Root();
/// `$RBK_ROOT`, empty when that is not set.
std::filesystem::path RootOfEnvironment();

/// A path of the family, `\RBK\DATA\STEEL.INI` or `C:\rbk\kakou\x.exe`, as a path on this machine: the drive
/// letter is dropped, the first component `\RBK` is the root itself, and every component is matched without
/// regard to letter case (full-width letters too are left as they are); one that does not exist keeps its
/// spelling. A component ".." that would leave the root throws `file`. `file` too when no root is set.
std::filesystem::path MapPath(std::string_view family_path);
/// True when the mapped path is an existing file. Throws `file` where that cannot be found out: a link that
/// leads to itself, a name too long, a folder that may not be looked into.
bool FamilyFileExists(std::string_view family_path);

/// A program that is installed beside this one, by its name without a folder; nothing where there is none.
std::optional<std::filesystem::path> OwnProgram(std::string_view name);

/// The working directory of the family's programs, `\rbk` or `\rbk\kakou`, which siblings start in; that of
/// this process stays, so that paths given to it keep their meaning. A folder that does not exist throws
/// `file`.
void ChangeFamilyDirectory(std::string_view family_path);
/// That directory on this machine; nothing before the first change.
const std::optional<std::filesystem::path>& FamilyDirectory();

/// Folders of the user, for dialogs: the configured one, else ~/Desktop and ~/Documents; nothing where there
/// is no such folder.
std::optional<std::filesystem::path> DesktopFolder();
std::optional<std::filesystem::path> DocumentsFolder();
/// The folder that a dialog offers at first: that of the documents, else the home folder.
std::filesystem::path OfferedFolder();
/// Where the user's settings stand: `$RBK_SETTINGS`, or else `rbtally/settings.ini` in `$XDG_CONFIG_HOME`
/// (`~/.config` when that is not set).
std::filesystem::path SettingsFile();
/// Where stands what can be worked out anew at any time: `rbtally` in `$XDG_CACHE_HOME` (`~/.cache` when that
/// is not set). Nobody has made it yet.
std::filesystem::path CacheFolder();

}  // namespace rbt
