// SPDX-License-Identifier: MIT
#include "platform/profile/registry.h"

#include <algorithm>

#include "platform/files/system_error.h"
#include "platform/profile/ini_text.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

struct Escape {
  char character;
  char letter;
};
constexpr Escape kEscapes[] = {{'\n', 'n'}, {'\r', 'r'}, {'\0', '0'}, {'\\', '\\'}, {'"', '"'}};

bool IsEndOfQuotes(char c) {
  return c == '"' || c == '\'' || c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

/// Texts that a line cannot hold as they are stand in quotes, with escapes.
std::string Encode(std::string_view value) {
  using namespace std::string_view_literals;
  const bool plain = value.find_first_of("\n\r\0"sv) == std::string_view::npos &&
                     (value.empty() || (!IsEndOfQuotes(value.front()) && !IsEndOfQuotes(value.back())));
  if (plain) return std::string(value);
  std::string quoted = "\"";
  for (const char c : value) {
    const auto* escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                      [c](const Escape& each) { return each.character == c; });
    if (escape != std::end(kEscapes)) {
      quoted.append({'\\', escape->letter});
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

std::string Decode(std::string_view stored) {
  if (stored.size() < 2 || stored.front() != '"' || stored.back() != '"') return std::string(stored);
  stored = stored.substr(1, stored.size() - 2);
  std::string value;
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const char c = stored[i];
    const auto* escape = i + 1 == stored.size()
                             ? std::end(kEscapes)
                             : std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                            [&](const Escape& each) { return each.letter == stored[i + 1]; });
    if (c == '\\' && escape != std::end(kEscapes)) {
      value += escape->character;
      ++i;
    } else {
      value += c;
    }
  }
  return value;
}

/// The text with U+FFFD for bytes that are no characters, should a foreign hand have edited the file.
std::string ValidUtf8(std::string_view text) {
  std::string valid;
  for (const char32_t character : CharactersOf(text)) valid += Utf8Of(character);
  return valid;
}

std::string SectionName(std::string_view app, std::string_view section) {
  return std::string(app) + "\\" + std::string(section);
}

}  // namespace

std::filesystem::path RegistryFile() { return SettingsFile(); }

std::optional<std::string> RegistryText(std::string_view app, std::string_view section,
                                        std::string_view key) {
  const std::optional<std::string> bytes = ReadIniBytes(RegistryFile());
  if (!bytes) return std::nullopt;
  const IniText text(*bytes, IniEncoding::utf8);
  const auto stored = text.Find(SectionName(app, section), key);
  if (!stored) return std::nullopt;
  return ValidUtf8(Decode(*stored));
}

void SetRegistryText(std::string_view app, std::string_view section, std::string_view key,
                     std::string_view value) {
  const std::string section_name = SectionName(app, section);
  RequireSectionName(section_name);
  RequireKeyName(key);
  const std::filesystem::path file = RegistryFile();
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  if (error) throw FileFault(file.parent_path(), "cannot be made", error.value());
  UpdateIniFile(file, IniEncoding::utf8, section_name, key, Encode(value));
}

}  // namespace rbt
