// SPDX-License-Identifier: MIT
#include "store/schema_cache.h"

#include <algorithm>
#include <array>
#include <optional>

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

/// Reads the tables of a file; keeps its statements between them.
class SchemaReader {
 public:
  explicit SchemaReader(const Connection& connection)
      : tables_(connection.Prepare("SELECT name, sql FROM sqlite_master WHERE type = 'table' AND "
                                   "name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid")),
        columns_(connection.Prepare("SELECT name, type, \"notnull\", dflt_value, pk FROM "
                                    "pragma_table_xinfo(?1) WHERE hidden = 0")),
        indexes_(connection.Prepare(
            "SELECT l.name, l.\"unique\", l.origin, ifnull(m.sql, '') FROM pragma_index_list(?1) AS l "
            "LEFT JOIN sqlite_master AS m ON m.type = 'index' AND m.name = l.name ORDER BY m.rowid")),
        index_fields_(connection.Prepare(
            "SELECT name, \"desc\" FROM pragma_index_xinfo(?1) WHERE key = 1 AND name IS NOT NULL")) {}

  std::vector<StoredTable> Run() {
    std::vector<StoredTable> tables;
    while (tables_.Step()) tables.push_back(ReadTable(tables_.Text(0), tables_.Text(1)));
    return tables;
  }

 private:
  StoredTable ReadTable(const std::string& name, const std::string& sql) {
    const TableText text = ParseTableText(sql);
    StoredTable table;
    table.def.name = name;
    table.folded_name = FoldIdentifier(name);
    table.beyond_table_def = text.beyond_table_def;
    const std::vector<std::string> key_fields = ReadFields(table, text);
    ReadIndexes(table, text, key_fields);
    return table;
  }

  /// Returns the fields of the primary key in the key's order.
  std::vector<std::string> ReadFields(StoredTable& table, const TableText& text) {
    std::vector<std::pair<std::int64_t, std::string>> key;
    columns_.Reset();
    columns_.Bind(1, table.def.name);
    while (columns_.Step()) {
      const std::string declared = columns_.Text(1);
      FieldDef field = FieldOfColumn(columns_.Text(0), declared);
      const auto& of_key = text.key_columns_not_null;
      field.required =
          columns_.Integer(2) != 0 && std::find(of_key.begin(), of_key.end(), field.name) == of_key.end();
      if (!columns_.IsNull(3)) field.default_value = DefaultLiteral(columns_.Text(3));
      if (columns_.Integer(4) != 0) key.emplace_back(columns_.Integer(4), field.name);
      if (columns_.Integer(4) != 0 && text.autoincrement) field.autonumber = true;
      table.declared_types.push_back(declared);
      table.def.fields.push_back(std::move(field));
    }
    std::sort(key.begin(), key.end());
    std::vector<std::string> names;
    names.reserve(key.size());
    for (auto& [place, name] : key) names.push_back(std::move(name));
    return names;
  }

  void ReadIndexes(StoredTable& table, const TableText& text, const std::vector<std::string>& key_fields) {
    const std::string key_name = text.key_name.value_or(std::string(kDefaultKeyName));
    bool key_found = false;
    std::size_t unique_constraint = 0;
    indexes_.Reset();
    indexes_.Bind(1, table.def.name);
    while (indexes_.Step()) {
      const std::string stored_name = indexes_.Text(0);
      const std::string origin = indexes_.Text(2);
      IndexDef index;
      index.primary = origin == "pk";
      index.unique = indexes_.Integer(1) != 0;
      index.name = index.primary ? key_name : IndexNameOf(table.def.name, stored_name);
      if (origin == "u" && unique_constraint < text.unique_constraints.size()) {
        index.name = text.unique_constraints[unique_constraint++].name.value_or(index.name);
      }
      ReadIndexFields(index, stored_name);
      key_found = key_found || index.primary;
      table.def.indexes.push_back(std::move(index));
      table.indexes.push_back({stored_name, indexes_.Text(3)});
    }
    if (key_found || key_fields.empty()) return;
    // A key that is the row's own number has no index in the file.
    table.def.indexes.insert(table.def.indexes.begin(), {key_name, true, true, key_fields, {}});
    table.indexes.insert(table.indexes.begin(), StoredTable::Index{});
  }

  void ReadIndexFields(IndexDef& index, const std::string& stored_name) {
    index_fields_.Reset();
    index_fields_.Bind(1, stored_name);
    while (index_fields_.Step()) {
      index.fields.push_back(index_fields_.Text(0));
      index.descending.push_back(index_fields_.Integer(1) != 0);
    }
    const auto& descending = index.descending;
    if (std::find(descending.begin(), descending.end(), true) == descending.end()) index.descending.clear();
  }

  Statement tables_;
  Statement columns_;
  Statement indexes_;
  Statement index_fields_;
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

void SchemaCache::Refresh() {
  const std::int64_t version = connection_.IntegerOf("PRAGMA schema_version");
  if (version == version_) return;
  version_ = kUnknown;
  tables_ = SchemaReader(connection_).Run();
  version_ = version;
}

const StoredTable* SchemaCache::FindStored(std::string_view table) const {
  const std::string folded = FoldIdentifier(table);
  const auto found = std::find_if(tables_.begin(), tables_.end(),
                                  [&](const StoredTable& stored) { return stored.folded_name == folded; });
  return found == tables_.end() ? nullptr : &*found;
}

const TableDef* SchemaCache::Find(std::string_view table) const {
  const StoredTable* const stored = FindStored(table);
  return stored == nullptr ? nullptr : &stored->def;
}

}  // namespace rbt
