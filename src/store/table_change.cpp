// SPDX-License-Identifier: MIT
#include "store/table_change.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/quoting.h"
#include "store/table_sql.h"

namespace rbt {

using dialect::QuoteName;
using dialect::QuoteNames;
namespace {

std::vector<IndexDef>::const_iterator FindIndex(const TableDef& table, std::string_view name) {
  const std::string folded = FoldIdentifier(name);
  return std::find_if(table.indexes.begin(), table.indexes.end(),
                      [&](const IndexDef& index) { return FoldIdentifier(index.name) == folded; });
}

/// The declared types for the rebuilt table: a column that was the row's own number and is the key no longer
/// must not become it again by its type's word.
std::vector<std::string> TypesAfter(const StoredTable& before, const TableDef& after) {
  std::vector<std::string> types = before.declared_types;
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (!EqualIgnoringCase(types[i], "INTEGER") || IsAutonumberKey(after, after.fields[i])) continue;
    types[i] = after.fields[i].autonumber ? "COUNTER_LONG" : "LONG";
  }
  return types;
}

bool KeyIsRowNumber(const TableDef& table, const std::vector<std::string>& types) {
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (EqualIgnoringCase(types[i], "INTEGER") && IsAutonumberKey(table, table.fields[i])) return true;
  }
  return false;
}

}  // namespace

void TableChange::CreateTable(const TableDef& table) const {
  schema_.Refresh();
  if (schema_.Find(table.name) != nullptr) throw Refusal(fmt::format("table {} exists", table.name));
  if (table.fields.empty()) throw Refusal(fmt::format("table {} has no fields", table.name));
  std::set<std::string> names;
  for (const FieldDef& field : table.fields) {
    if (!names.insert(FoldIdentifier(field.name)).second) {
      throw Refusal(fmt::format("table {} has two fields {}", table.name, field.name));
    }
  }
  Savepoint together(connection_);
  Run(CreateTableSql(table, table.name));
  for (const IndexDef& index : table.indexes) {
    if (!index.primary) Run(CreateIndexSql(table.name, index));
  }
  together.Release();
}

void TableChange::DropTable(std::string_view table) const {
  Run(fmt::format("DROP TABLE {}", QuoteName(Require(table).def.name)));
}

void TableChange::AddField(std::string_view table, const FieldDef& field) const {
  const TableDef& def = Require(table).def;
  if (def.FindField(field.name) != nullptr) {
    throw Refusal(fmt::format("table {} has a field {}", def.name, field.name));
  }
  Savepoint together(connection_);
  Run(fmt::format("ALTER TABLE {} ADD COLUMN {}", QuoteName(def.name),
                  ColumnSql(field, DeclaredType(field))));
  if (field.autonumber) NumberRows(def.name, field.name);
  together.Release();
}

void TableChange::NumberRows(std::string_view table, std::string_view field) const {
  Run(fmt::format(
      "UPDATE {0} SET {1} = numbered.number FROM (SELECT rowid AS row, row_number() OVER (ORDER BY "
      "rowid) AS number FROM {0}) AS numbered WHERE numbered.row = {0}.rowid",
      QuoteName(table), QuoteName(field)));
}

void TableChange::AddIndex(std::string_view table, const IndexDef& index) const {
  const StoredTable& stored = Require(table);
  if (FindIndex(stored.def, index.name) != stored.def.indexes.end()) {
    throw Refusal(fmt::format("table {} has an index {}", stored.def.name, index.name));
  }
  IndexDef added = index;
  for (std::string& name : added.fields) {
    const FieldDef* const field = stored.def.FindField(name);
    if (field == nullptr)
      throw Fault{FaultKind::field_not_found, fmt::format("{}.{}: {}", table, name, text_)};
    name = field->name;
  }
  if (!added.primary) {
    Run(CreateIndexSql(stored.def.name, added));
    return;
  }
  Savepoint together(connection_);
  RequireKeyable(stored.def, added);
  TableDef after = stored.def;
  after.indexes.insert(after.indexes.begin(), added);
  Rebuild(stored, after);
  together.Release();
}

