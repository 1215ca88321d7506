// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace rbt {

/// The bytes of a file; throws `file`.
std::string ReadFileBytes(const std::filesystem::path& file);
/// Writes the whole file by way of a temporary one in the same folder, synced, then renamed over it: a kill
/// at any moment leaves the old or the new file, and so does a full disk. An existing file keeps its
/// permissions; a symbolic link stays and its target is replaced. Throws `file` with the path and the
/// system's cause.
void WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes);

}  // namespace rbt
