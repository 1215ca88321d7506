// SPDX-License-Identifier: MIT
#include "platform/numbers/number_words.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <string>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/numbers/significant_digits.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

template <typename T>
T Narrow(double x, std::string_view where) {
  const double whole = Round(x);
  if (!(whole >= std::numeric_limits<T>::min() && whole <= std::numeric_limits<T>::max())) {
    throw Fault(FaultKind::overflow,
                fmt::format("{}: {} in {} bits", where, ShortestDecimal(x), sizeof(T) * 8));
  }
  return static_cast<T>(whole);
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Length of the decimal number at the start of a text without blanks; 0 when there is none.
std::size_t DecimalLength(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t digits = 0;
  while (at < text.size() && IsDigit(text[at])) ++at, ++digits;
  if (at < text.size() && text[at] == '.') {
    ++at;
    while (at < text.size() && IsDigit(text[at])) ++at, ++digits;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E' || text[at] == 'd' || text[at] == 'D')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t first = exponent;
    while (exponent < text.size() && IsDigit(text[exponent])) ++exponent;
    if (exponent > first) at = exponent;
  }
  return at;
}

/// A number too large or too small for a double: infinity or zero, with its sign.
double BeyondDouble(const std::string& plain) {
  static const locale_t plain_locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return strtod_l(plain.c_str(), nullptr, plain_locale);
}

double ParseDecimal(std::string_view text) {
  std::string plain(text);
  for (char& c : plain) {
    if (c == 'd' || c == 'D') c = 'e';
  }
  const char* first = plain.data() + (plain[0] == '+' ? 1 : 0);
  double value = 0.0;
  const auto [end, error] = std::from_chars(first, plain.data() + plain.size(), value);
  if (error == std::errc::result_out_of_range) return BeyondDouble(plain);
  return end == first ? 0.0 : value;
}

/// "&HFF" and "&O17": the digits as a 16-bit or 32-bit pattern, as the runtime reads them.
double ParseRadix(std::string_view digits, int base) {
  std::uint32_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (value <= 0xFFFF && value >= 0x8000 && digits.size() <= (base == 16 ? 4U : 6U)) {
    return static_cast<std::int16_t>(value);
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace

double Fix(double x) { return std::trunc(x); }

double Int(double x) { return std::floor(x); }

double Round(double x) { return std::nearbyint(x); }

std::int16_t ToInt16(double x, std::string_view where) { return Narrow<std::int16_t>(x, where); }

std::int32_t ToInt32(double x, std::string_view where) { return Narrow<std::int32_t>(x, where); }

std::int32_t AddInt32(std::int32_t a, std::int32_t b, std::string_view where) {
  std::int32_t sum = 0;
  if (__builtin_add_overflow(a, b, &sum))
    throw Fault(FaultKind::overflow, fmt::format("{}: {} + {}", where, a, b));
  return sum;
}

std::int32_t MultiplyInt32(std::int32_t a, std::int32_t b, std::string_view where) {
  std::int32_t product = 0;
  if (__builtin_mul_overflow(a, b, &product)) {
    throw Fault(FaultKind::overflow, fmt::format("{}: {} x {}", where, a, b));
  }
  return product;
}

double LeadingNumber(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') plain.push_back(c);
  }
  if (plain.size() > 1 && plain[0] == '&') {
    const bool hexadecimal = plain[1] == 'H' || plain[1] == 'h';
    if (hexadecimal || plain[1] == 'O' || plain[1] == 'o') {
      const std::string_view digits = std::string_view(plain).substr(2);
      const std::size_t length =
          digits.find_first_not_of(hexadecimal ? "0123456789abcdefABCDEF" : "01234567");
      return ParseRadix(digits.substr(0, length), hexadecimal ? 16 : 8);
    }
  }
  const std::size_t length = DecimalLength(plain);
  return length == 0 ? 0.0 : ParseDecimal(std::string_view(plain).substr(0, length));
}

double NumberOfText(std::string_view text, std::string_view where) {
  std::string_view trimmed = text;
  while (!trimmed.empty() && (trimmed.front() == ' ' || trimmed.front() == '\t')) trimmed.remove_prefix(1);
  while (!trimmed.empty() && (trimmed.back() == ' ' || trimmed.back() == '\t')) trimmed.remove_suffix(1);
  if (EqualIgnoringCase(trimmed, "True")) return -1.0;
  if (EqualIgnoringCase(trimmed, "False")) return 0.0;
  std::string plain;
  for (const char c : trimmed) {
    if (c != ',' || plain.empty()) plain.push_back(c);
  }
  if (plain.empty() || DecimalLength(plain) != plain.size()) {
    throw Fault(FaultKind::type_mismatch, fmt::format("{}: \"{}\" is no number", where, text));
  }
  const double number = ParseDecimal(plain);
  if (std::isinf(number)) throw Fault(FaultKind::overflow, fmt::format("{}: \"{}\"", where, text));
  return number;
}

std::string ShortestDecimal(double x) {
  if (std::isnan(x)) return "NaN";
  if (std::isinf(x)) return x < 0 ? "-Infinity" : "Infinity";
  if (x == 0.0) return "0";
  auto [digits, exponent] = DigitsOf(x);
  digits.erase(digits.find_last_not_of('0') + 1);
  const std::string sign = x < 0 ? "-" : "";
  const int count = static_cast<int>(digits.size());
  const int places = count - exponent - 1;
  if (exponent >= kSignificantDigits || places > kSignificantDigits) {
    const std::string mantissa = count == 1 ? digits : digits.substr(0, 1) + "." + digits.substr(1);
    return fmt::format("{}{}E{}{:02}", sign, mantissa, exponent < 0 ? '-' : '+', std::abs(exponent));
  }
  if (exponent < 0) return sign + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  if (count <= exponent + 1)
    return sign + digits + std::string(static_cast<std::size_t>(exponent + 1 - count), '0');
  return sign + digits.substr(0, static_cast<std::size_t>(exponent) + 1) + "." +
         digits.substr(static_cast<std::size_t>(exponent) + 1);
}

}  // namespace rbt
