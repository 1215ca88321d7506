// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "store/schema/schema.h"

namespace rbt {

/// Where the translator asks for the tables that a statement names.
class SchemaSource {
 public:
  virtual ~SchemaSource() = default;
  /// By name, letter case and width ignored; null when there is none.
  virtual const TableDef* Find(std::string_view table) const = 0;
};

/// What a SELECT over one table asks of each row, for a scan that serves several. SQLite's dialect.
struct RowsOfScan {
  std::string condition;            ///< empty: every row
  std::vector<std::string> values;  ///< handed over of each row
};

/// The rows of a grouping SELECT before they are grouped, for a hand that groups them itself. The fields that
/// are grouped by come first, then those that are summed up.
struct RowsToGroup {
  enum class Key { whole, real, text };

  std::string sql;        ///< walked, see `TranslateOptions`
  std::vector<Key> keys;  ///< the fields grouped by, as listed
  RowsOfScan rows;
  /// Of each result column the field that it shows, or whose sum.
  std::vector<std::size_t> columns;
};

struct SelectStatement {
  std::string sql;                  ///< SQLite's dialect
  std::vector<std::string> tables;  ///< tables read, by their names in the file
  /// Parallel to the result columns: name as Jet gives it, and the declared field when it is a plain column.
  struct Column {
    std::string name;
    std::optional<FieldDef> field;
  };
  std::vector<Column> columns;
  bool grouped = false;
  std::string count_sql;  ///< SELECT that gives the number of rows
  /// Where it was asked for and the statement has nothing but fields that it groups by and sums of fields of
  /// whole numbers.
  std::optional<RowsToGroup> rows_to_group = std::nullopt;
  /// Of a walked statement whose rows come in table order.
  std::optional<RowsOfScan> rows_of_scan = std::nullopt;
};

/// INSERT, UPDATE or DELETE.
struct ChangeStatement {
  std::string sql;
  std::string table;
  std::string probe;  ///< SELECT that has a row where the statement would write one; empty: it always would
};

struct CreateTableStatement {
  TableDef table;
};
struct DropTableStatement {
  std::string table;
};
struct AddColumnStatement {
  std::string table;
  FieldDef field;
};
struct AddPrimaryKeyStatement {
  std::string table;
  std::string constraint;
  std::vector<std::string> fields;
};
struct CreateIndexStatement {
  std::string table;
  IndexDef index;
};
struct DropIndexStatement {
  std::string table;
  std::string index;
};

using Translated =
    std::variant<SelectStatement, ChangeStatement, CreateTableStatement, DropTableStatement,
                 AddColumnStatement, AddPrimaryKeyStatement, CreateIndexStatement, DropIndexStatement>;

/// The name of the function that a row walk registers.
inline constexpr const char* kEachRow = "jet_each_row";

struct TranslateOptions {
  /// Narrows `SELECT *` to these fields, those that the table has.
  std::span<const std::string_view> fields = {};
  /// Adds the row's number as the last result column, named `rowid`, for a recordset that is edited (one
  /// plain table, no grouping).
  bool with_rowid = false;
  /// Hands the columns of each row, in the order of the result, to the function `kEachRow` instead of giving
  /// rows; its first argument is the statement's one parameter. Of a statement that is not grouped.
  bool walked = false;
  /// Asks for the rows of a grouping statement too.
  bool rows_to_group = false;
};

/// Translates one statement of the Jet dialect. What is unknown is refused: `Fault` of kind `database` whose
/// text names the place (character position and the word there) and the whole statement. Grouped results come
/// ascending by the grouping columns as listed, nulls first; others in table order unless ORDER BY says
/// otherwise.
Translated TranslateJetSql(std::string_view jet_sql, const SchemaSource& schema,
                           const TranslateOptions& options = {});

/// One UPDATE with the outcome of the given ones run in turn, see `Database::ExecuteTogether`. All must be
/// UPDATEs of one table.
ChangeStatement FuseUpdates(std::span<const std::string> jet_updates, const SchemaSource& schema);

}  // namespace rbt
