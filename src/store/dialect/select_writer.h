// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/dialect/expression_writer.h"
#include "store/dialect/scope.h"
#include "store/dialect/translate.h"

namespace rbt::dialect {

/// Writes a SELECT over one table. Rows come in table order, groups ascending by the columns grouped by, as
/// listed, nulls first; a statement's own ORDER BY goes before, and what it leaves equal keeps that order.
/// Text groups and sorts without regard to ASCII letter case; a group shows the text of its first row (beside
/// a lone Min or Max, that of the row which has it).
class SelectWriter {
 public:
  /// Both must outlive the writer.
  SelectWriter(const Select& select, const Scope& scope);

  struct Column {
    std::string name;  ///< the alias, the field's own name, or Expr1000 and so on by its place
    Place place;
    WrittenValue value;
  };
  const TableDef& Table() const { return table_; }
  const std::vector<Column>& Columns() const { return columns_; }
  /// True when the rows of the result are no rows of the table.
  bool IsGrouped() const { return grouped_; }

  /// The statement with these expressions as its columns.
  std::string Sql(const std::vector<std::string>& columns) const;
  /// The statement that hands the expressions of each row, in the order of the result, to `kEachRow`.
  std::string WalkSql(const std::vector<std::string>& columns) const;
  /// Nothing where the groups are more than fields and sums of whole numbers, or not in their own order.
  std::optional<RowsToGroup> RowsOfGroups() const;
  /// What the statement asks of each row in a scan of the table; nothing where its rows come in an order of
  /// its own.
  std::optional<RowsOfScan> ScannedRows(std::vector<std::string> values) const;
  /// The statement that gives the number of rows.
  std::string CountSql() const;

 private:
  void WriteColumns();
  void WriteGroups();
  void WriteOrder();
  std::string Where() const;
  std::string Body(const std::string& columns) const;
  std::string Walked(const std::vector<std::string>& columns, std::string_view order) const;
  const FieldDef* SummedField(const Expression& item) const;

  const Select& select_;
  const Scope& scope_;
  const TableDef& table_;
  ExpressionWriter writer_;
  bool grouped_ = false;
  std::vector<Column> columns_;
  std::string condition_;
  std::vector<const FieldDef*> group_;
  std::vector<std::string> order_;
};

}  // namespace rbt::dialect
