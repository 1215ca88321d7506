// SPDX-License-Identifier: MIT
#include "store/schema_cache.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/quoting.h"
#include "store/table_sql.h"

namespace rbt {
namespace {

/// Words that mean something else to Jet than to the SQLite file in which they stand.
struct SqliteWord {
  std::string_view word;
  FieldType type;
};
constexpr std::array<SqliteWord, 7> kSqliteWords = {{
    {"INT", FieldType::integer32},
    {"BIGINT", FieldType::integer32},
    {"REAL", FieldType::real},
    {"FLOAT", FieldType::real},
    {"NUMERIC", FieldType::real},
    {"DECIMAL", FieldType::real},
    {"BLOB", FieldType::ole},
}};

std::string_view WordOf(std::string_view declared) { return Trim(declared.substr(0, declared.find('('))); }

std::optional<FieldType> SqliteTypeOf(std::string_view declared) {
  const std::string_view word = WordOf(declared);
  for (const SqliteWord& known : kSqliteWords) {
    if (EqualIgnoringCase(word, known.word)) return known.type;
  }
  return std::nullopt;
}

/// SQLite's own rule for a type it was not told of: by parts of its words.
FieldType TypeByAffinity(std::string_view declared) {
  const std::string folded = FoldIdentifier(declared);
  const auto has = [&](std::string_view part) { return folded.find(part) != std::string::npos; };
  if (has("int")) return FieldType::integer32;
  if (has("char") || has("clob") || has("text") || folded.empty()) return FieldType::memo;
  if (has("blob")) return FieldType::ole;
  return FieldType::real;
}

/// A default as an SQL literal; SQLite's older double-quoted text becomes a text literal.
std::string DefaultLiteral(const std::string& text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
  std::string plain;
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    if (text[i] == '"' && text[i + 1] == '"' && i + 2 < text.size()) ++i;
    plain += text[i];
  }
  return dialect::QuoteText(plain);
}

/// Tables that the file keeps for itself.
bool IsOfTheFile(std::string_view name) {
  constexpr std::string_view kPrefix = "sqlite_";
  return EqualIgnoringCase(name.substr(0, kPrefix.size()), kPrefix);
}

/// Reads one table of a file.
class TableReader {
 public:
  /// `listed` are the indexes of the whole file, in the order of their creation.
  TableReader(const Connection& connection, const std::vector<ListedIndex>& listed)
      : connection_(connection), listed_(listed) {}

  StoredTable Read(const std::string& name, const std::string& sql) const {
    const TableText text = ParseTableText(sql);
    StoredTable table;
    table.def.name = name;
    table.beyond_table_def = text.beyond_table_def;
    const std::vector<std::string> key_fields = ReadFields(table, text);
    ReadIndexes(table, text, key_fields);
    return table;
  }

 private:
  /// What SQLite tells of a table or an index.
  Statement Ask(std::string_view pragma, std::string_view name) const {
    return connection_.Prepare(fmt::format("PRAGMA main.{}({})", pragma, dialect::QuoteName(name)));
  }

  /// Returns the fields of the primary key in the key's order.
  std::vector<std::string> ReadFields(StoredTable& table, const TableText& text) const {
    enum Column { name = 1, type, not_null, default_value, key_place, hidden };
    std::vector<std::pair<std::int64_t, std::string>> key;
    Statement columns = Ask("table_xinfo", table.def.name);
    while (columns.Step()) {
      if (columns.Integer(hidden) != 0) continue;
      const std::string declared = columns.Text(type);
      FieldDef field = FieldOfColumn(columns.Text(name), declared);
      const auto& of_key = text.key_columns_not_null;
      field.required = columns.Integer(not_null) != 0 &&
                       std::find(of_key.begin(), of_key.end(), field.name) == of_key.end();
      if (!columns.IsNull(default_value)) field.default_value = DefaultLiteral(columns.Text(default_value));
      if (columns.Integer(key_place) != 0) key.emplace_back(columns.Integer(key_place), field.name);
      if (columns.Integer(key_place) != 0 && text.autoincrement) field.autonumber = true;
      table.declared_types.push_back(declared);
      table.def.fields.push_back(std::move(field));
    }
    std::sort(key.begin(), key.end());
    std::vector<std::string> names;
    names.reserve(key.size());
    for (auto& [place, name] : key) names.push_back(std::move(name));
    return names;
  }

  /// An index of a table as SQLite tells it.
  struct Told {
    std::size_t place = 0;  ///< among those of the file
    std::string name;
    bool unique = false;
    std::string origin;
  };

  /// In the order of their creation.
  std::vector<Told> ToldIndexes(const std::string& table) const {
    enum Column { name = 1, unique, origin };
    std::vector<Told> told;
    Statement indexes = Ask("index_list", table);
    while (indexes.Step()) {
      const std::string stored_name = indexes.Text(name);
      const auto found = std::ranges::find(listed_, stored_name, &ListedIndex::name);
      told.push_back({static_cast<std::size_t>(found - listed_.begin()), stored_name,
                      indexes.Integer(unique) != 0, indexes.Text(origin)});
    }
    std::ranges::sort(told, {}, &Told::place);
    return told;
  }

