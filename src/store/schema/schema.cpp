// SPDX-License-Identifier: MIT
#include "store/schema/schema.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt {
namespace {

/// How a type word takes its parentheses: TEXT(50), DECIMAL(18,4), LONG.
enum class Extent { none, size, precision };

struct TypeWord {
  std::string_view word;
  FieldType type;
  Extent extent = Extent::none;
  bool autonumber = false;
};

/// The first word of a type is the one that stands in a file; the others are Jet's in DDL statements.
constexpr TypeWord kTypeWords[] = {
    {"BOOLEAN", FieldType::boolean},
    {"BIT", FieldType::boolean},
    {"LOGICAL", FieldType::boolean},
    {"YESNO", FieldType::boolean},
    {"BYTE", FieldType::byte},
    {"SHORT", FieldType::integer16},
    {"SMALLINT", FieldType::integer16},
    {"LONG", FieldType::integer32},
    {"INTEGER", FieldType::integer32},
    {"INT", FieldType::integer32},
    {"COUNTER_LONG", FieldType::integer32, Extent::none, true},
    {"AUTOINCREMENT", FieldType::integer32, Extent::none, true},
    {"COUNTER", FieldType::integer32, Extent::none, true},
    {"SINGLE", FieldType::single},
    {"REAL", FieldType::single},
    {"DOUBLE", FieldType::real},
    {"FLOAT", FieldType::real},
    {"NUMBER", FieldType::real},
    {"CURRENCY", FieldType::currency},
    {"MONEY", FieldType::currency},
    {"DATETIME", FieldType::date_time},
    {"DATE", FieldType::date_time},
    {"TIME", FieldType::date_time},
    {"DECIMAL_TEXT", FieldType::decimal, Extent::precision},
    {"DECIMAL", FieldType::decimal, Extent::precision},
    {"TEXT", FieldType::text, Extent::size},
    {"CHAR", FieldType::text, Extent::size},
    {"VARCHAR", FieldType::text, Extent::size},
    {"MEMO_TEXT", FieldType::memo},
    {"MEMO", FieldType::memo},
    {"LONGTEXT", FieldType::memo},
    {"GUID_TEXT", FieldType::guid},
    {"GUID", FieldType::guid},
    {"BINARY_BLOB", FieldType::binary, Extent::size},
    {"BINARY", FieldType::binary, Extent::size},
    {"VARBINARY", FieldType::binary, Extent::size},
    {"OLE_BLOB", FieldType::ole},
    {"LONGBINARY", FieldType::ole},
};

constexpr int kMaxTextSize = 255;
constexpr int kMaxBinarySize = 510;
constexpr int kMaxPrecision = 28;
constexpr int kDefaultPrecision = 18;

int LargestSize(FieldType type) { return type == FieldType::text ? kMaxTextSize : kMaxBinarySize; }

/// The whole numbers between the parentheses of a type, one or two; nothing when they are malformed.
std::optional<std::vector<int>> ParseExtent(std::string_view inside) {
  std::vector<int> numbers;
  while (true) {
    const std::size_t comma = std::min(inside.find(','), inside.size());
    const std::string_view digits = Trim(inside.substr(0, comma));
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size() || number < 0) return std::nullopt;
    numbers.push_back(number);
    if (comma == inside.size()) return numbers;
    inside.remove_prefix(comma + 1);
  }
}

bool ApplyExtent(const TypeWord& word, const std::vector<int>& numbers, FieldDef& field) {
  switch (word.extent) {
    case Extent::none:
      return numbers.empty();
    case Extent::size:
      if (numbers.size() > 1) return false;
      field.size = numbers.empty() ? LargestSize(word.type) : numbers[0];
      return field.size >= 1 && field.size <= LargestSize(word.type);
    case Extent::precision:
      if (numbers.size() > 2) return false;
      field.size = numbers.empty() ? kDefaultPrecision : numbers[0];
      field.scale = numbers.size() == 2 ? numbers[1] : 0;
      return field.size >= 1 && field.size <= kMaxPrecision && field.scale <= field.size;
  }
  return false;
}

}  // namespace

std::optional<WholeRange> WholeRangeOf(FieldType type) {
  using Short = std::numeric_limits<std::int16_t>;
  using Long = std::numeric_limits<std::int32_t>;
  switch (type) {
    case FieldType::boolean:
      return WholeRange{-1, 0};
    case FieldType::byte:
      return WholeRange{0, 255};
    case FieldType::integer16:
      return WholeRange{Short::min(), Short::max()};
    case FieldType::integer32:
      return WholeRange{Long::min(), Long::max()};
    default:
      return std::nullopt;
  }
}

const FieldDef* TableDef::FindField(std::string_view field_name) const {
  // Most are asked for as they are written, which is seen without folding every name.
  const auto exact = std::ranges::find(fields, field_name, &FieldDef::name);
  if (exact != fields.end()) return &*exact;
  const std::string wanted = FoldIdentifier(field_name);
  const auto found = std::ranges::find_if(
      fields, [&](const FieldDef& field) { return FoldIdentifier(field.name) == wanted; });
  return found == fields.end() ? nullptr : &*found;
}

std::vector<std::string> TableDef::FieldNames() const {
  std::vector<std::string> names;
  names.reserve(fields.size());
  for (const FieldDef& field : fields) names.push_back(field.name);
  return names;
}

std::string DeclaredType(const FieldDef& field) {
  const auto* const word = std::ranges::find_if(kTypeWords, [&](const TypeWord& candidate) {
    return candidate.type == field.type && candidate.autonumber == field.autonumber;
  });
  if (word == std::end(kTypeWords)) return "LONG";
  switch (word->extent) {
    case Extent::size:
      return fmt::format("{}({})", word->word, field.size > 0 ? field.size : LargestSize(field.type));
    case Extent::precision:
      return fmt::format("{}({},{})", word->word, field.size > 0 ? field.size : kDefaultPrecision,
                         field.scale);
    case Extent::none:
      break;
  }
  return std::string(word->word);
}

std::optional<FieldDef> FieldOfDeclaredType(std::string_view declared) {
  declared = Trim(declared);
  const std::size_t open = std::min(declared.find('('), declared.size());
  std::vector<int> numbers;
  if (open < declared.size()) {
    if (declared.back() != ')') return std::nullopt;
    const auto parsed = ParseExtent(declared.substr(open + 1, declared.size() - open - 2));
    if (!parsed) return std::nullopt;
    numbers = *parsed;
  }
  const std::string_view name = Trim(declared.substr(0, open));
  const auto* const word = std::ranges::find_if(
      kTypeWords, [&](const TypeWord& candidate) { return EqualIgnoringCase(candidate.word, name); });
  if (word == std::end(kTypeWords)) return std::nullopt;
  FieldDef field;
  field.type = word->type;
  field.autonumber = word->autonumber;
  if (!ApplyExtent(*word, numbers, field)) return std::nullopt;
  return field;
}

}  // namespace rbt
