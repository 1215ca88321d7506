// SPDX-License-Identifier: MIT
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
  char32_t character = kReplacement;
  std::size_t bytes = 1;
};

/// The character at the start of a text; a byte that starts none counts as one.
Decoded DecodeAt(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 && lead < 0xF5   ? 4
                             : lead >= 0xE0 && lead < 0xF0 ? 3
                             : lead >= 0xC2 && lead < 0xE0 ? 2
                                                           : 0;
  if (length == 0 || length > text.size()) return {};
  char32_t value = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {};
    value = (value << 6) | (byte(i) & 0x3FU);
  }
  const bool too_long =
      (length == 3 && value < 0x800) || (length == 4 && (value < 0x10000 || value > 0x10FFFF));
  if (too_long || (value >= 0xD800 && value < 0xE000)) return {};
  return {value, length};
}

/// Byte offset behind `count` characters.
std::size_t OffsetOf(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  while (count > 0 && at < text.size()) {
    at += DecodeAt(text.substr(at)).bytes;
    --count;
  }
  return at;
}

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsHalfWidth(char32_t c) { return c < 0x80 || (c >= 0xFF61 && c <= 0xFF9F); }

constexpr char32_t kFullWidthShift = 0xFF01 - 0x21;

}  // namespace

std::vector<char32_t> CharactersOf(std::string_view text) {
  std::vector<char32_t> characters;
  characters.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Decoded decoded = DecodeAt(text.substr(at));
    characters.push_back(decoded.character);
    at += decoded.bytes;
  }
  return characters;
}

std::string Utf8Of(char32_t c) {
  if (c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) c = kReplacement;
  std::string text;
  const auto put = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
  return text;
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count) at += DecodeAt(text.substr(at)).bytes;
  return count;
}

std::string_view Mid(std::string_view text, std::size_t start, std::size_t count) {
  if (start == 0) start = 1;
  const std::string_view rest = text.substr(OffsetOf(text, start - 1));
  return rest.substr(0, OffsetOf(rest, count));
}

std::string_view Left(std::string_view text, std::size_t count) {
  return text.substr(0, OffsetOf(text, count));
}

std::string_view Right(std::string_view text, std::size_t count) {
  const std::size_t all = CharacterCount(text);
  return all <= count ? text : text.substr(OffsetOf(text, all - count));
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(text);
  std::string result;
  std::size_t at = 0;
  for (std::size_t found = text.find(from); found != std::string_view::npos; found = text.find(from, at)) {
    result.append(text.substr(at, found - at)).append(to);
    at = found + from.size();
  }
  return result.append(text.substr(at));
}

std::string ToFullWidth(std::string_view ascii) {
  std::string wide;
  for (const char32_t c : CharactersOf(ascii)) {
    wide += Utf8Of(c == U' ' ? 0x3000 : c > 0x20 && c < 0x7F ? c + kFullWidthShift : c);
  }
  return wide;
}

std::size_t DisplayWidth(std::string_view text) {
  std::size_t width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const Decoded decoded = DecodeAt(text.substr(at));
    width += IsHalfWidth(decoded.character) ? 1 : 2;
    at += decoded.bytes;
  }
  return width;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
  }
  return true;
}

std::string FoldIdentifier(std::string_view name) {
  std::string folded;
  folded.reserve(name.size());
  for (std::size_t at = 0; at < name.size();) {
    const Decoded decoded = DecodeAt(name.substr(at));
    const char32_t c = decoded.character;
    const bool wide =
        (c >= 0xFF10 && c <= 0xFF19) || (c >= 0xFF21 && c <= 0xFF3A) || (c >= 0xFF41 && c <= 0xFF5A);
    if (wide || c < 0x80) {
      folded.push_back(LowerAscii(static_cast<char>(wide ? c - kFullWidthShift : c)));
    } else {
      folded.append(name.substr(at, decoded.bytes));
    }
    at += decoded.bytes;
  }
  return folded;
}

}  // namespace rbt
