// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "store/dialect/place.h"
#include "store/schema/schema.h"

namespace rbt::dialect {

/// What a statement says, before any name in it is looked up.

struct Name {
  std::string text;
  Place place;
};

struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;
using ExpressionList = std::vector<ExpressionPtr>;

struct NullLiteral {};
struct BooleanLiteral {
  bool value = false;
};
struct NumberLiteral {
  std::string digits;
};
struct TextLiteral {
  std::string text;
};
struct ColumnName {
  std::optional<Name> table;
  Name field;
};

struct Negation {
  ExpressionPtr operand;
};
enum class ArithmeticOperator { add, subtract, multiply, divide, divide_whole, remainder };
struct Arithmetic {
  ArithmeticOperator sign = ArithmeticOperator::add;
  ExpressionPtr left;
  ExpressionPtr right;
};
struct Concatenation {
  ExpressionList operands;
};

struct Comparison {
  std::string sign;  ///< one of = <> < <= > >=
  ExpressionPtr left;
  ExpressionPtr right;
};
struct NullTest {
  ExpressionPtr operand;
  bool negated = false;
};
struct RangeTest {
  ExpressionPtr operand;
  ExpressionPtr low;
  ExpressionPtr high;
  bool negated = false;
};
struct ListTest {
  ExpressionPtr operand;
  ExpressionList list;
  bool negated = false;
};
struct Inversion {
  ExpressionPtr operand;
};
struct Conjunction {
  ExpressionList operands;
};
struct Disjunction {
  ExpressionList operands;
};

struct Call {
  Name function;
  ExpressionList arguments;
  bool of_rows = false;  ///< Count(*)
};

struct Expression {
  Place place;    ///< where the fault points to: the operator, or the operand itself
  int depth = 1;  ///< levels of the tree below and with this one
  std::variant<NullLiteral, BooleanLiteral, NumberLiteral, TextLiteral, ColumnName, Negation, Arithmetic,
               Concatenation, Comparison, NullTest, RangeTest, ListTest, Inversion, Conjunction, Disjunction,
               Call>
      node;
};

struct SelectItem {
  ExpressionPtr value;
  std::optional<Name> alias;
};
struct OrderTerm {
  ColumnName column;
  bool descending = false;
};
struct Select {
  std::vector<SelectItem> items;  ///< empty for *
  Name table;
  ExpressionPtr where;  ///< null when there is none
  std::vector<ColumnName> group_by;
  std::vector<OrderTerm> order_by;
};

struct Insert {
  Name table;
  std::vector<Name> fields;
  std::variant<ExpressionList, Select> source;
};
struct Assignment {
  ColumnName target;
  ExpressionPtr value;
};
struct Update {
  Name table;
  std::vector<Assignment> assignments;
  ExpressionPtr where;
};
struct Delete {
  std::optional<ColumnName> column;  ///< names a field and means the row, as the star does
  Name table;
  ExpressionPtr where;
};

struct ColumnDefinition {
  Name name;
  FieldDef field;
};
struct KeyDefinition {
  std::optional<Name> name;
  bool primary = false;
  std::vector<Name> fields;
};
struct CreateTable {
  Name table;
  std::vector<ColumnDefinition> columns;
  std::vector<KeyDefinition> keys;
};
struct DropTable {
  Name table;
};
struct AddColumn {
  Name table;
  ColumnDefinition column;
};
struct AddPrimaryKey {
  Name table;
  Name constraint;
  std::vector<Name> fields;
};
struct IndexField {
  Name name;
  bool descending = false;
};
struct CreateIndex {
  Name index;
  Name table;
  bool unique = false;
  std::vector<IndexField> fields;
};
struct DropIndex {
  Name index;
  Name table;
};

using Statement = std::variant<Select, Insert, Update, Delete, CreateTable, DropTable, AddColumn,
                               AddPrimaryKey, CreateIndex, DropIndex>;

}  // namespace rbt::dialect
