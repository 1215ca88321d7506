// SPDX-License-Identifier: MIT
#include "store/stored_value.h"

#include <cmath>
#include <limits>
#include <variant>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"

namespace rbt {
namespace {

bool IsWhole(FieldType type) { return WholeRangeOf(type).has_value(); }

bool IsText(FieldType type) {
  return type == FieldType::text || type == FieldType::memo || type == FieldType::guid ||
         type == FieldType::decimal;
}

Fault Mismatch(const FieldPlace& place, std::string_view found) {
  return {FaultKind::type_mismatch, fmt::format("{}: {}", place.Text(), found)};
}

Fault Overflow(const FieldPlace& place, double x) {
  return {FaultKind::overflow, fmt::format("{}: {}", place.Text(), ShortestDecimal(x))};
}

std::string TextAt(sqlite3_stmt* row, int column) {
  const unsigned char* const text = sqlite3_column_text(row, column);
  if (text == nullptr) return {};
  return {text, text + sqlite3_column_bytes(row, column)};
}

Bytes BytesAt(sqlite3_stmt* row, int column) {
  const auto* const bytes = static_cast<const unsigned char*>(sqlite3_column_blob(row, column));
  if (bytes == nullptr) return {};
  return {bytes, bytes + sqlite3_column_bytes(row, column)};
}

/// As the file holds it.
Value Raw(sqlite3_stmt* row, int column) {
  switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_column_int64(row, column)};
    case SQLITE_FLOAT:
      return sqlite3_column_double(row, column);
    case SQLITE_TEXT:
      return TextAt(row, column);
    case SQLITE_BLOB:
      return BytesAt(row, column);
    default:
      return {};
  }
}

std::int64_t RoundedWhole(double x, const FieldPlace& place) {
  constexpr double kBeyond = 9223372036854775808.0;  // 2^63
  const double rounded = Round(x);
  if (!(rounded >= -kBeyond && rounded < kBeyond)) throw Overflow(place, x);
  return static_cast<std::int64_t>(rounded);
}

Currency CheckedCurrency(double x, const FieldPlace& place) {
  if (!(std::fabs(x) <= static_cast<double>(kLargestCurrency))) throw Overflow(place, x);
  return Currency::FromDouble(x);
}

Value CheckedCurrency(const Value& value, const FieldPlace& place) {
  const Currency amount = CheckedCurrency(NumberOf(value, place.Text()), place);
  // An amount stays itself: the way through a double may be off by one ten-thousandth near the limit.
  return std::holds_alternative<Currency>(value) ? value : Value{amount};
}

double CheckedReal(FieldType type, double x, const FieldPlace& place) {
  if (type != FieldType::single) {
    if (!std::isfinite(x)) throw Overflow(place, x);
    return x;
  }
  if (!(std::fabs(x) <= static_cast<double>(std::numeric_limits<float>::max()))) throw Overflow(place, x);
  return static_cast<double>(static_cast<float>(x));
}

std::int64_t WholeOf(const Value& value, const FieldPlace& place) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  return RoundedWhole(NumberOf(value, place.Text()), place);
}

Value CheckedWhole(FieldType type, const Value& value, const FieldPlace& place) {
  if (type == FieldType::boolean) return std::int64_t{NumberOf(value, place.Text()) == 0.0 ? 0 : -1};
  const std::int64_t whole = WholeOf(value, place);
  const WholeRange range = *WholeRangeOf(type);
  if (whole < range.low || whole > range.high) {
    throw Fault{FaultKind::overflow, fmt::format("{}: {}", place.Text(), whole)};
  }
  return whole;
}

Fault TooSmall(const FieldDef& field, const FieldPlace& place) {
  return {FaultKind::database,
          fmt::format("{}: the field is too small for the value, {} at most", place.Text(), field.size)};
}

Value CheckedText(const FieldDef& field, const Value& value, const FieldPlace& place) {
  if (std::holds_alternative<Bytes>(value)) throw Mismatch(place, "bytes for a text");
  std::string text = TextOf(value);
  if (field.type == FieldType::decimal) {
    NumberOfText(text, place.Text());
  } else if (field.size > 0 && text.size() > static_cast<std::size_t>(field.size) &&
             CharacterCount(text) > static_cast<std::size_t>(field.size)) {
    throw TooSmall(field, place);
  }
  return text;
}

Value CheckedBytes(const FieldDef& field, const Value& value, const FieldPlace& place) {
  const auto* bytes = std::get_if<Bytes>(&value);
  if (bytes == nullptr) throw Mismatch(place, "no bytes");
  if (field.size > 0 && bytes->size() > static_cast<std::size_t>(field.size)) throw TooSmall(field, place);
  return value;
}

/// Where a number is read: a column of the current row, or a value that is handed to a function.
struct InColumn {
  sqlite3_stmt* row;
  int column;

  int Type() const { return sqlite3_column_type(row, column); }
  std::int64_t Whole() const { return sqlite3_column_int64(row, column); }
  double Real() const { return sqlite3_column_double(row, column); }
  std::string Text() const { return TextAt(row, column); }
};
struct InArgument {
  sqlite3_value* value;