  void ReadIndexes(StoredTable& table, const TableText& text,
                   const std::vector<std::string>& key_fields) const {
    const std::string key_name = text.key_name.value_or(std::string(kDefaultKeyName));
    bool key_found = false;
    std::size_t unique_constraint = 0;
    for (const Told& told : ToldIndexes(table.def.name)) {
      IndexDef index;
      index.primary = told.origin == "pk";
      index.unique = told.unique;
      index.name = index.primary ? key_name : IndexNameOf(table.def.name, told.name);
      if (told.origin == "u" && unique_constraint < text.unique_constraints.size()) {
        index.name = text.unique_constraints[unique_constraint++].name.value_or(index.name);
      }
      ReadIndexFields(index, told.name);
      key_found = key_found || index.primary;
      table.def.indexes.push_back(std::move(index));
      table.indexes.push_back({told.name, told.place < listed_.size() ? listed_[told.place].sql : ""});
    }
    if (key_found || key_fields.empty()) return;
    // A key that is the row's own number has no index in the file.
    table.def.indexes.insert(table.def.indexes.begin(), {key_name, true, true, key_fields, {}});
    table.indexes.insert(table.indexes.begin(), StoredTable::Index{});
  }

  void ReadIndexFields(IndexDef& index, const std::string& stored_name) const {
    enum Column { name = 2, descends, key = 5 };
    Statement fields = Ask("index_xinfo", stored_name);
    while (fields.Step()) {
      if (fields.Integer(key) == 0 || fields.IsNull(name)) continue;
      index.fields.push_back(fields.Text(name));
      index.descending.push_back(fields.Integer(descends) != 0);
    }
    const auto& descending = index.descending;
    if (std::find(descending.begin(), descending.end(), true) == descending.end()) index.descending.clear();
  }

  const Connection& connection_;
  const std::vector<ListedIndex>& listed_;
};

}  // namespace

FieldDef FieldOfColumn(std::string name, std::string_view declared) {
  FieldDef field;
  if (const auto type = SqliteTypeOf(declared)) {
    field.type = *type;
  } else if (const auto known = FieldOfDeclaredType(declared)) {
    field = *known;
  } else {
    field.type = TypeByAffinity(declared);
  }
  field.name = std::move(name);
  return field;
}

bool HasKnownType(std::string_view declared) {
  return SqliteTypeOf(declared).has_value() || FieldOfDeclaredType(declared).has_value();
}

Statement& SchemaCache::AskVersion() {
  if (!ask_version_) ask_version_ = connection_.Prepare("PRAGMA schema_version");
  ask_version_.Step();
  return ask_version_;
}

void SchemaCache::Renew() {
  const std::int64_t version = ask_version_.Integer(0);
  if (version == version_) return;
  version_ = kUnknown;
  tables_.clear();
  indexes_.clear();
  Statement entries = connection_.Prepare(
      "SELECT type = 'table', name, tbl_name, sql FROM sqlite_master WHERE type IN ('table', 'index') ORDER "
      "BY rowid");
  while (entries.Step()) {
    std::string name = entries.Text(1);
    if (entries.Integer(0) == 0) {
      indexes_.push_back({std::move(name), entries.Text(2), entries.Text(3)});
    } else if (!IsOfTheFile(name)) {
      std::string folded = FoldIdentifier(name);
      tables_.push_back({std::move(name), std::move(folded), entries.Text(3), nullptr});
    }
  }
  version_ = version;
}

const StoredTable& SchemaCache::Read(Listed& listed) const {
  if (!listed.table) {
    listed.table =
        std::make_unique<const StoredTable>(TableReader(connection_, indexes_).Read(listed.name, listed.sql));
  }
  return *listed.table;
}

const StoredTable* SchemaCache::FindStored(std::string_view table) const {
  const std::string folded = FoldIdentifier(table);
  const auto found = std::ranges::find(tables_, folded, &Listed::folded_name);
  return found == tables_.end() ? nullptr : &Read(*found);
}

const TableDef* SchemaCache::Find(std::string_view table) const {
  const StoredTable* const stored = FindStored(table);
  return stored == nullptr ? nullptr : &stored->def;
}

std::vector<TableDef> SchemaCache::TableDefs() const {
  std::vector<TableDef> tables;
  tables.reserve(tables_.size());
  for (Listed& listed : tables_) {
    if (!IsInternalTable(listed.name)) tables.push_back(Read(listed).def);
  }
  return tables;
}

std::map<std::string, std::string> SchemaCache::TableTexts() const {
  std::map<std::string, std::string> texts;
  for (const Listed& table : tables_) {
    if (!IsInternalTable(table.name)) texts.emplace(table.name, table.sql);
  }
  for (const ListedIndex& index : indexes_) {
    const auto table = texts.find(index.table);
    if (table != texts.end() && !index.sql.empty()) table->second += ";" + index.sql;
  }
  return texts;
}

}  // namespace rbt
