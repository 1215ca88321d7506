// SPDX-License-Identifier: MIT
#include "jet/text.h"

#include <string_view>
#include <utility>
#include <vector>

#include "platform/pass_over_faults.h"
#include "platform/text/characters.h"
#include "platform/text/code_page.h"
#include "platform/text/cp932.h"

namespace rbt::jet {

namespace {

using Direction = CodePageConverter::Direction;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsHighHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// Puts units together to characters.
class Utf16Writer {
 public:
  void Append(char32_t unit) {
    if (high_ != 0 && IsLowHalf(unit)) {
      result_.text += Utf8Of(0x10000 + ((high_ - 0xD800) << 10) + (unit - 0xDC00));
      high_ = 0;
      return;
    }
    DropHalf();
    if (IsHighHalf(unit)) {
      high_ = unit;
    } else if (IsLowHalf(unit)) {
      NoCharacter();
    } else if (unit < 0x80) {
      result_.text.push_back(static_cast<char>(unit));
    } else {
      result_.text += Utf8Of(unit);
    }
  }
  void NoCharacter() {
    result_.text += kReplacement;
    result_.exact = false;
  }
  DecodedText Result() {
    DropHalf();
    return std::move(result_);
  }

 private:
  void DropHalf() {
    if (std::exchange(high_, 0) != 0) NoCharacter();
  }

  DecodedText result_;
  char32_t high_ = 0;
};

char32_t UnitAt(std::span<const unsigned char> bytes, std::size_t at) {
  return static_cast<char32_t>(bytes[at] | (bytes[at + 1] << 8));
}

/// A byte that a code page of the Windows 125x family leaves without a character is a control character
/// there.
void NoCharacter(unsigned char byte, DecodedText& result) {
  if (byte >= 0x80 && byte < 0xA0) {
    result.text += Utf8Of(byte);
    return;
  }
  result.text += kReplacement;
  result.exact = false;
}

}  // namespace

DecodedText TextOfJet4(std::span<const unsigned char> bytes) {
  const bool compressed = bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE;
  bool single = compressed;
  Utf16Writer writer;
  for (std::size_t i = compressed ? 2 : 0; i < bytes.size();) {
    if (compressed && bytes[i] == 0) {
      single = !single;
      ++i;
    } else if (single) {
      writer.Append(bytes[i++]);
    } else if (i + 1 < bytes.size()) {
      writer.Append(UnitAt(bytes, i));
      i += 2;
    } else {
      writer.NoCharacter();
      ++i;
    }
  }
  return writer.Result();
}

bool KnowsCodePage(std::uint16_t code_page) {
  return !PassOverFaults([&] { const CodePageConverter converter(code_page, Direction::to_utf8); });
}

DecodedText TextOfCodePage(std::span<const unsigned char> bytes, std::uint16_t code_page) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (code_page == 932) {
    // The code page has no U+FFFD of its own.
    DecodedText result{FromCp932Lenient(text)};
    result.exact = result.text.find(kReplacement) == std::string::npos;
    return result;
  }
  CodePageConverter converter(code_page, Direction::to_utf8);
  DecodedText result;
  for (std::string_view left = text;;) {
    left.remove_prefix(converter.Convert(left, result.text));
    if (left.empty()) return result;
    NoCharacter(static_cast<unsigned char>(left.front()), result);
    left.remove_prefix(1);
  }
}

}  // namespace rbt::jet
