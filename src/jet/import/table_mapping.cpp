// SPDX-License-Identifier: MIT
#include "jet/import/table_mapping.h"

#include <algorithm>

#include <fmt/format.h>

#include "jet/properties.h"
#include "platform/pass_over_faults.h"
#include "platform/text/characters.h"

namespace rbt::jet {

namespace {

/// Words that stand for a number in default values.
struct DefaultWord {
  std::string_view word;
  std::string_view literal;
};
constexpr DefaultWord kDefaultWords[] = {{"true", "-1"}, {"yes", "-1"}, {"on", "-1"},    {"false", "0"},
                                         {"no", "0"},    {"off", "0"},  {"null", "NULL"}};

bool IsNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const bool digits = std::any_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  return digits && std::count(text.begin(), text.end(), '.') <= 1 &&
         text.find_first_not_of("0123456789.") == std::string_view::npos;
}

/// The text between double quotes in which a quote is doubled; nothing when it is no such literal.
std::optional<std::string> QuotedText(std::string_view literal) {
  if (literal.size() < 2 || literal.front() != '"' || literal.back() != '"') return std::nullopt;
  std::string text;
  for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
    text += literal[i];
    if (literal[i] != '"') continue;
    ++i;
    if (i + 1 >= literal.size() || literal[i] != '"') return std::nullopt;
  }
  return text;
}

class Mapper {
 public:
  Mapper(JetFile& file, const CatalogEntry& entry) : file_(file) {
    mapping_.source = ReadTableDefinition(file, entry.id & 0xFFFFFF);
    mapping_.source.name = entry.name;
    mapping_.target.name = entry.name;
    // Default values and rules are no reason to leave a table's rows where they are.
    const auto fault = PassOverFaultsOfContent([&] { properties_ = ReadProperties(file, entry.properties); });
    if (!fault) return;
    mapping_.warnings.push_back(
        fmt::format("table {}: default values and rules cannot be read: {}", entry.name, fault->what()));
  }

  TableMapping Map() {
    for (const Column& column : mapping_.source.columns) MapColumn(column);
    for (const Index& index : mapping_.source.indexes) MapIndex(index);
    return std::move(mapping_);
  }

 private:
  void NotTaken(const std::string& what) {
    mapping_.not_taken.push_back(fmt::format("table {}: {}", mapping_.source.name, what));
  }

  void MapColumn(const Column& column) {
    FieldDef field = column.ToField(file_.Version());
    const auto map = std::find_if(properties_.begin(), properties_.end(),
                                  [&](const PropertyMap& m) { return m.owner == column.name; });
    if (map != properties_.end()) {
      const std::string expression = PropertyText(file_, *map, "DefaultValue");
      field.default_value = LiteralOfDefault(expression);
      if (!expression.empty() && !field.default_value) {
        NotTaken(fmt::format("default {} of column {}", expression, column.name));
      }
      // Rows that are older than a rule may break it, and no row is to be lost for that.
      if (PropertyIsSet(*map, "Required")) NotTaken(fmt::format("rule of column {}: no null", column.name));
      const std::string rule = PropertyText(file_, *map, "ValidationRule");
      if (!rule.empty()) NotTaken(fmt::format("rule of column {}: {}", column.name, rule));
    }
    mapping_.target.fields.push_back(std::move(field));
  }

  void MapIndex(const Index& index) {
    const PhysicalIndex& physical = mapping_.source.physical_indexes[index.physical];
    const bool primary = index.kind == Index::Kind::primary;
    if (index.kind == Index::Kind::relationship) {
      NotTaken(fmt::format("relationship index {}", index.name));
      return;
    }
    if (!primary && !physical.unique) {
      NotTaken(fmt::format("index {}, which is no key", index.name));
      return;
    }
    IndexDef def;
    def.name = index.name;
    def.primary = primary;
    def.unique = true;
    for (const IndexColumn& key : physical.columns) {
      def.fields.push_back(mapping_.source.FindNumber(key.number)->name);
      def.descending.push_back(key.descending);
    }
    if (std::find(def.descending.begin(), def.descending.end(), true) == def.descending.end()) {
      def.descending.clear();
    }
    if (def.fields.empty()) return;
    if (primary) mapping_.key = index.physical;
    mapping_.target.indexes.push_back(std::move(def));
  }

  JetFile& file_;
  std::vector<PropertyMap> properties_;
  TableMapping mapping_;
};

}  // namespace

std::optional<std::string> LiteralOfDefault(const std::string& expression) {
  std::string_view text = Trim(expression);
  if (text.starts_with('=')) text = Trim(text.substr(1));
  if (text.empty()) return std::nullopt;
  if (const auto quoted = QuotedText(text)) return "'" + ReplaceAll(*quoted, "'", "''") + "'";
  if (IsNumber(text)) return std::string(text);
  const auto* word = std::find_if(std::begin(kDefaultWords), std::end(kDefaultWords),
                                  [&](const DefaultWord& w) { return EqualIgnoringCase(w.word, text); });
  if (word == std::end(kDefaultWords)) return std::nullopt;
  return std::string(word->literal);
}

TableMapping MapTable(JetFile& file, const CatalogEntry& entry) { return Mapper(file, entry).Map(); }

}  // namespace rbt::jet
