// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rbt {

/// As many digits as a double holds for certain; what is written of one shows no more.
constexpr int kSignificantDigits = 15;

/// A number without its sign: d.ddd x 10^exponent.
struct SignificantDigits {
  std::string digits;  ///< `kSignificantDigits` of them; zeros at the end stay
  int exponent = 0;
};

/// Of a finite number, rounded half to even in its binary value; 0 has digits of 0 and the exponent 0.
SignificantDigits DigitsOf(double number);

}  // namespace rbt
