// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/numbers/currency.h"

namespace rbt {

/// Formats with a number mask, halves away from zero on the decimal value, no sign on a value that rounds to
/// zero. Masks: "#,##0", "#,###" (zero gives ""), "#,##0.00", "0.00", "0", "00", "000", "#.0", "##### t ##0
/// Kg", "##0 Kg"; any mix of `0`, `#`, one point, a comma between digits for thousands, and literal text
/// before, between and after the digits works alike. Digits fill the mask from the right; more digits than
/// places all show at the leftmost place; a mask without digit places shows its literal text alone, and `\x`
/// stands for a literal x. A double counts as its decimal text of 15 significant digits: 1.005 by "0.00" is
/// 1.01.
std::string FormatNumber(double value, std::string_view mask);
std::string FormatNumber(Currency value, std::string_view mask);
std::string FormatNumber(std::int64_t value, std::string_view mask);

}  // namespace rbt
