// SPDX-License-Identifier: MIT
#include "store/dialect/assignment.h"

#include <cstdint>

#include <fmt/format.h>

#include "store/dialect/quoting.h"

namespace rbt::dialect {
namespace {

/// The smallest range that surely holds the value; null when nothing is known.
std::optional<WholeRange> KnownRange(const WrittenValue& value) {
  if (value.whole) return WholeRange{*value.whole, *value.whole};
  return value.field == nullptr ? std::nullopt : WholeRangeOf(value.field->type);
}

bool Within(const std::optional<WholeRange>& range, std::int64_t low, std::int64_t high) {
  return range && range->low >= low && range->high <= high;
}

/// True when the value is known to fit before the statement runs.
bool Fits(const WrittenValue& value, const FieldDef& target) {
  if (value.value == ValueClass::null) return true;
  if (value.field != nullptr && value.field->type == target.type) {
    return value.field->size <= target.size || target.size == 0;
  }
  switch (target.type) {
    case FieldType::byte:
    case FieldType::integer16:
    case FieldType::integer32: {
      const WholeRange range = *WholeRangeOf(target.type);
      return Within(KnownRange(value), range.low, range.high);
    }
    case FieldType::currency:
      return Within(KnownRange(value), -kLargestCurrency, kLargestCurrency);
    case FieldType::real:
    case FieldType::date_time:
      return IsNumber(value.value) && (value.field != nullptr || value.whole);
    case FieldType::boolean:
      return value.value == ValueClass::boolean;
    case FieldType::text:
      return value.value == ValueClass::text && value.longest &&
             *value.longest <= static_cast<std::size_t>(target.size);
    case FieldType::memo:
      return value.value == ValueClass::text;
    default:
      return false;
  }
}

/// The call that checks and converts, or nothing when no value of that class can become the target's type.
std::optional<std::string> Conversion(const WrittenValue& value, const FieldDef& target) {
  if (value.value == ValueClass::other) return std::nullopt;
  const std::string name = QuoteText(target.name);
  switch (target.type) {
    case FieldType::byte:
    case FieldType::integer16:
    case FieldType::integer32: {
      const WholeRange range = *WholeRangeOf(target.type);
      return fmt::format("jet_to_whole({}, {}, {}, {})", value.sql, range.low, range.high, name);
    }
    case FieldType::currency:
      return fmt::format("jet_to_currency({}, {})", value.sql, name);
    case FieldType::single:
      return fmt::format("jet_to_single({}, {})", value.sql, name);
    case FieldType::real:
      return fmt::format("jet_to_real({}, {})", value.sql, name);
    case FieldType::text:
    case FieldType::memo:
      return fmt::format("jet_to_text({}, {}, {})", value.sql, target.size, name);
    case FieldType::boolean:
      if (!IsNumber(value.value)) return std::nullopt;
      return fmt::format("(-({} <> 0))", value.sql);
    case FieldType::date_time:
      if (!IsNumber(value.value)) return std::nullopt;
      return fmt::format("jet_to_real({}, {})", value.sql, name);
    default:
      return std::nullopt;
  }
}

}  // namespace

WrittenValue AssignedValue(const WrittenValue& value, const FieldDef& target, std::string_view statement,
                           Place place) {
  if (Fits(value, target)) {
    if (target.type != FieldType::real || value.value == ValueClass::real) return value;
    return {.sql = fmt::format("CAST({} AS REAL)", value.sql), .value = ValueClass::real};
  }
  std::optional<std::string> converted = Conversion(value, target);
  if (!converted) {
    Refuse(statement, place, fmt::format("no value for {}", target.name), FaultKind::type_mismatch);
  }
  return {.sql = std::move(*converted), .value = ClassOf(target.type), .may_fault = true};
}

}  // namespace rbt::dialect
