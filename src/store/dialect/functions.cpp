// SPDX-License-Identifier: MIT
#include "store/dialect/functions.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <new>
#include <string>
#include <string_view>

#include <fmt/format.h>
#include <sqlite3.h>

#include "platform/fault.h"
#include "platform/numbers/currency.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"

namespace rbt {
namespace {

/// The largest CURRENCY whose ten-thousandths a double still counts one by one.
constexpr std::int64_t kLargestTenThousandths = 9'000'000'000'000'000;

bool IsNullArgument(sqlite3_value* value) { return sqlite3_value_type(value) == SQLITE_NULL; }

std::string_view TextArgument(sqlite3_value* value) {
  const unsigned char* const text = sqlite3_value_text(value);
  if (text == nullptr) return {};
  return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

double NumberArgument(sqlite3_value* value, std::string_view where) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
      return sqlite3_value_double(value);
    case SQLITE_TEXT:
      return NumberOfText(TextArgument(value), where);
    default:
      throw Fault(FaultKind::type_mismatch, std::string(where));
  }
}

/// The text of a value the way `&` writes it: null is empty, numbers in their shortest decimal form.
void AppendText(sqlite3_value* value, std::string& text) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return;
    case SQLITE_FLOAT:
      text += ShortestDecimal(sqlite3_value_double(value));
      return;
    default:
      text += TextArgument(value);
  }
}

void ResultText(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void ResultFinite(sqlite3_context* context, double x, std::string_view where) {
  if (!std::isfinite(x)) throw Fault(FaultKind::overflow, std::string(where));
  sqlite3_result_double(context, x);
}

void Number(sqlite3_context* context, int, sqlite3_value** arguments) {
  const std::string_view digits = TextArgument(arguments[0]);
  double number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc{} || end != digits.data() + digits.size()) {
    throw Fault(FaultKind::overflow, std::string(digits));
  }
  sqlite3_result_double(context, number);
}

void Concatenate(sqlite3_context* context, int count, sqlite3_value** arguments) {
  constexpr std::size_t kUsualLength = 64;
  std::string text;
  text.reserve(kUsualLength);
  for (int i = 0; i < count; ++i) AppendText(arguments[i], text);
  ResultText(context, text);
}

void Divide(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0]) || IsNullArgument(arguments[1])) return;
  const double dividend = NumberArgument(arguments[0], "/");
  const double divisor = NumberArgument(arguments[1], "/");
  if (divisor == 0)
    throw Fault(FaultKind::division_by_zero, fmt::format("{} / 0", ShortestDecimal(dividend)));
  ResultFinite(context, dividend / divisor, "/");
}

/// `\` and MOD work on 32-bit whole numbers: both sides are rounded first, halves to even.
template <typename Operation>
void WholeOperation(sqlite3_context* context, sqlite3_value** arguments, std::string_view sign,
                    Operation operation) {
  if (IsNullArgument(arguments[0]) || IsNullArgument(arguments[1])) return;
  const std::int64_t dividend = ToInt32(NumberArgument(arguments[0], sign), sign);
  const std::int64_t divisor = ToInt32(NumberArgument(arguments[1], sign), sign);
  if (divisor == 0) throw Fault(FaultKind::division_by_zero, fmt::format("{} {} 0", dividend, sign));
  sqlite3_result_int64(context, operation(dividend, divisor));
}

void Quotient(sqlite3_context* context, int, sqlite3_value** arguments) {
  WholeOperation(context, arguments, "\\", [](std::int64_t a, std::int64_t b) { return a / b; });
}

void Remainder(sqlite3_context* context, int, sqlite3_value** arguments) {
  WholeOperation(context, arguments, "MOD", [](std::int64_t a, std::int64_t b) { return a % b; });
}

void FixNumber(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!IsNullArgument(arguments[0])) sqlite3_result_double(context, Fix(NumberArgument(arguments[0], "Fix")));
}

