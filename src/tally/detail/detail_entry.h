// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "tally/detail/detail_cell.h"

namespace rbt {

/// What is typed into the purchase list, in its grid as on the command line.

/// True for a text of the characters that a percentage or a count is made of: digits, sign and point; digits
/// and commas.
bool IsPercentText(std::string_view text);
bool IsCountText(std::string_view text);
/// The percentage of such a text: a decimal number, which may be negative. What is no number, such as an
/// empty text,
/// "-" or one with two points, counts as 0.
double PercentOfText(std::string_view text);
/// The count of a text of digits and commas; an empty one counts as 0. Faults: `overflow` beyond 32 bits.
std::int32_t CountOfText(std::string_view text);

/// The cell that two words name: "D10" to "D51", and a stock length in metres or the word of a fitting.
/// Nothing when the first `columns` stock columns and the fittings do not have it.
std::optional<DetailCell> CellOfWords(std::string_view row, std::string_view column, int columns);

}  // namespace rbt
