// SPDX-License-Identifier: MIT
#include "platform/text/code_page.h"

#include <array>
#include <cerrno>

#include <fmt/format.h>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr const char* kUtf8 = "UTF-8";

iconv_t Open(const std::string& name, CodePageConverter::Direction direction) {
  return direction == CodePageConverter::Direction::to_utf8 ? iconv_open(kUtf8, name.c_str())
                                                            : iconv_open(name.c_str(), kUtf8);
}

}  // namespace

CodePageConverter::CodePageConverter(std::uint16_t code_page, Direction direction)
    : handle_(Open(fmt::format("CP{}", code_page), direction)) {
  if (reinterpret_cast<std::intptr_t>(handle_) == -1) {
    throw Fault(FaultKind::file, fmt::format("code page {} is not known on this machine", code_page));
  }
}

std::size_t CodePageConverter::Convert(std::string_view input, std::string& output) {
  iconv(handle_, nullptr, nullptr, nullptr, nullptr);
  char* from = const_cast<char*>(input.data());  // iconv only reads there
  std::size_t left = input.size();
  std::array<char, 1024> buffer{};
  for (bool full = true; full;) {
    char* to = buffer.data();
    std::size_t room = buffer.size();
    full = iconv(handle_, &from, &left, &to, &room) == static_cast<std::size_t>(-1) && errno == E2BIG;
    output.append(buffer.data(), to);
  }
  return input.size() - left;
}

}  // namespace rbt
