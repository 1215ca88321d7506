// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/database_impl.h"
#include "store/dialect/translate.h"
#include "store/schema/schema.h"

namespace rbt {

/// Writes single rows of one table by their number, for a recordset. Statements are prepared once for each
/// set of fields.
class RowEditor {
 public:
  using Values = std::vector<std::optional<Value>>;  ///< parallel to the recordset's columns

  RowEditor(Database::Impl& database, const SelectStatement& select, std::string_view text);

  /// The values of a row to be added, as far as it has any without being told: defaults and the next number
  /// of an autonumber.
  Values NewRow();
  /// Writes the values that are set. Throws `database` when the row is gone.
  void Update(std::int64_t row, const Values& values);
  /// Adds a row of the values that are set, defaults for the rest; returns its number.
  std::int64_t Insert(const Values& values);
  void Delete(std::int64_t row);
  /// True for a column on which an index stands: changing it may move the row along a walk.
  bool MovesRow(std::size_t column) const { return indexed_[column]; }
  /// The column that is the row's own number, if it is in the recordset.
  std::optional<std::size_t> RowNumberColumn() const { return row_number_column_; }

 private:
  struct Autonumber {
    std::string field;
    bool is_key = false;
    std::optional<std::size_t> column;  ///< in the recordset, if it is there
  };

  /// Takes over what is to be known of one of the table's fields.
  void Learn(const StoredTable& table, std::size_t field);
  std::int64_t NextNumber(const Autonumber& autonumber) const;
  Value Default(const std::string& literal) const;
  std::vector<std::size_t> ColumnsSet(const Values& values) const;
  Statement PrepareUpdate(const std::vector<std::size_t>& columns) const;
  Statement PrepareInsert(const std::vector<std::size_t>& columns) const;
  void RequireFound(std::int64_t changed) const;

  Database::Impl& database_;
  std::string text_;
  std::string table_;
  std::vector<std::string> columns_;  ///< names in the file
  Values defaults_;
  std::vector<Autonumber> autonumbers_;
  std::map<std::vector<std::size_t>, Statement> updates_;
  std::map<std::vector<std::size_t>, Statement> inserts_;
  Statement delete_;
  std::vector<bool> indexed_;  ///< parallel to the columns
  std::optional<std::size_t> row_number_column_;
};

}  // namespace rbt
