// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace rbt {

/// Reads a key of an INI file in code page 932 as the Windows profile functions do: sections and keys without
/// regard to letter case, blanks round key and value dropped, one pair of enclosing quotes (" or ') dropped,
/// the first of several equal sections and keys. A buffer of `buffer_size` characters takes buffer_size - 1
/// bytes of code page 932, never half a character. A missing file, section or key gives `fallback`, cut the
/// same way. A name is compared without regard to the letter case of Latin letters, full-width ones too. The
/// result is UTF-8; bytes that are no characters become U+FFFD. An existing file that cannot be read or is
/// larger than 16 MiB throws `file`, a name with a character that the code page lacks `type mismatch`.
std::string GetProfileText(const std::filesystem::path& file, std::string_view section, std::string_view key,
                           std::string_view fallback, std::size_t buffer_size = 80);

/// Writes one key: the line is replaced in place, or added behind the last key of the section, or the section
/// is added at the end; every other byte of the file stays (comments, unknown lines, line ends, bytes that
/// are no characters). New lines end as the file's first line does, in CR LF when there is none. The file is
/// replaced atomically, unless it would stay the same; a missing file is made. Nothing in place of a value
/// removes the key. A value or name with a line break or a character that the code page lacks, and a name
/// that could not be read back, throw `type mismatch`; the file then is untouched.
void WriteProfileText(const std::filesystem::path& file, std::string_view section, std::string_view key,
                      std::optional<std::string_view> value);

}  // namespace rbt
