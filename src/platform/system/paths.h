// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace rbt {

/// The folder that `\RBK\` stands for. Starts as `$RBK_ROOT`, empty when that is not set.
const std::filesystem::path& Root();
void SetRoot(std::filesystem::path root);

/// A path of the family, `\RBK\DATA\STEEL.INI` or `C:\rbk\kakou\x.exe`, as a path on this machine: the drive
/// letter is dropped, the first component `\RBK` is the root itself, and every component is matched without
/// regard to letter case (full-width letters too are left as they are); one that does not exist keeps its
/// spelling. A component ".." that would leave the root throws `file`. `file` too when no root is set.
std::filesystem::path MapPath(std::string_view family_path);
/// True when the mapped path is an existing file.
bool FamilyFileExists(std::string_view family_path);

/// The working directory of the family's programs, `\rbk` or `\rbk\kakou`; a folder that does not exist
/// throws `file`.
void ChangeFamilyDirectory(std::string_view family_path);

/// Folders of the user, for dialogs.
std::filesystem::path DesktopFolder();
std::filesystem::path DocumentsFolder();

/// Writes the whole file by way of a temporary one in the same folder, synced, then renamed over it: a kill
/// at any moment leaves the old or the new file. Throws `file` with the path and the system's cause.
void WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes);
/// The bytes of a file; throws `file`.
std::string ReadFileBytes(const std::filesystem::path& file);

}  // namespace rbt
