// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rbt {

/// A character is a Unicode code point; texts are UTF-8. Bytes that are no UTF-8 count one character each,
/// U+FFFD.

/// The characters of a text, one code point each; the bytes of one character; how many a text has.
std::vector<char32_t> CharactersOf(std::string_view text);
std::string Utf8Of(char32_t character);
std::size_t CharacterCount(std::string_view text);
/// Mid(text, start, count) with `start` from 1; beyond the end: less, or nothing.
std::string_view Mid(std::string_view text, std::size_t start,
                     std::size_t count = static_cast<std::size_t>(-1));
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);
/// Without half-width blanks at both ends; ideographic blanks stay.
std::string_view Trim(std::string_view text);
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

/// ASCII letters, digits and signs to their full-width forms.
std::string ToFullWidth(std::string_view ascii);
/// Columns on a terminal: full-width characters two, half-width (half-width katakana too) one.
std::size_t DisplayWidth(std::string_view text);
/// Compares without regard to ASCII letter case.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// The form under which identifiers are the same: ASCII letters lower case, full-width ASCII letters and
/// digits half-width. `ＳＤ`, `SD` and `sd` give "sd".
std::string FoldIdentifier(std::string_view name);

}  // namespace rbt
