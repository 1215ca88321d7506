// SPDX-License-Identifier: MIT
#include "platform/numbers/number_mask.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include <fmt/format.h>

#include "platform/numbers/significant_digits.h"

namespace rbt {

namespace {

/// A decimal number: digits before and after the point, no leading zeros before it.
struct Decimal {
  bool negative = false;
  std::string whole;
  std::string fraction;
};

/// A mask taken apart: each place is a digit place, or literal text, left of the point or right of it.
struct Place {
  enum class Kind { optional_digit, forced_digit, literal };
  Kind kind = Kind::literal;
  std::string text;
};

struct Mask {
  std::vector<Place> whole;
  std::vector<Place> fraction;
  bool has_point = false;
  bool thousands = false;
};

Mask ParseMask(std::string_view text) {
  Mask mask;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::vector<Place>& side = mask.has_point ? mask.fraction : mask.whole;
    const char c = text[i];
    if (c == '#') {
      side.push_back({Place::Kind::optional_digit, ""});
    } else if (c == '0') {
      side.push_back({Place::Kind::forced_digit, ""});
    } else if (c == '.' && !mask.has_point) {
      mask.has_point = true;
    } else if (c == ',' && !mask.has_point) {
      mask.thousands = true;
    } else if (c == '\\' && i + 1 < text.size()) {
      side.push_back({Place::Kind::literal, std::string(1, text[++i])});
    } else {
      side.push_back({Place::Kind::literal, std::string(1, c)});
    }
  }
  return mask;
}

int Decimals(const Mask& mask) {
  return static_cast<int>(std::count_if(mask.fraction.begin(), mask.fraction.end(),
                                        [](const Place& p) { return p.kind != Place::Kind::literal; }));
}

/// Adds one to the last digit of a run of digits; a carry that runs out comes back as true.
bool Increment(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return false;
    }
    *digit = '0';
  }
  return true;
}

/// Halves away from zero, on the decimal digits.
void RoundTo(Decimal& number, int decimals) {
  const auto places = static_cast<std::size_t>(decimals);
  if (number.fraction.size() > places) {
    const bool up = number.fraction[places] >= '5';
    number.fraction.resize(places);
    if (up && Increment(number.fraction) && Increment(number.whole)) number.whole.insert(0, 1, '1');
  }
  number.fraction.resize(places, '0');
  number.whole.erase(0, std::min(number.whole.find_first_not_of('0'), number.whole.size()));
  if (number.whole.empty() && number.fraction.find_first_not_of('0') == std::string::npos)
    number.negative = false;
}

/// The digits of the places before the point, filled from the right; what has no place shows at the leftmost
/// one.
std::string FillWhole(const Mask& mask, const std::string& digits) {
  std::string reversed;
  std::size_t used = 0;
  auto left = static_cast<std::size_t>(std::count_if(
      mask.whole.begin(), mask.whole.end(), [](const Place& p) { return p.kind != Place::Kind::literal; }));
  const auto put = [&](char digit) {
    if (mask.thousands && used > 0 && used % 3 == 0) reversed.push_back(',');
    reversed.push_back(digit);
    ++used;
  };
  for (auto place = mask.whole.rbegin(); place != mask.whole.rend(); ++place) {
    if (place->kind == Place::Kind::literal) {
      reversed.append(place->text.rbegin(), place->text.rend());
      continue;
    }
    if (used < digits.size()) {
      put(digits[digits.size() - 1 - used]);
    } else if (place->kind == Place::Kind::forced_digit) {
      put('0');
    }
    if (--left == 0) {
      while (used < digits.size()) put(digits[digits.size() - 1 - used]);
    }
  }
  if (mask.whole.empty()) {
    while (used < digits.size()) put(digits[digits.size() - 1 - used]);
  }
  return {reversed.rbegin(), reversed.rend()};
}

std::string FillFraction(const Mask& mask, const std::string& digits) {
  // Optional places behind the last digit that counts stay empty.
  std::size_t shown = digits.size();
  std::vector<bool> forced;
  for (const Place& place : mask.fraction) {
    if (place.kind != Place::Kind::literal) forced.push_back(place.kind == Place::Kind::forced_digit);
  }
  while (shown > 0 && !forced[shown - 1] && digits[shown - 1] == '0') --shown;
  std::string text;
  std::size_t at = 0;
  for (const Place& place : mask.fraction) {
    if (place.kind == Place::Kind::literal) {
      text += place.text;
    } else if (at++ < shown) {
      text.push_back(digits[at - 1]);
    }
  }
  return text;
}

std::string Format(Decimal number, std::string_view mask_text) {
  const Mask mask = ParseMask(mask_text);
  RoundTo(number, Decimals(mask));
  std::string text = FillWhole(mask, number.whole);
  if (mask.has_point) text += "." + FillFraction(mask, number.fraction);
  return number.negative ? "-" + text : text;
}

/// A double stands for its decimal text of fifteen significant digits.
Decimal DecimalOf(double value) {
  auto [digits, exponent] = DigitsOf(value);
  Decimal number;
  number.negative = value < 0;
  if (exponent < 0) {
    number.fraction = std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  } else {
    const auto before = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < before) digits.append(before - digits.size(), '0');
    number.whole = digits.substr(0, before);
    number.fraction = digits.substr(before);
  }
  return number;
}

}  // namespace

std::string FormatNumber(double value, std::string_view mask) {
  if (!std::isfinite(value)) return fmt::format("{}", value);
  return Format(DecimalOf(value), mask);
}

std::string FormatNumber(Currency value, std::string_view mask) {
  const std::int64_t units = value.TenThousandths();
  const std::uint64_t magnitude =
      units < 0 ? 0 - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
  return Format({units < 0, std::to_string(magnitude / 10000), fmt::format("{:04}", magnitude % 10000)},
                mask);
}

std::string FormatNumber(std::int64_t value, std::string_view mask) {
  const std::uint64_t magnitude =
      value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
  return Format({value < 0, std::to_string(magnitude), ""}, mask);
}

}  // namespace rbt