void TableChange::DropIndex(std::string_view table, std::string_view index) const {
  const StoredTable& stored = Require(table);
  const auto found = FindIndex(stored.def, index);
  if (found == stored.def.indexes.end()) {
    throw Refusal(fmt::format("table {} has no index {}", stored.def.name, index));
  }
  const auto place = found - stored.def.indexes.begin();
  const StoredTable::Index& in_file = stored.indexes[static_cast<std::size_t>(place)];
  if (!in_file.create_sql.empty()) {
    Run(fmt::format("DROP INDEX {}", QuoteName(in_file.stored_name)));
    return;
  }
  TableDef after = stored.def;
  after.indexes.erase(after.indexes.begin() + place);
  Savepoint together(connection_);
  Rebuild(stored, after);
  together.Release();
}

const StoredTable& TableChange::Require(std::string_view table) const {
  schema_.Refresh();
  const StoredTable* const stored = schema_.FindStored(table);
  if (stored == nullptr) throw Refusal(fmt::format("no table {}", table));
  return *stored;
}

void TableChange::RequireKeyable(const TableDef& table, const IndexDef& key) const {
  for (const IndexDef& index : table.indexes) {
    if (index.primary) throw Refusal(fmt::format("table {} has the primary key {}", table.name, index.name));
  }
  for (const std::string& field : key.fields) {
    if (connection_.IntegerOf(fmt::format("SELECT EXISTS (SELECT 1 FROM {} WHERE {} IS NULL)",
                                          QuoteName(table.name), QuoteName(field))) != 0) {
      throw Fault{FaultKind::invalid_use_of_null,
                  fmt::format("{}.{}, a field of the key {}: {}", table.name, field, key.name, text_)};
    }
  }
  if (connection_.IntegerOf(fmt::format("SELECT EXISTS (SELECT 1 FROM {} GROUP BY {} HAVING count(*) > 1)",
                                        QuoteName(table.name), QuoteNames(key.fields))) != 0) {
    throw Refusal(fmt::format("table {} has rows of one key, so that {} cannot stand", table.name, key.name));
  }
}

void TableChange::Rebuild(const StoredTable& before, const TableDef& after) const {
  RequireRebuildable(before);
  const std::string& name = before.def.name;
  const std::string rebuilt = "rebuilt." + name;
  const std::vector<std::string> types = TypesAfter(before, after);
  const bool key_is_row_number = KeyIsRowNumber(after, types);
  const std::string columns = (key_is_row_number ? "" : "rowid, ") + QuoteNames(after.FieldNames());

  Run(CreateTableSql(after, rebuilt, types));
  Run(fmt::format("INSERT INTO {}({}) SELECT {} FROM {} NOT INDEXED ORDER BY rowid", QuoteName(rebuilt),
                  columns, columns, QuoteName(name)));
  if (key_is_row_number) {
    // Numbers that were given once are not given again, also those of rows deleted since.
    Statement keep = connection_.Prepare(
        "UPDATE sqlite_sequence SET seq = (SELECT seq FROM sqlite_sequence WHERE name = ?1) WHERE name = ?2",
        text_);
    keep.Bind(1, name);
    keep.Bind(2, rebuilt);
    keep.Step();
  }
  Run(fmt::format("DROP TABLE {}", QuoteName(name)));
  Run(fmt::format("ALTER TABLE {} RENAME TO {}", QuoteName(rebuilt), QuoteName(name)));
  RestoreIndexes(before, after);
}

void TableChange::RequireRebuildable(const StoredTable& table) const {
  if (!table.beyond_table_def.empty()) {
    throw Refusal(fmt::format("table {} carries {}, which rebuilding it would lose", table.def.name,
                              table.beyond_table_def.front()));
  }
  Statement triggers = connection_.Prepare(
      "SELECT count(*) FROM sqlite_master WHERE type = 'trigger' AND lower(tbl_name) = lower(?1)", text_);
  triggers.Bind(1, table.def.name);
  if (triggers.Step() && triggers.Integer(0) > 0) {
    throw Refusal(fmt::format("table {} carries a trigger, which rebuilding it would lose", table.def.name));
  }
}

void TableChange::RestoreIndexes(const StoredTable& before, const TableDef& after) const {
  for (const IndexDef& index : after.indexes) {
    if (index.primary) continue;
    const auto was = FindIndex(before.def, index.name) - before.def.indexes.begin();
    const std::string& sql = before.indexes[static_cast<std::size_t>(was)].create_sql;
    Run(sql.empty() ? CreateIndexSql(after.name, index) : sql);
  }
}

Fault TableChange::Refusal(std::string_view message) const {
  return {FaultKind::database, fmt::format("{}: {}: {}", message, connection_.File().string(), text_)};
}

}  // namespace rbt
