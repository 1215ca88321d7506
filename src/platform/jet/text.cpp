// SPDX-License-Identifier: MIT
#include "platform/jet/text.h"

#include <array>
#include <cerrno>
#include <iconv.h>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"

namespace rbt::jet {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

void AppendUnits(const std::vector<std::uint16_t>& units, std::string& out) {
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char32_t unit = units[i];
    if (unit >= 0xD800 && unit < 0xDC00 && i + 1 < units.size() && units[i + 1] >= 0xDC00 &&
        units[i + 1] < 0xE000) {
      out += Utf8Of(0x10000 + ((unit - 0xD800) << 10) + (units[++i] - 0xDC00U));
    } else if (unit >= 0xD800 && unit < 0xE000) {
      out += kReplacement;
    } else {
      out += Utf8Of(unit);
    }
  }
}

/// The name under which the conversion library knows a Windows code page.
std::string IconvName(std::uint16_t code_page) { return fmt::format("CP{}", code_page); }

}  // namespace

std::string TextOfUtf16(std::span<const unsigned char> bytes) {
  std::vector<std::uint16_t> units;
  units.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    units.push_back(static_cast<std::uint16_t>(bytes[i] | (bytes[i + 1] << 8)));
  }
  std::string out;
  AppendUnits(units, out);
  return out;
}

std::string TextOfJet4(std::span<const unsigned char> bytes) {
  if (bytes.size() < 2 || bytes[0] != 0xFF || bytes[1] != 0xFE) return TextOfUtf16(bytes);
  std::vector<std::uint16_t> units;
  bool single = true;
  for (std::size_t i = 2; i < bytes.size();) {
    if (bytes[i] == 0) {
      single = !single;
      ++i;
    } else if (single) {
      units.push_back(bytes[i++]);
    } else {
      if (i + 1 >= bytes.size()) break;
      units.push_back(static_cast<std::uint16_t>(bytes[i] | (bytes[i + 1] << 8)));
      i += 2;
    }
  }
  std::string out;
  AppendUnits(units, out);
  return out;
}

std::string TextOfCodePage(std::span<const unsigned char> bytes, std::uint16_t code_page) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (code_page == 932) return FromCp932Lenient(text);
  const iconv_t conversion = iconv_open("UTF-8", IconvName(code_page).c_str());
  if (conversion == reinterpret_cast<iconv_t>(-1)) {
    throw Fault(FaultKind::file, fmt::format("code page {} is not known on this machine", code_page));
  }
  std::string out;
  std::string input(text);
  char* from = input.data();
  std::size_t left = input.size();
  while (left > 0) {
    std::array<char, 256> buffer;
    char* to = buffer.data();
    std::size_t room = buffer.size();
    const std::size_t done = iconv(conversion, &from, &left, &to, &room);
    out.append(buffer.data(), buffer.size() - room);
    if (done == static_cast<std::size_t>(-1) && errno != E2BIG) {
      out += kReplacement;
      if (left > 0) {
        ++from;
        --left;
      }
    }
  }
  iconv_close(conversion);
  return out;
}

}  // namespace rbt::jet
