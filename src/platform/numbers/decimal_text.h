// SPDX-License-Identifier: MIT
// Numbers as they are typed for the program: plain decimals and nothing else. Zeros in front mean nothing,
// "05000" is 5000. A plus, blanks, separators, an exponent and other bases are no part of one.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace rbt {

/// Digits, a minus before them or none; however many.
bool IsWholeNumber(std::string_view text);

/// A whole number of `lowest` to `highest`; nothing for a number beyond them, for another text, and for a
/// minus where no number is below 0.
std::optional<std::int32_t> WholeNumberIn(std::string_view text, std::int32_t lowest, std::int32_t highest);
/// The same of any 32 bits.
inline std::optional<std::int32_t> WholeNumber(std::string_view text) {
  using Limits = std::numeric_limits<std::int32_t>;
  return WholeNumberIn(text, Limits::min(), Limits::max());
}

/// One or more of them with commas between, "3,1,12"; nothing where one is none.
std::optional<std::vector<std::int32_t>> WholeNumbersIn(std::string_view text, std::int32_t lowest,
                                                        std::int32_t highest);

/// A number that may have a point, "2.5", by the rules of `WholeNumberIn`. The bounds are finite.
std::optional<double> DecimalIn(std::string_view text, double lowest, double highest);

}  // namespace rbt
