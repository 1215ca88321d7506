// SPDX-License-Identifier: MIT
#include "platform/profile/ini_text.h"

#include <algorithm>
#include <vector>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr std::string_view kBlanks = " \t\r\v\f";

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return text.substr(text.size());
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

unsigned Byte(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

/// Length in bytes of the character at `at`. A lead byte without its trail byte counts as one.
std::size_t Cp932CharacterLength(std::string_view text, std::size_t at) {
  const unsigned lead = Byte(text, at);
  const bool is_lead = (lead >= 0x81 && lead <= 0x9F) || (lead >= 0xE0 && lead <= 0xFC);
  if (!is_lead || at + 1 == text.size()) return 1;
  const unsigned trail = Byte(text, at + 1);
  return trail >= 0x40 && trail <= 0xFC && trail != 0x7F ? 2 : 1;
}

std::size_t Utf8CharacterLength(std::string_view text, std::size_t at) {
  const auto continues = [&](std::size_t i) { return i < text.size() && (Byte(text, i) & 0xC0U) == 0x80U; };
  const unsigned lead = Byte(text, at);
  std::size_t length = 1;
  if (lead >= 0xC2 && lead <= 0xDF) length = 2;
  if (lead >= 0xE0 && lead <= 0xEF) length = 3;
  if (lead >= 0xF0 && lead <= 0xF4) length = 4;
  for (std::size_t i = 1; i < length; ++i) {
    if (!continues(at + i)) return 1;
  }
  return length;
}

/// One character as a number that equal letters share.
struct FoldedCharacter {
  unsigned code;
  std::size_t length;
};

FoldedCharacter FoldAt(std::string_view text, std::size_t at, IniEncoding encoding) {
  const bool cp932 = encoding == IniEncoding::cp932;
  const std::size_t length = cp932 ? Cp932CharacterLength(text, at) : Utf8CharacterLength(text, at);
  unsigned code = 0;
  for (std::size_t i = 0; i < length; ++i) code = code << 8U | Byte(text, at + i);
  // Full-width Ａ to Ｚ and their distance to ａ to ｚ, by the bytes of either encoding.
  const unsigned wide_capital = cp932 ? 0x8260U : 0xEFBCA1U;
  const unsigned wide_step = cp932 ? 0x21U : 0xE0U;
  if (code >= 'A' && code <= 'Z') code += 'a' - 'A';
  if (code >= wide_capital && code < wide_capital + 26) code += wide_step;
  return {code, length};
}

bool EqualNames(std::string_view a, std::string_view b, IniEncoding encoding) {
  if (a.size() != b.size()) return false;  // folding keeps the length
  for (std::size_t i = 0; i < a.size();) {
    const FoldedCharacter in_a = FoldAt(a, i, encoding);
    const FoldedCharacter in_b = FoldAt(b, i, encoding);
    if (in_a.code != in_b.code || in_a.length != in_b.length) return false;
    i += in_a.length;
  }
  return true;
}

struct Line {
  enum class Kind { other, section, key };

  Kind kind = Kind::other;
  std::string_view name;     ///< of the section or key, trimmed
  std::size_t begin = 0;     ///< first byte
  std::size_t value = 0;     ///< first byte of a key's value, behind the blanks after `=`
  std::size_t text_end = 0;  ///< behind the last byte before the line end
  std::size_t end = 0;       ///< behind the line end
};

/// Hands out the lines of a text one after the other.
class LineReader {
 public:
  LineReader(std::string_view bytes, IniEncoding encoding) : bytes_(bytes), encoding_(encoding) {}

  bool Next(Line& line) {
    if (line.end >= bytes_.size()) return false;
    const std::size_t begin = line.end;
    const std::size_t feed = bytes_.find('\n', begin);
    line = Line{};
    line.begin = begin;
    line.end = feed == std::string_view::npos ? bytes_.size() : feed + 1;
    line.text_end = feed == std::string_view::npos ? bytes_.size() : feed;
    while (line.text_end > begin && bytes_[line.text_end - 1] == '\r') --line.text_end;
    Classify(line);
    return true;
  }

 private:
  void Classify(Line& line) const {
    const std::string_view text = bytes_.substr(line.begin, line.text_end - line.begin);
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos || text[first] == ';') return;
    if (text[first] == '[') {
      const std::size_t close = FindClosingBracket(text, first + 1);
      if (close == std::string_view::npos) return;
      line.kind = Line::Kind::section;
      line.name = Trimmed(text.substr(first + 1, close - first - 1));
      return;
    }
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == first) return;
    line.kind = Line::Kind::key;
    line.name = Trimmed(text.substr(0, equals));
    const std::size_t value = std::min(text.find_first_not_of(kBlanks, equals + 1), text.size());
    line.value = line.begin + value;
  }

  /// By characters: 5D is also the second byte of some in code page 932, "望" and "転" among them.
  std::size_t FindClosingBracket(std::string_view text, std::size_t at) const {
    while (at < text.size() && text[at] != ']') {
      at += encoding_ == IniEncoding::cp932 ? Cp932CharacterLength(text, at) : 1;
    }
    return at < text.size() ? at : std::string_view::npos;
  }

  std::string_view bytes_;
  IniEncoding encoding_;
};

