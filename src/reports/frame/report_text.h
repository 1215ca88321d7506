// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace rbt {

/// Length in bytes of code page 932: a full-width character counts 2, a half-width one 1.
std::int32_t Get_ByteLen(std::string_view Text);

/// A project name cut behind its first `koji_break` characters.
struct CutName {
  std::string_view first;
  std::string_view rest;
};
CutName CutAtBreak(std::string_view name, std::int32_t koji_break);
/// The piece with the greater byte length; of two equal ones the first.
std::string_view LongerPiece(const CutName& name);
/// The longer piece of a text cut at the project-name break of `SiteContext`.
std::string Get_HalfLonger(std::string_view Text);

/// X offset, twips, at which a short label starts so that its last character ends at a fixed place.
float Get_RightX(std::string_view Text);

/// A material text without its slit wording; of "スリットのみ" "のみ" is left.
std::string Trim_SlitText(std::string_view Text);

/// The rightmost `count` characters of the text with blanks in front: how numbers stand in a column. A longer
/// text loses its leftmost characters.
std::string RightAligned(std::string_view text, std::size_t count);

}  // namespace rbt
