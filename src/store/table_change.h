// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "store/connection.h"
#include "store/schema/schema.h"
#include "store/schema_cache.h"

namespace rbt {

/// Changes of tables, fields and indexes. Each stands or falls as a whole, inside a transaction or outside
/// one. `text` is the statement that faults show.
class TableChange {
 public:
  TableChange(const Connection& connection, SchemaCache& schema, std::string_view text)
      : connection_(connection), schema_(schema), text_(text) {}

  void CreateTable(const TableDef& table) const;
  void DropTable(std::string_view table) const;
  /// Rows that are there get the default, an autonumber its number in table order, or null.
  void AddField(std::string_view table, const FieldDef& field) const;
  /// An index; a primary key rebuilds the table and faults, leaving it as it was, when a key field holds null
  /// (`invalid use of null`) or two rows have one key.
  void AddIndex(std::string_view table, const IndexDef& index) const;
  void DropIndex(std::string_view table, std::string_view index) const;

 private:
  const StoredTable& Require(std::string_view table) const;
  void RequireKeyable(const TableDef& table, const IndexDef& key) const;
  /// Puts a table of the same fields and rows, in their order, with the indexes of `after` in the place of
  /// `before`.
  void Rebuild(const StoredTable& before, const TableDef& after) const;
  void RequireRebuildable(const StoredTable& table) const;
  void RestoreIndexes(const StoredTable& before, const TableDef& after) const;
  void NumberRows(std::string_view table, std::string_view field) const;
  void Run(std::string_view sql) const { connection_.Run(sql, text_); }
  Fault Refusal(std::string_view message) const;

  const Connection& connection_;
  SchemaCache& schema_;
  std::string_view text_;
};

}  // namespace rbt
