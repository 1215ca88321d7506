// SPDX-License-Identifier: MIT
#include "platform/text/cp932.h"

#include <cstdint>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/text/characters.h"
#include "platform/text/code_page.h"

namespace rbt {

namespace {

using Direction = CodePageConverter::Direction;
constexpr std::uint16_t kCodePage = 932;

/// Opened once for each thread; between calls they have no state, as both sides have none.
CodePageConverter& Encoder() {
  thread_local CodePageConverter converter(kCodePage, Direction::from_utf8);
  return converter;
}

CodePageConverter& Decoder() {
  thread_local CodePageConverter converter(kCodePage, Direction::to_utf8);
  return converter;
}

/// The code page keeps the yen sign and the overline in the places of the backslash and the tilde.
std::size_t BytesOf(std::string_view character) {
  return character == "\u00A5" || character == "\u203E" ? 1 : DisplayWidth(character);
}

}  // namespace

std::string ToCp932(std::string_view utf8) {
  std::string bytes;
  const std::size_t taken = Encoder().Convert(utf8, bytes);
  if (taken < utf8.size()) {
    const std::string_view rest = utf8.substr(taken);
    throw Fault(FaultKind::type_mismatch,
                fmt::format("code page 932 has no character U+{:04X} (character {} of the text)",
                            static_cast<std::uint32_t>(CharactersOf(rest).front()),
                            CharacterCount(utf8.substr(0, taken)) + 1));
  }
  return bytes;
}

Cp932Text ToCp932Lenient(std::string_view utf8) {
  Cp932Text text;
  while (!utf8.empty()) {
    utf8.remove_prefix(Encoder().Convert(utf8, text.bytes));
    if (utf8.empty()) break;
    const std::string_view bytes = Left(utf8, 1);
    const std::string character = Utf8Of(CharactersOf(bytes).front());
    text.bytes += '?';
    if (text.lacking.find(character) == std::string::npos) text.lacking += character;
    utf8.remove_prefix(bytes.size());
  }
  return text;
}

std::string FromCp932(std::string_view bytes) {
  std::string text;
  const std::size_t taken = Decoder().Convert(bytes, text);
  if (taken < bytes.size()) {
    throw Fault(FaultKind::type_mismatch,
                fmt::format("byte {:02X} at offset {} is no character of code page 932",
                            static_cast<unsigned char>(bytes[taken]), taken));
  }
  return text;
}

std::string FromCp932Lenient(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    bytes.remove_prefix(Decoder().Convert(bytes, text));
    if (bytes.empty()) break;
    text += "\xEF\xBF\xBD";
    bytes.remove_prefix(1);
  }
  return text;
}

std::size_t Cp932Length(std::string_view utf8) {
  std::size_t bytes = 0;
  while (!utf8.empty()) {
    const std::string_view character = Left(utf8, 1);
    bytes += BytesOf(character);
    utf8.remove_prefix(character.size());
  }
  return bytes;
}

std::string_view Cp932Prefix(std::string_view utf8, std::size_t bytes) {
  std::size_t at = 0;
  std::size_t used = 0;
  while (at < utf8.size()) {
    const std::string_view character = Left(utf8.substr(at), 1);
    used += BytesOf(character);
    if (used > bytes) break;
    at += character.size();
  }
  return utf8.substr(0, at);
}

}  // namespace rbt
