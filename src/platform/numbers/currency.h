// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace rbt {

/// Fixed-point decimal with four places: a signed 64-bit count of ten-thousandths. Weights in kilograms are
/// held in it. Every operation that leaves the 64-bit range throws the `overflow` fault.
class Currency {
 public:
  constexpr Currency() = default;

  static constexpr Currency FromTenThousandths(std::int64_t units) { return Currency(units); }
  /// A whole number of units, for instance kilograms.
  static Currency FromInteger(std::int64_t whole);
  /// nearbyint(x * 10000.0): one multiplication in double, halves to even. NaN and values beyond 64 bits
  /// overflow.
  static Currency FromDouble(double x);

  constexpr std::int64_t TenThousandths() const { return units_; }
  /// The double nearest to units / 10000.
  double ToDouble() const { return static_cast<double>(units_) / 10000.0; }
  /// Shortest decimal text: "12", "-0.5", "3.1416".
  std::string ToText() const;

  /// To four places, halves to even.
  Currency operator*(Currency other) const;
  Currency operator-() const;
  Currency& operator+=(Currency other);
  Currency& operator-=(Currency other);
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  friend Currency operator-(Currency a, Currency b) { return a -= b; }
  // clang-tidy 14 takes the literal 0 of a rewritten comparison for a null pointer.
  friend constexpr auto operator<=>(Currency, Currency) = default;  // NOLINT(modernize-use-nullptr)

 private:
  explicit constexpr Currency(std::int64_t units) : units_(units) {}

  std::int64_t units_ = 0;
};

/// Fix(x + 0.5) as a whole number of units: half a kilogram and more goes up, and a negative weight moves
/// towards zero after the half is added (-1.6 gives -1).
Currency WholeKilograms(Currency x);

}  // namespace rbt