/// Where a section and the lines of one of its keys stand.
struct Place {
  bool section_found = false;
  std::size_t new_key = 0;  ///< behind the last key of the section, or behind its heading
  std::vector<Line> keys;   ///< the lines of the key, the first one counts
};

Place Locate(std::string_view bytes, IniEncoding encoding, std::string_view section, std::string_view key,
             bool first_only) {
  LineReader reader(bytes, encoding);
  section = Trimmed(section);
  key = Trimmed(key);
  Place place;
  for (Line line; reader.Next(line);) {
    if (line.kind == Line::Kind::section) {
      if (place.section_found) return place;
      place.section_found = EqualNames(line.name, section, encoding);
      place.new_key = line.end;
    } else if (place.section_found && line.kind == Line::Kind::key) {
      place.new_key = line.end;
      if (!EqualNames(line.name, key, encoding)) continue;
      place.keys.push_back(line);
      if (first_only) return place;
    }
  }
  return place;
}

std::string_view LineEndOf(std::string_view bytes) {
  const std::size_t feed = bytes.find('\n');
  const bool bare = feed != std::string_view::npos && (feed == 0 || bytes[feed - 1] != '\r');
  return bare ? "\n" : "\r\n";
}

[[noreturn]] void RefuseName(std::string_view kind, std::string_view name) {
  throw Fault(FaultKind::type_mismatch, "\"" + std::string(name) + "\" as the name of " + std::string(kind));
}

bool HoldsNoLine(std::string_view name) {
  using namespace std::string_view_literals;
  return name.empty() || name.find_first_of("\r\n\0"sv) != std::string_view::npos || Trimmed(name) != name;
}

}  // namespace

std::optional<std::string_view> IniText::Find(std::string_view section, std::string_view key) const& {
  const Place place = Locate(bytes_, encoding_, section, key, true);
  if (place.keys.empty()) return std::nullopt;
  const Line& line = place.keys.front();
  return Trimmed(std::string_view(bytes_).substr(line.value, line.text_end - line.value));
}

void IniText::Set(std::string_view section, std::string_view key, std::string_view value) {
  const Place place = Locate(bytes_, encoding_, section, key, true);
  if (!place.keys.empty()) {
    const Line& line = place.keys.front();
    bytes_.replace(line.value, line.text_end - line.value, value);
    return;
  }
  const std::string line_end(LineEndOf(bytes_));
  const std::size_t at = place.section_found ? place.new_key : bytes_.size();
  std::string added;
  if (at > 0 && bytes_[at - 1] != '\n') added += line_end;
  if (!place.section_found) added.append("[").append(section).append("]").append(line_end);
  added.append(key).append("=").append(value).append(line_end);
  bytes_.insert(at, added);
}

void IniText::Remove(std::string_view section, std::string_view key) {
  const Place place = Locate(bytes_, encoding_, section, key, false);
  std::string kept;
  kept.reserve(bytes_.size());
  std::size_t from = 0;
  for (const Line& line : place.keys) {
    kept.append(bytes_, from, line.begin - from);
    from = line.end;
  }
  kept.append(bytes_, from);
  bytes_ = std::move(kept);
}

std::string_view Cp932BytesPrefix(std::string_view bytes, std::size_t count) {
  std::size_t end = 0;
  while (end < bytes.size()) {
    const std::size_t length = Cp932CharacterLength(bytes, end);
    if (end + length > count) break;
    end += length;
  }
  return bytes.substr(0, end);
}

void RequireSectionName(std::string_view section) {
  if (HoldsNoLine(section) || section.find(']') != std::string_view::npos) RefuseName("a section", section);
}

void RequireKeyName(std::string_view key) {
  if (HoldsNoLine(key) || key.find('=') != std::string_view::npos || key.front() == ';' ||
      key.front() == '[') {
    RefuseName("a key", key);
  }
}

}  // namespace rbt
