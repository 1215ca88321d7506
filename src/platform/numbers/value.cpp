// SPDX-License-Identifier: MIT
#include "platform/numbers/value.h"

#include "platform/fault.h"
#include "platform/numbers/number_words.h"

namespace rbt {

double NumberOf(const Value& value, std::string_view where) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* currency = std::get_if<Currency>(&value)) return currency->ToDouble();
  if (const auto* text = std::get_if<std::string>(&value)) return NumberOfText(*text, where);
  if (IsNull(value)) throw Fault(FaultKind::invalid_use_of_null, std::string(where));
  throw Fault(FaultKind::type_mismatch, std::string(where) + ": bytes are no number");
}

std::int32_t Int32Of(const Value& value, std::string_view where) {
  return ToInt32(NumberOf(value, where), where);
}

Currency AmountOf(const Value& value, std::string_view where) {
  if (const auto* exact = std::get_if<Currency>(&value)) return *exact;
  return IsNull(value) ? Currency() : Currency::FromDouble(NumberOf(value, where));
}

std::string TextOf(const Value& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* real = std::get_if<double>(&value)) return ShortestDecimal(*real);
  if (const auto* currency = std::get_if<Currency>(&value)) return currency->ToText();
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* bytes = std::get_if<Bytes>(&value)) return {bytes->begin(), bytes->end()};
  return {};
}

}  // namespace rbt
