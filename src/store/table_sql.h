// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/schema/schema.h"

namespace rbt {

/// The name of a primary key that nobody named.
inline constexpr std::string_view kDefaultKeyName = "PrimaryKey";

/// What a file's CREATE TABLE text says beyond the store's own lists of columns and indexes.
struct TableText {
  std::optional<std::string> key_name;  ///< of the primary key's constraint, when it is named
  bool autoincrement = false;
  /// Columns that refuse null only because the key stands on them.
  std::vector<std::string> key_columns_not_null;
  struct UniqueConstraint {
    std::optional<std::string> name;
  };
  std::vector<UniqueConstraint> unique_constraints;  ///< in the order of the text
  /// Words of what a TableDef cannot hold, which a rebuild would lose: CHECK, COLLATE, REFERENCES, ...
  std::vector<std::string> beyond_table_def;
};

/// Reads SQLite's CREATE TABLE text. A text that is none gives an empty result.
TableText ParseTableText(std::string_view create_sql);

/// `INTEGER PRIMARY KEY AUTOINCREMENT` stands for this field: it is the one field of an ascending key.
bool IsAutonumberKey(const TableDef& table, const FieldDef& field);

/// A column's definition as it stands in ADD COLUMN: quoted name, declared type, NOT NULL, DEFAULT.
std::string ColumnSql(const FieldDef& field, std::string_view declared_type);

/// CREATE TABLE under `stored_name`, the primary key included, other indexes not. `declared_types` are
/// parallel to the fields; empty: each by its field.
std::string CreateTableSql(const TableDef& table, std::string_view stored_name,
                           const std::vector<std::string>& declared_types = {});

/// INSERT of one row, its values bound to parameters in the order of the fields; without fields it gets its
/// defaults.
std::string InsertSql(std::string_view table, std::span<const std::string> fields);

/// CREATE INDEX. Index names are one table's own here, but a whole file's in SQLite: the stored name is the
/// table's, a point and the index's.
std::string CreateIndexSql(std::string_view table, const IndexDef& index);
/// The index's own name of a stored one; names that other programs gave stay.
std::string IndexNameOf(std::string_view table, std::string_view stored_name);

}  // namespace rbt
