// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace rbt {

enum class IniEncoding { cp932, utf8 };

/// The bytes of an INI file and the rules by which lines are read and changed; names and values are bytes of
/// the file's encoding. A line is a section `[name]`, a key `name=value`, or anything else (blank lines,
/// comments behind `;`, lines that are no INI), which is never touched. Of equal sections and keys the first
/// counts. Names are compared without regard to the letter case of Latin letters, half- and full-width ones
/// each among themselves; blanks round names and values do not count. Every operation is one pass.
class IniText {
 public:
  IniText(std::string bytes, IniEncoding encoding) : bytes_(std::move(bytes)), encoding_(encoding) {}

  const std::string& Bytes() const { return bytes_; }

  /// The value without the blanks round it, its quotes still on; nothing when section or key are missing. It
  /// points into the text.
  std::optional<std::string_view> Find(std::string_view section, std::string_view key) const&;
  std::optional<std::string_view> Find(std::string_view section, std::string_view key) && = delete;
  /// Replaces the value in place, or adds the key behind the last one of the section, or the section at the
  /// end. A new line ends as the first line of the file does, in CR LF when there is none.
  void Set(std::string_view section, std::string_view key, std::string_view value);
  /// Takes out every line of the key, so that it is missing afterwards.
  void Remove(std::string_view section, std::string_view key);

 private:
  std::string bytes_;
  IniEncoding encoding_;
};

/// The longest prefix of at most `count` bytes that ends with a whole character of code page 932.
std::string_view Cp932BytesPrefix(std::string_view bytes, std::size_t count);

/// Throws `type mismatch` for a name that could not be found again: empty, with a line break, a NUL or blanks
/// at the ends, a section with `]`, a key with `=` or with `;` or `[` in front.
void RequireSectionName(std::string_view section);
void RequireKeyName(std::string_view key);

/// The bytes of an INI file; nothing when it does not exist. One that cannot be read, is no regular file or
/// is larger than 16 MiB throws `file`.
std::optional<std::string> ReadIniBytes(const std::filesystem::path& file);
/// Sets one key of a file, or removes it when there is no value, under a lock that keeps programs of the
/// family from undoing each other's change. A file that would stay the same is not written.
void UpdateIniFile(const std::filesystem::path& file, IniEncoding encoding, std::string_view section,
                   std::string_view key, std::optional<std::string_view> value);

}  // namespace rbt
