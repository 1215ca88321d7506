// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/dialect/ast.h"
#include "store/schema/schema.h"

namespace rbt::dialect {

/// What a value is, as far as the statement and the declared types tell.
enum class ValueClass {
  null,
  boolean,
  whole,     ///< BYTE, SHORT, LONG and what + - * \ MOD make of them, in 64 bits
  real,      ///< a double; arithmetic that a CURRENCY or a DOUBLE takes part in is done in doubles
  currency,  ///< a CURRENCY column, the product of two, or the sum, smallest or largest of one
  date,
  text,
  other,  ///< DECIMAL, BINARY, OLE: may be selected and tested for null
};

/// Whether arithmetic may take it; the class of a declared column type.
bool IsNumber(ValueClass value);
ValueClass ClassOf(FieldType type);

/// An expression in SQLite's dialect.
struct WrittenValue {
  std::string sql;
  ValueClass value = ValueClass::null;
  const FieldDef* field = nullptr;                    ///< when it is a plain column
  std::optional<std::int64_t> whole = std::nullopt;   ///< when it is a whole number written out
  std::optional<std::size_t> longest = std::nullopt;  ///< characters that its text has at most, if known
  bool may_fault = false;                             ///< its evaluation can end the statement
  bool is_test = false;  ///< SQLite's 1 or 0 of a test; never in what `Value` gives
};

/// Gets a list test of a field, "f" IN (1, 2), and gives what shall stand for it.
using ListTestWriter = std::function<std::string(const FieldDef& field, const std::string& test)>;

/// Writes the expressions of one statement over at most one table: looks up the names, minds the types and
/// keeps Jet's rules where SQLite's differ. Three-valued logic, AND and OR are the same in both.
///
/// - Text is compared without regard to ASCII letter case.
/// - A number and a text do not compare: `type mismatch`.
/// - A condition is made of comparisons, tests, True, False and BOOLEAN columns; a bare number is none.
/// - A condition's value is -1 or 0.
/// - A sum faults at a text, put into a column of numbers by another program, that is no number.
class ExpressionWriter {
 public:
  /// `table` may be null: then no name is known. All arguments must outlive the writer.
  ExpressionWriter(std::string_view statement, const TableDef* table)
      : statement_(statement), table_(table) {}

  /// From here on the values are those of a grouped result: aggregates, and the columns grouped by.
  void Group(std::vector<const FieldDef*> columns);

  /// List tests of a field with a list of literals are written by `list_tests` from here on.
  void WriteListTestsBy(ListTestWriter list_tests) { list_tests_ = std::move(list_tests); }

  WrittenValue Value(const Expression& expression);
  std::string Condition(const Expression& expression);
  /// The field that a name means; refuses an unknown one, or one of another table.
  const FieldDef& Field(const ColumnName& column) const;

  /// Columns met so far, each once.
  const std::vector<const FieldDef*>& FieldsRead() const { return fields_read_; }
  /// True when a sum of doubles was met: its last digit depends on the order of the rows.
  bool DependsOnRowOrder() const { return depends_on_row_order_; }

 private:
  enum class Scope { rows, groups, inside_aggregate };

  WrittenValue Write(const Expression& expression);
  WrittenValue WriteColumn(const ColumnName& column, Place place);
  WrittenValue WriteArithmetic(const Arithmetic& node, Place place);
  WrittenValue WriteConcatenation(const Concatenation& node, Place place);
  WrittenValue WriteComparison(const Comparison& node, Place place);
  WrittenValue WriteRange(const RangeTest& node, Place place);
  WrittenValue WriteList(const ListTest& node, Place place);
  WrittenValue WriteJunction(const ExpressionList& operands, std::string_view word);
  WrittenValue WriteCall(const Call& node, Place place);
  WrittenValue WriteAggregate(const Call& node, Place place);
  WrittenValue WriteSum(WrittenValue operand, Place place);

  WrittenValue Number(const Expression& expression);
  /// A value that is reckoned with, checked where it comes straight from a row: a file may hold a text where
  /// a number belongs, which SQLite would take for 0.
  WrittenValue Summand(WrittenValue value) const;
  /// The tested value of a comparison, made ready to compare with values of its class.
  std::string Comparand(const WrittenValue& value) const;
  void MustCompare(const WrittenValue& a, const WrittenValue& b, Place place) const;
  const Expression& OnlyArgument(const Call& call) const;

  std::string_view statement_;
  const TableDef* table_;
  ListTestWriter list_tests_;
  Scope scope_ = Scope::rows;
  std::vector<const FieldDef*> group_;
  std::vector<const FieldDef*> fields_read_;
  bool depends_on_row_order_ = false;
};

/// True when an aggregate stands somewhere in the expression.
bool HasAggregate(const Expression& expression);

}  // namespace rbt::dialect
