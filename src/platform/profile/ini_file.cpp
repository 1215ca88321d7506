// SPDX-License-Identifier: MIT
#include "platform/profile/ini_file.h"

#include "platform/fault.h"
#include "platform/profile/ini_text.h"
#include "platform/text/cp932.h"

namespace rbt {

namespace {

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

std::string GetProfileText(const std::filesystem::path& file, std::string_view section, std::string_view key,
                           std::string_view fallback, std::size_t buffer_size) {
  const std::size_t room =
      buffer_size == 0 ? 0 : buffer_size - 1;  // the last byte of the buffer ends the text
  const std::optional<std::string> bytes = ReadIniBytes(file);
  if (bytes) {
    const IniText text(*bytes, IniEncoding::cp932);
    if (const auto value = text.Find(ToCp932(section), ToCp932(key))) {
      std::string_view content = WithoutQuotes(*value);
      content = content.substr(0, content.find('\0'));  // a NUL ends a text in a buffer
      return FromCp932Lenient(Cp932BytesPrefix(content, room));
    }
  }
  return std::string(Cp932Prefix(fallback, room));
}

void WriteProfileText(const std::filesystem::path& file, std::string_view section, std::string_view key,
                      std::optional<std::string_view> value) {
  using namespace std::string_view_literals;
  RequireSectionName(section);
  RequireKeyName(key);
  if (value && value->find_first_of("\r\n\0"sv) != std::string_view::npos) {
    throw Fault(FaultKind::type_mismatch, "a line break in the value of " + std::string(key));
  }
  std::optional<std::string> bytes;
  if (value) bytes = ToCp932(*value);
  UpdateIniFile(file, IniEncoding::cp932, ToCp932(section), ToCp932(key), bytes);
}

}  // namespace rbt