  int Type() const { return sqlite3_value_type(value); }
  std::int64_t Whole() const { return sqlite3_value_int64(value); }
  double Real() const { return sqlite3_value_double(value); }
  std::string Text() const {
    const unsigned char* const text = sqlite3_value_text(value);
    if (text == nullptr) return {};
    return {text, text + sqlite3_value_bytes(value)};
  }
};

/// Of a value that is not null.
template <typename In>
double NumberIn(const In& in, const FieldPlace& place) {
  switch (in.Type()) {
    case SQLITE_TEXT:
      return NumberOfText(in.Text(), place.Text());
    case SQLITE_BLOB:
      throw Mismatch(place, "bytes for a number");
    default:
      return in.Real();
  }
}

double NumberAt(sqlite3_stmt* row, int column, const FieldPlace& place) {
  return NumberIn(InColumn{row, column}, place);
}

template <typename In>
std::optional<double> DoubleIn(const In& in, const FieldPlace& place) {
  if (in.Type() == SQLITE_NULL) return std::nullopt;
  return NumberIn(in, place);
}

template <typename In>
std::optional<std::int32_t> Int32In(const In& in, const FieldPlace& place) {
  if (in.Type() == SQLITE_INTEGER) return NarrowInt32(in.Whole(), place);
  const auto number = DoubleIn(in, place);
  if (!number) return std::nullopt;
  return ToInt32(*number, place.Text());
}

}  // namespace

std::string FieldPlace::Text() const {
  return table.empty() ? std::string(field) : fmt::format("{}.{}", table, field);
}

std::int32_t NarrowInt32(std::int64_t whole, const FieldPlace& place) {
  const auto narrow = static_cast<std::int32_t>(whole);
  if (narrow != whole) throw Fault{FaultKind::overflow, fmt::format("{}: {}", place.Text(), whole)};
  return narrow;
}

std::optional<double> ReadDouble(sqlite3_stmt* row, int column, const FieldPlace& place) {
  return DoubleIn(InColumn{row, column}, place);
}

std::optional<std::int32_t> ReadInt32(sqlite3_stmt* row, int column, const FieldPlace& place) {
  return Int32In(InColumn{row, column}, place);
}

std::optional<double> ReadDouble(sqlite3_value* value, const FieldPlace& place) {
  return DoubleIn(InArgument{value}, place);
}

std::optional<std::int32_t> ReadInt32(sqlite3_value* value, const FieldPlace& place) {
  return Int32In(InArgument{value}, place);
}

std::optional<std::string> ReadText(sqlite3_stmt* row, int column, const FieldPlace& place) {
  switch (sqlite3_column_type(row, column)) {
    case SQLITE_NULL:
      return std::nullopt;
    case SQLITE_TEXT:
      return TextAt(row, column);
    case SQLITE_BLOB:
      throw Mismatch(place, "bytes for a text");
    default:
      return TextOf(Raw(row, column));
  }
}

Value ReadStored(sqlite3_stmt* row, int column, const FieldDef* field, const FieldPlace& place) {
  const int stored = sqlite3_column_type(row, column);
  if (stored == SQLITE_NULL) return {};
  if (field == nullptr) return Raw(row, column);
  if (IsText(field->type)) return *ReadText(row, column, place);
  if (IsWhole(field->type)) {
    if (stored == SQLITE_INTEGER) return std::int64_t{sqlite3_column_int64(row, column)};
    return RoundedWhole(NumberAt(row, column, place), place);
  }
  if (field->type == FieldType::binary || field->type == FieldType::ole) return BytesAt(row, column);
  const double number = NumberAt(row, column, place);
  if (field->type == FieldType::currency) return CheckedCurrency(number, place);
  return number;
}

Value CheckedForField(const FieldDef& field, const Value& value, const FieldPlace& place) {
  if (IsNull(value)) {
    if (field.required) throw Fault{FaultKind::invalid_use_of_null, place.Text()};
    return value;
  }
  if (IsText(field.type)) return CheckedText(field, value, place);
  if (IsWhole(field.type)) return CheckedWhole(field.type, value, place);
  switch (field.type) {
    case FieldType::currency:
      return CheckedCurrency(value, place);
    case FieldType::binary:
    case FieldType::ole:
      return CheckedBytes(field, value, place);
    default:
      return CheckedReal(field.type, NumberOf(value, place.Text()), place);
  }
}

bool SameAsStored(sqlite3_stmt* row, int column, const Value& value) {
  struct Comparison {
    sqlite3_stmt* row;
    int column;
    int stored;
    bool operator()(std::monostate) const { return stored == SQLITE_NULL; }
    bool operator()(std::int64_t x) const {
      if (stored == SQLITE_INTEGER) return sqlite3_column_int64(row, column) == x;
      return stored == SQLITE_FLOAT && sqlite3_column_double(row, column) == static_cast<double>(x);
    }
    bool operator()(double x) const {
      return (stored == SQLITE_INTEGER || stored == SQLITE_FLOAT) && sqlite3_column_double(row, column) == x;
    }
    bool operator()(Currency x) const { return (*this)(x.ToDouble()); }
    bool operator()(const std::string& x) const { return stored == SQLITE_TEXT && TextAt(row, column) == x; }
    bool operator()(const Bytes& x) const { return stored == SQLITE_BLOB && BytesAt(row, column) == x; }
  };
  return std::visit(Comparison{row, column, sqlite3_column_type(row, column)}, value);
}

}  // namespace rbt
