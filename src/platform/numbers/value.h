// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/numbers/currency.h"

namespace rbt {

using Bytes = std::vector<unsigned char>;

/// One field of a row: null, a whole number, a double, a Currency, a text (UTF-8) or bytes. Null is a value.
using Value = std::variant<std::monostate, std::int64_t, double, Currency, std::string, Bytes>;

/// True for null alone: an empty text is a value.
inline bool IsNull(const Value& value) { return std::holds_alternative<std::monostate>(value); }

/// The number in a value; a text goes through `NumberOfText`. Null throws `invalid use of null`, bytes and a
/// text that is no number `type mismatch`.
double NumberOf(const Value& value, std::string_view where);
/// As `NumberOf`, rounded halves to even into a 32-bit integer; beyond it `overflow`.
std::int32_t Int32Of(const Value& value, std::string_view where);
/// The amount in a value, null is 0: a Currency as it is, any other number as `Currency::FromDouble` takes
/// it.
Currency AmountOf(const Value& value, std::string_view where);
/// The text of a value: null is empty, numbers in their shortest decimal form.
std::string TextOf(const Value& value);

}  // namespace rbt
