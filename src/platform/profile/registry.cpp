// SPDX-License-Identifier: MIT
#include "platform/profile/registry.h"

#include <algorithm>
#include <utility>

#include "platform/files/file_sync.h"
#include "platform/files/system_error.h"
#include "platform/pass_over_faults.h"
#include "platform/profile/ini_text.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"

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

/// A file that an editor has saved in code page 932 would be read as one without any setting, and be spoilt
/// by the next one that is stored.
void RequireUtf8(const std::filesystem::path& file, std::string_view bytes) {
  if (ValidUtf8(bytes) == bytes) return;
  const bool is_cp932 = !PassOverFaults(FaultKind::type_mismatch, [&] { FromCp932(bytes); });
  if (is_cp932) throw FileFaultText(file, "is written in code page 932, not in UTF-8");
}

std::string SectionName(std::string_view app, std::string_view section) {
  return std::string(app) + "\\" + std::string(section);
}

}  // namespace

std::filesystem::path RegistryFile() { return SettingsFile(); }

RegistryReading::RegistryReading() {
  const std::filesystem::path file = RegistryFile();
  std::optional<std::string> bytes = ReadIniBytes(file);
  if (!bytes) return;
  RequireUtf8(file, *bytes);
  text_.emplace(std::move(*bytes), IniEncoding::utf8);
}

std::optional<std::string> RegistryReading::Text(std::string_view app, std::string_view section,
                                                 std::string_view key) const {
  if (!text_) return std::nullopt;
  const auto stored = text_->Find(SectionName(app, section), key);
  if (!stored) return std::nullopt;
  return ValidUtf8(Decode(*stored));
}

std::optional<std::string> RegistryText(std::string_view app, std::string_view section,
                                        std::string_view key) {
  return RegistryReading().Text(app, section, key);
}

void SetRegistryText(std::string_view app, std::string_view section, std::string_view key,
                     std::string_view value) {
  const std::string section_name = SectionName(app, section);
  RequireSectionName(section_name);
  RequireKeyName(key);
  const std::filesystem::path file = RegistryFile();
  MakeFolders(FolderOf(file));
  const RegistryReading readable;
  UpdateIniFile(file, IniEncoding::utf8, section_name, key, Encode(value));
}

}  // namespace rbt
