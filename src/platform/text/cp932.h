// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rbt {

/// UTF-8 to code page 932 (the Windows one: ①, ㈱, 髙, ～ have codes). Look-alikes take the code of their
/// Windows character and come back as that: 〜 as ～, − as －, ‖ as ∥, — as ―, ¢£¬ as ￠￡￢, the half-width
/// yen sign as a backslash. Throws `type mismatch`, naming the character and its place, for what the code
/// page does not hold or for text that is not UTF-8.
std::string ToCp932(std::string_view utf8);
/// What code page 932 makes of a text.
struct Cp932Text {
  std::string bytes;    ///< with "?" for each character that the code page lacks
  std::string lacking;  ///< those characters, each once, in their order; UTF-8
};
/// As `ToCp932`, for files that are written whatever the text holds.
Cp932Text ToCp932Lenient(std::string_view utf8);
/// Code page 932 to UTF-8. A byte sequence that is no character throws `type mismatch` and names its offset.
std::string FromCp932(std::string_view bytes);
/// As `FromCp932`, with U+FFFD for what is no character: for files that must stay readable.
std::string FromCp932Lenient(std::string_view bytes);
/// Length in bytes of code page 932; a character the code page lacks counts two.
std::size_t Cp932Length(std::string_view utf8);
/// The longest prefix of at most `bytes` bytes of code page 932, never half a character.
std::string_view Cp932Prefix(std::string_view utf8, std::size_t bytes);

}  // namespace rbt
