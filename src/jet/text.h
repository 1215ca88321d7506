// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace rbt::jet {

/// Text of a file as UTF-8. What is no character became U+FFFD, and `exact` is false then: such a text cannot
/// be written back as it was.
struct DecodedText {
  std::string text;
  bool exact = true;
};

/// Text of a Jet 4 column: UTF-16LE, or, when it begins FF FE, one byte a character that switches to two and
/// back at a zero byte. The column's flag is not asked: it tells how the engine writes from now on, not how a
/// row was written. Halves of surrogate pairs and halves of units are no characters.
DecodedText TextOfJet4(std::span<const unsigned char> bytes);
/// True when this machine can decode a code page.
bool KnowsCodePage(std::uint16_t code_page);
/// Text of a Jet 3 column in the file's code page (932 is the Windows one). A code page that this machine
/// does not know throws `Fault` of kind `file`.
DecodedText TextOfCodePage(std::span<const unsigned char> bytes, std::uint16_t code_page);

}  // namespace rbt::jet