void IntNumber(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!IsNullArgument(arguments[0])) sqlite3_result_double(context, Int(NumberArgument(arguments[0], "Int")));
}

void Val(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) throw Fault(FaultKind::invalid_use_of_null, "Val");
  std::string text;
  AppendText(arguments[0], text);
  sqlite3_result_double(context, LeadingNumber(text));
}

/// (value, field): a number as it is, also one that was stored as a text.
void Summand(sqlite3_context* context, int, sqlite3_value** arguments) {
  const int type = sqlite3_value_type(arguments[0]);
  if (type == SQLITE_TEXT || type == SQLITE_BLOB) {
    sqlite3_result_double(context, NumberArgument(arguments[0], TextArgument(arguments[1])));
  } else {
    sqlite3_result_value(context, arguments[0]);
  }
}

/// (value, lowest, highest, field)
void ToWhole(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  const std::int64_t lowest = sqlite3_value_int64(arguments[1]);
  const std::int64_t highest = sqlite3_value_int64(arguments[2]);
  const std::string_view field = TextArgument(arguments[3]);
  // Both limits are 32-bit at most, so that a whole number that a double cannot tell apart is outside anyway.
  const double x = Round(NumberArgument(arguments[0], field));
  if (!(x >= static_cast<double>(lowest) && x <= static_cast<double>(highest))) {
    throw Fault(FaultKind::overflow, fmt::format("{} = {}", field, ShortestDecimal(x)));
  }
  sqlite3_result_int64(context, static_cast<std::int64_t>(x));
}

/// (value, field)
void ToCurrency(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  const std::string_view field = TextArgument(arguments[1]);
  const double x = NumberArgument(arguments[0], field);
  // The first test keeps the product below 64 bits, the second holds the limit itself.
  const bool in_reach = std::abs(x) < 1e12;
  const Currency currency = in_reach ? Currency::FromDouble(x) : Currency();
  if (!in_reach || std::abs(currency.TenThousandths()) > kLargestTenThousandths) {
    throw Fault(FaultKind::overflow, fmt::format("{} = {}", field, ShortestDecimal(x)));
  }
  sqlite3_result_double(context, currency.ToDouble());
}

/// (value, field)
void ToReal(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  const std::string_view field = TextArgument(arguments[1]);
  ResultFinite(context, NumberArgument(arguments[0], field), field);
}

/// (value, field)
void ToSingle(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  const std::string_view field = TextArgument(arguments[1]);
  const double x = NumberArgument(arguments[0], field);
  // A double beyond the range has no single; the conversion itself would be undefined.
  if (!(std::abs(x) <= static_cast<double>(std::numeric_limits<float>::max()))) {
    throw Fault(FaultKind::overflow, std::string(field));
  }
  sqlite3_result_double(context, static_cast<double>(static_cast<float>(x)));
}

/// (value, size or 0 for no limit, field)
void ToText(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  std::string text;
  AppendText(arguments[0], text);
  const auto size = static_cast<std::size_t>(sqlite3_value_int64(arguments[1]));
  // No text has more characters than bytes: most texts need no counting.
  if (size > 0 && text.size() > size && CharacterCount(text) > size) {
    throw Fault(FaultKind::database, fmt::format("the field {} is too small: it takes {} characters, not {}",
                                                 TextArgument(arguments[2]), size, CharacterCount(text)));
  }
  ResultText(context, text);
}

void MultiplyCurrency(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0]) || IsNullArgument(arguments[1])) return;
  const Currency product = Currency::FromDouble(NumberArgument(arguments[0], "*")) *
                           Currency::FromDouble(NumberArgument(arguments[1], "*"));
  sqlite3_result_double(context, product.ToDouble());
}

struct CurrencySum {
  std::int64_t ten_thousandths;
  bool has_value;
};

