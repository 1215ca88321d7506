// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <sqlite3.h>

#include "store/dialect/translate.h"

namespace rbt::test {

/// What SQLite holds in one place of a row.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string>;
using Row = std::vector<Cell>;

/// A database in memory that statements of the Jet dialect run on, through the translator and the C interface
/// alone.
class DialectDatabase : public SchemaSource {
 public:
  DialectDatabase();
  DialectDatabase(const DialectDatabase&) = delete;
  DialectDatabase& operator=(const DialectDatabase&) = delete;
  ~DialectDatabase() override;

  const TableDef* Find(std::string_view table) const override;

  /// Makes a table from "name TYPE, name TYPE": DeclareTable("T", "a LONG, b TEXT(5)").
  void DeclareTable(std::string_view name, std::string_view fields);
  void Add(const TableDef& table);

  /// Runs a statement of the Jet dialect; definitions change the tables too. Returns the rows written.
  std::int64_t Execute(std::string_view jet_sql);
  /// The rows of a SELECT in the Jet dialect.
  std::vector<Row> Rows(std::string_view jet_sql, const TranslateOptions& options = {}) const;
  /// The rows as text, columns divided by bars: "1|null|12.5".
  std::vector<std::string> Lines(std::string_view jet_sql) const;

  std::int64_t ExecuteSqlite(const std::string& sql);
  std::vector<Row> RowsOfSqlite(const std::string& sql) const;

 private:
  TableDef& Table(std::string_view name);

  sqlite3* connection_ = nullptr;
  std::deque<TableDef> tables_;
};

}  // namespace rbt::test
