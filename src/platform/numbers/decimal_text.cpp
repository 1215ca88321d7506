// SPDX-License-Identifier: MIT
#include "platform/numbers/decimal_text.h"

#include <charconv>

namespace rbt {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kDigitsAndPoint = "0123456789.";

/// Some of the characters, a minus before them or none.
bool IsMadeOf(std::string_view text, std::string_view characters) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

template <typename Number>
std::optional<Number> NumberIn(std::string_view text, std::string_view characters, Number lowest,
                               Number highest) {
  if (!IsMadeOf(text, characters) || (lowest >= 0 && text.starts_with('-'))) return std::nullopt;
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool is_whole_text = error == std::errc() && end == text.data() + text.size();
  if (!is_whole_text || number < lowest || number > highest) return std::nullopt;
  return number;
}

}  // namespace

bool IsWholeNumber(std::string_view text) { return IsMadeOf(text, kDigits); }

std::optional<std::int32_t> WholeNumberIn(std::string_view text, std::int32_t lowest, std::int32_t highest) {
  return NumberIn(text, kDigits, lowest, highest);
}

std::optional<std::vector<std::int32_t>> WholeNumbersIn(std::string_view text, std::int32_t lowest,
                                                        std::int32_t highest) {
  std::vector<std::int32_t> numbers;
  for (bool more = true; more;) {
    const std::size_t comma = text.find(',');
    more = comma != std::string_view::npos;
    const std::optional<std::int32_t> number = WholeNumberIn(text.substr(0, comma), lowest, highest);
    if (!number) return std::nullopt;
    numbers.push_back(*number);
    if (more) text.remove_prefix(comma + 1);
  }
  return numbers;
}

std::optional<double> DecimalIn(std::string_view text, double lowest, double highest) {
  return NumberIn(text, kDigitsAndPoint, lowest, highest);
}

}  // namespace rbt
