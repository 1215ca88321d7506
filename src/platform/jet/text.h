// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace rbt::jet {

/// Text of a Jet 4 column: UTF-16LE, or, when it begins FF FE, one byte a character that switches to two and
/// back at a zero byte. Half pairs become U+FFFD.
std::string TextOfJet4(std::span<const unsigned char> bytes);
/// UTF-16LE without compression.
std::string TextOfUtf16(std::span<const unsigned char> bytes);
/// Text of a Jet 3 column in the file's code page (932 is the Windows one); what is no character becomes
/// U+FFFD.
std::string TextOfCodePage(std::span<const unsigned char> bytes, std::uint16_t code_page);

}  // namespace rbt::jet