void AddCurrency(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  auto* const sum = static_cast<CurrencySum*>(sqlite3_aggregate_context(context, sizeof(CurrencySum)));
  if (sum == nullptr) throw std::bad_alloc();
  const Currency total = Currency::FromTenThousandths(sum->ten_thousandths) +
                         Currency::FromDouble(NumberArgument(arguments[0], "Sum"));
  *sum = {total.TenThousandths(), true};
}

void CurrencyTotal(sqlite3_context* context) {
  const auto* const sum = static_cast<const CurrencySum*>(sqlite3_aggregate_context(context, 0));
  if (sum == nullptr || !sum->has_value) return;
  sqlite3_result_double(context, Currency::FromTenThousandths(sum->ten_thousandths).ToDouble());
}

struct RealSum {
  double total;
  bool has_value;
};

void AddReal(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNullArgument(arguments[0])) return;
  auto* const sum = static_cast<RealSum*>(sqlite3_aggregate_context(context, sizeof(RealSum)));
  if (sum == nullptr) throw std::bad_alloc();
  *sum = {sum->total + NumberArgument(arguments[0], "Sum"), true};
}

void RealTotal(sqlite3_context* context) {
  const auto* const sum = static_cast<const RealSum*>(sqlite3_aggregate_context(context, 0));
  if (sum != nullptr && sum->has_value) ResultFinite(context, sum->total, "Sum");
}

/// SQLite calls C functions: a fault inside becomes the statement's error.
template <auto Function, typename... Arguments>
void Guarded(sqlite3_context* context, Arguments... arguments) {
  try {
    Function(context, arguments...);
  } catch (const Fault& fault) {
    sqlite3_result_error(context, fault.what(), -1);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

using ScalarFunction = void (*)(sqlite3_context*, int, sqlite3_value**);
using FinalFunction = void (*)(sqlite3_context*);

struct Scalar {
  const char* name;
  int arguments;  ///< -1 for any number
  ScalarFunction function;
};
constexpr Scalar kScalars[] = {
    {"jet_number", 1, Guarded<Number>},
    {"jet_concatenate", -1, Guarded<Concatenate>},
    {"jet_divide", 2, Guarded<Divide>},
    {"jet_quotient", 2, Guarded<Quotient>},
    {"jet_remainder", 2, Guarded<Remainder>},
    {"jet_fix", 1, Guarded<FixNumber>},
    {"jet_int", 1, Guarded<IntNumber>},
    {"jet_val", 1, Guarded<Val>},
    {"jet_to_whole", 4, Guarded<ToWhole>},
    {"jet_to_currency", 2, Guarded<ToCurrency>},
    {"jet_to_real", 2, Guarded<ToReal>},
    {"jet_to_single", 2, Guarded<ToSingle>},
    {"jet_to_text", 3, Guarded<ToText>},
    {"jet_summand", 2, Guarded<Summand>},
    {"jet_multiply_currency", 2, Guarded<MultiplyCurrency>},
};

struct Aggregate {
  const char* name;
  ScalarFunction step;
  FinalFunction final;
};
constexpr Aggregate kAggregates[] = {
    {"jet_sum_currency", Guarded<AddCurrency>, Guarded<CurrencyTotal>},
    {"jet_sum_real", Guarded<AddReal>, Guarded<RealTotal>},
};

void Check(sqlite3* connection, int result) {
  if (result != SQLITE_OK) throw Fault(FaultKind::database, sqlite3_errmsg(connection));
}

}  // namespace

void RegisterJetFunctions(sqlite3* connection) {
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  for (const Scalar& scalar : kScalars) {
    Check(connection, sqlite3_create_function_v2(connection, scalar.name, scalar.arguments, kFlags, nullptr,
                                                 scalar.function, nullptr, nullptr, nullptr));
  }
  for (const Aggregate& aggregate : kAggregates) {
    Check(connection, sqlite3_create_function_v2(connection, aggregate.name, 1, kFlags, nullptr, nullptr,
                                                 aggregate.step, aggregate.final, nullptr));
  }
}

}  // namespace rbt
