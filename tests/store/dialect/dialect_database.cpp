// SPDX-License-Identifier: MIT
#include "store/dialect/dialect_database.h"

#include <algorithm>
#include <stdexcept>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/text/characters.h"
#include "store/dialect/functions.h"

namespace rbt::test {
namespace {

std::string Quoted(std::string_view name) { return fmt::format("\"{}\"", name); }

Cell CellOf(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return std::monostate{};
    case SQLITE_INTEGER:
      return sqlite3_column_int64(statement, column);
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement, column);
    default:
      return std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
  }
}

struct CellText {
  std::string operator()(std::monostate) const { return "null"; }
  std::string operator()(const std::string& text) const { return text; }
  template <typename Number>
  std::string operator()(Number number) const {
    return fmt::format("{}", number);
  }
};

std::string CreateSql(const TableDef& table) {
  std::vector<std::string> columns;
  for (const FieldDef& field : table.fields) {
    const bool is_key = std::ranges::any_of(table.indexes, [&](const IndexDef& index) {
      return index.primary && index.fields == std::vector<std::string>{field.name};
    });
    columns.push_back(
        fmt::format("{} {}{}", Quoted(field.name),
                    field.autonumber && is_key ? "INTEGER PRIMARY KEY AUTOINCREMENT" : DeclaredType(field),
                    field.required ? " NOT NULL" : ""));
  }
  return fmt::format("CREATE TABLE {} ({})", Quoted(table.name), fmt::join(columns, ", "));
}

}  // namespace

DialectDatabase::DialectDatabase() {
  if (sqlite3_open(":memory:", &connection_) != SQLITE_OK) throw std::runtime_error("no database in memory");
  // A name that SQLite does not know must never pass for a text.
  sqlite3_db_config(connection_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  RegisterJetFunctions(connection_);
}

DialectDatabase::~DialectDatabase() { sqlite3_close(connection_); }

const TableDef* DialectDatabase::Find(std::string_view table) const {
  const auto found = std::ranges::find_if(
      tables_, [&](const TableDef& t) { return FoldIdentifier(t.name) == FoldIdentifier(table); });
  return found == tables_.end() ? nullptr : &*found;
}

TableDef& DialectDatabase::Table(std::string_view name) { return const_cast<TableDef&>(*Find(name)); }

void DialectDatabase::DeclareTable(std::string_view name, std::string_view fields) {
  TableDef table{.name = std::string(name), .fields = {}, .indexes = {}};
  while (!fields.empty()) {
    std::size_t end = 0;
    for (int depth = 0; end < fields.size() && (fields[end] != ',' || depth > 0); ++end) {
      depth += fields[end] == '(' ? 1 : fields[end] == ')' ? -1 : 0;
    }
    const std::string_view column = Trim(fields.substr(0, end));
    const std::size_t blank = column.find(' ');
    std::optional<FieldDef> field = FieldOfDeclaredType(column.substr(blank + 1));
    if (!field) throw std::invalid_argument(std::string(column));
    field->name = column.substr(0, blank);
    table.fields.push_back(*field);
    fields.remove_prefix(std::min(end + 1, fields.size()));
  }
  Add(table);
}

void DialectDatabase::Add(const TableDef& table) {
  ExecuteSqlite(CreateSql(table));
  tables_.push_back(table);
}

std::int64_t DialectDatabase::Execute(std::string_view jet_sql) {
  const Translated translated = TranslateJetSql(jet_sql, *this);
  if (const auto* change = std::get_if<ChangeStatement>(&translated)) return ExecuteSqlite(change->sql);
  if (const auto* create = std::get_if<CreateTableStatement>(&translated)) Add(create->table);
  if (const auto* drop = std::get_if<DropTableStatement>(&translated)) {
    ExecuteSqlite(fmt::format("DROP TABLE {}", Quoted(drop->table)));
    std::erase_if(tables_, [&](const TableDef& table) { return table.name == drop->table; });
  }
  if (const auto* add = std::get_if<AddColumnStatement>(&translated)) {
    ExecuteSqlite(fmt::format("ALTER TABLE {} ADD COLUMN {} {}", Quoted(add->table), Quoted(add->field.name),
                              DeclaredType(add->field)));
    Table(add->table).fields.push_back(add->field);
  }
  if (const auto* key = std::get_if<AddPrimaryKeyStatement>(&translated)) {
    Table(key->table)
        .indexes.push_back({.name = key->constraint, .primary = true, .unique = true, .fields = key->fields});
  }
  if (const auto* drop = std::get_if<DropIndexStatement>(&translated)) {
    std::erase_if(Table(drop->table).indexes,
                  [&](const IndexDef& index) { return index.name == drop->index; });
  }
  return 0;
}

std::vector<Row> DialectDatabase::Rows(std::string_view jet_sql, const TranslateOptions& options) const {
  return RowsOfSqlite(std::get<SelectStatement>(TranslateJetSql(jet_sql, *this, options)).sql);
}

std::vector<std::string> DialectDatabase::Lines(std::string_view jet_sql) const {
  std::vector<std::string> lines;
  for (const Row& row : Rows(jet_sql)) {
    std::vector<std::string> cells;
    for (const Cell& cell : row) cells.push_back(std::visit(CellText{}, cell));
    lines.push_back(fmt::format("{}", fmt::join(cells, "|")));
  }
  return lines;
}

std::int64_t DialectDatabase::ExecuteSqlite(const std::string& sql) {
  const std::int64_t before = sqlite3_total_changes64(connection_);
  RowsOfSqlite(sql);
  return sqlite3_total_changes64(connection_) - before;
}

std::vector<Row> DialectDatabase::RowsOfSqlite(const std::string& sql) const {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(fmt::format("{}: {}", sqlite3_errmsg(connection_), sql));
  }
  std::vector<Row> rows;
  int result = SQLITE_ROW;
  while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
    Row& row = rows.emplace_back();
    for (int i = 0; i < sqlite3_column_count(statement); ++i) row.push_back(CellOf(statement, i));
  }
  const std::string message = sqlite3_errmsg(connection_);
  sqlite3_finalize(statement);
  if (result != SQLITE_DONE) throw std::runtime_error(message);
  return rows;
}

}  // namespace rbt::test
