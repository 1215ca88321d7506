// SPDX-License-Identifier: MIT
#include "platform/numbers/significant_digits.h"

#include <charconv>
#include <cmath>
#include <string_view>

#include <fmt/format.h>

namespace rbt {

SignificantDigits DigitsOf(double number) {
  const std::string text = fmt::format("{:.{}e}", std::fabs(number), kSignificantDigits - 1);
  const std::size_t e = text.find('e');
  SignificantDigits taken;
  taken.digits = text.substr(0, 1) + text.substr(2, e - 2);
  std::string_view exponent = std::string_view(text).substr(e + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  std::from_chars(exponent.begin(), exponent.end(), taken.exponent);
  return taken;
}

}  // namespace rbt
