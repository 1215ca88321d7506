// SPDX-License-Identifier: MIT
#include "store/dialect/expression_writer.h"

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/quoting.h"
#include "store/dialect/walk.h"

namespace rbt::dialect {
namespace {

/// SQLite takes at most 100 arguments a call.
constexpr std::size_t kMaxArguments = 100;

struct ArithmeticForm {
  ArithmeticOperator sign;
  std::string_view format;
  bool may_fault;
};
constexpr ArithmeticForm kArithmeticForms[] = {
    {ArithmeticOperator::add, "({} + {})", false},
    {ArithmeticOperator::subtract, "({} - {})", false},
    {ArithmeticOperator::multiply, "({} * {})", false},
    {ArithmeticOperator::divide, "jet_divide({}, {})", true},
    {ArithmeticOperator::divide_whole, "jet_quotient({}, {})", true},
    {ArithmeticOperator::remainder, "jet_remainder({}, {})", true},
};

std::optional<std::int64_t> WholeNumber(std::string_view digits) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

/// A decimal goes through our own reading: not every SQLite reads the nearest double.
WrittenValue WriteNumber(const NumberLiteral& literal) {
  if (const auto whole = WholeNumber(literal.digits)) {
    return {.sql = fmt::format("{}", *whole), .value = ValueClass::whole, .whole = whole};
  }
  return {.sql = fmt::format("jet_number({})", QuoteText(literal.digits)), .value = ValueClass::real};
}

WrittenValue WriteText(const TextLiteral& literal) {
  return {.sql = QuoteText(literal.text), .value = ValueClass::text, .longest = CharacterCount(literal.text)};
}

bool IsWhole(ValueClass value) {
  return value == ValueClass::whole || value == ValueClass::boolean || value == ValueClass::null;
}

bool IsLiteral(const Expression& expression) {
  if (const auto* negation = std::get_if<Negation>(&expression.node)) return IsLiteral(*negation->operand);
  return std::holds_alternative<NumberLiteral>(expression.node) ||
         std::holds_alternative<TextLiteral>(expression.node);
}

/// Characters that the text of a value has at most: of a 64-bit number twenty with its sign.
std::optional<std::size_t> LongestText(const WrittenValue& value) {
  constexpr std::size_t kWhole = 20;
  if (value.value == ValueClass::null) return 0;
  return IsWhole(value.value) ? std::optional(kWhole) : value.longest;
}

/// A number that takes part in arithmetic of doubles. SQLite keeps a whole CURRENCY as an integer and would
/// reckon with it as one.
std::string AsDouble(const WrittenValue& value) {
  const bool is_single = value.field != nullptr && value.field->type == FieldType::single;
  const bool may_be_integer =
      is_single || value.value == ValueClass::currency || value.value == ValueClass::date;
  return may_be_integer ? fmt::format("CAST({} AS REAL)", value.sql) : value.sql;
}

}  // namespace

bool IsNumber(ValueClass value) { return value != ValueClass::text && value != ValueClass::other; }

ValueClass ClassOf(FieldType type) {
  switch (type) {
    case FieldType::boolean:
      return ValueClass::boolean;
    case FieldType::byte:
    case FieldType::integer16:
    case FieldType::integer32:
      return ValueClass::whole;
    case FieldType::single:
    case FieldType::real:
      return ValueClass::real;
    case FieldType::currency:
      return ValueClass::currency;
    case FieldType::date_time:
      return ValueClass::date;
    case FieldType::text:
    case FieldType::memo:
    case FieldType::guid:
      return ValueClass::text;
    case FieldType::decimal:
    case FieldType::binary:
    case FieldType::ole:
      break;
  }
  return ValueClass::other;
}

void ExpressionWriter::Group(std::vector<const FieldDef*> columns) {
  scope_ = Scope::groups;
  group_ = std::move(columns);
}

WrittenValue ExpressionWriter::Value(const Expression& expression) {
  WrittenValue written = Write(expression);
  if (written.is_test) {
    written.sql = fmt::format("(-{})", written.sql);
    written.is_test = false;
  }
  return written;
}

std::string ExpressionWriter::Condition(const Expression& expression) {
  const WrittenValue written = Write(expression);
  if (written.is_test || written.value == ValueClass::null) return written.sql;
  if (written.value != ValueClass::boolean) Refuse(statement_, expression.place, "a condition is expected");
  return fmt::format("({} <> 0)", written.sql);
}

const FieldDef& ExpressionWriter::Field(const ColumnName& column) const {
  if (table_ == nullptr) Refuse(statement_, column.field.place, "a name without a table");
  if (column.table && FoldIdentifier(column.table->text) != FoldIdentifier(table_->name)) {
    Refuse(statement_, column.table->place, "a table that the statement does not read");
  }
  const FieldDef* const field = table_->FindField(column.field.text);
  if (field == nullptr) {
    Refuse(statement_, column.field.place, fmt::format("no such field in {}", table_->name));
  }
  return *field;
}

WrittenValue ExpressionWriter::Write(const Expression& expression) {
  const Place place = expression.place;
  const auto condition = [](std::string sql, bool may_fault) {
    WrittenValue written;
    written.sql = std::move(sql);
    written.value = ValueClass::boolean;
    written.may_fault = may_fault;
    written.is_test = true;
    return written;
  };
  return std::visit(Overloaded{
                        [](const NullLiteral&) { return WrittenValue{.sql = "NULL"}; },
                        [](const BooleanLiteral& node) {
                          return WrittenValue{.sql = node.value ? "-1" : "0", .value = ValueClass::boolean};
                        },
                        [](const NumberLiteral& node) { return WriteNumber(node); },
                        [](const TextLiteral& node) { return WriteText(node); },
                        [&](const ColumnName& node) { return WriteColumn(node, place); },
                        [&](const Negation& node) {
                          WrittenValue operand = Number(*node.operand);
                          operand.sql = fmt::format("(-{})", operand.sql);
                          operand.field = nullptr;
                          if (operand.whole) operand.whole = -*operand.whole;
                          if (operand.value == ValueClass::boolean) operand.value = ValueClass::whole;
                          return operand;
                        },
                        [&](const Arithmetic& node) { return WriteArithmetic(node, place); },
                        [&](const Concatenation& node) { return WriteConcatenation(node, place); },
                        [&](const Comparison& node) { return WriteComparison(node, place); },
                        [&](const NullTest& node) {
                          const WrittenValue operand = Value(*node.operand);
                          return condition(
                              fmt::format("({} IS {}NULL)", operand.sql, node.negated ? "NOT " : ""),
                              operand.may_fault);
                        },
                        [&](const RangeTest& node) { return WriteRange(node, place); },
                        [&](const ListTest& node) { return WriteList(node, place); },
                        [&](const Inversion& node) {
                          return condition(fmt::format("(NOT {})", Condition(*node.operand)), true);
                        },
                        [&](const Conjunction& node) { return WriteJunction(node.operands, " AND "); },
                        [&](const Disjunction& node) { return WriteJunction(node.operands, " OR "); },
                        [&](const Call& node) { return WriteCall(node, place); },
                    },
                    expression.node);
}

WrittenValue ExpressionWriter::WriteColumn(const ColumnName& column, Place place) {
  const FieldDef& field = Field(column);
  if (scope_ == Scope::groups && std::ranges::find(group_, &field) == group_.end()) {
    Refuse(statement_, place, "a field that is neither grouped by nor aggregated");
  }
  if (std::ranges::find(fields_read_, &field) == fields_read_.end()) fields_read_.push_back(&field);
  WrittenValue value{.sql = QuoteName(field.name), .value = ClassOf(field.type), .field = &field};
  if (field.type == FieldType::text && field.size > 0) value.longest = static_cast<std::size_t>(field.size);
  return value;
}

WrittenValue ExpressionWriter::Number(const Expression& expression) {
  WrittenValue value = Value(expression);
  if (!IsNumber(value.value)) {
    Refuse(statement_, expression.place, "a number is expected", FaultKind::type_mismatch);
  }
  return Summand(std::move(value));
}

WrittenValue ExpressionWriter::WriteArithmetic(const Arithmetic& node, Place) {
  const WrittenValue left = Number(*node.left);
  const WrittenValue right = Number(*node.right);
  const auto* const form =
      std::ranges::find_if(kArithmeticForms, [&](const ArithmeticForm& f) { return f.sign == node.sign; });
  const bool whole_result =
      node.sign == ArithmeticOperator::divide_whole || node.sign == ArithmeticOperator::remainder;
  const bool of_wholes =
      node.sign != ArithmeticOperator::divide && IsWhole(left.value) && IsWhole(right.value);
  WrittenValue written;
  // Doubles would put a half of a kilogram now above and now below itself.
  if (node.sign == ArithmeticOperator::multiply && left.value == ValueClass::currency &&
      right.value == ValueClass::currency) {
    written.sql = fmt::format("jet_multiply_currency({}, {})", left.sql, right.sql);
    written.value = ValueClass::currency;
    written.may_fault = true;
    return written;
  }
  written.sql = fmt::format(fmt::runtime(form->format), AsDouble(left), AsDouble(right));
  written.value = whole_result || of_wholes ? ValueClass::whole : ValueClass::real;
  written.may_fault = form->may_fault || left.may_fault || right.may_fault;
  return written;
}

WrittenValue ExpressionWriter::WriteConcatenation(const Concatenation& node, Place place) {
  if (node.operands.size() > kMaxArguments) Refuse(statement_, place, "too many operands of &");
  WrittenValue written;
  written.value = ValueClass::text;
  written.longest = 0;
  std::string arguments;
  for (const ExpressionPtr& operand : node.operands) {
    const WrittenValue value = Value(*operand);
    if (value.value == ValueClass::other || value.value == ValueClass::date) {
      Refuse(statement_, operand->place, "a text or a number is expected", FaultKind::type_mismatch);
    }
    if (!arguments.empty()) arguments += ", ";
    arguments += value.sql;
    const std::optional<std::size_t> longest = LongestText(value);
    written.longest = written.longest && longest ? std::optional(*written.longest + *longest) : std::nullopt;
    written.may_fault = written.may_fault || value.may_fault;
  }
  written.sql = fmt::format("jet_concatenate({})", arguments);
  return written;
}

void ExpressionWriter::MustCompare(const WrittenValue& a, const WrittenValue& b, Place place) const {
  if (a.value == ValueClass::other || b.value == ValueClass::other) {
    Refuse(statement_, place, "values of this type do not compare", FaultKind::type_mismatch);
  }
  if (a.value == ValueClass::null || b.value == ValueClass::null || IsNumber(a.value) == IsNumber(b.value))
    return;
  Refuse(statement_, place, "a number and a text do not compare", FaultKind::type_mismatch);
}

std::string ExpressionWriter::Comparand(const WrittenValue& value) const {
  return value.value == ValueClass::text ? value.sql + " COLLATE NOCASE" : value.sql;
}

WrittenValue ExpressionWriter::WriteComparison(const Comparison& node, Place place) {
  const WrittenValue left = Value(*node.left);
  const WrittenValue right = Value(*node.right);
  MustCompare(left, right, place);
  WrittenValue written;
  written.sql = fmt::format("({} {} {})", Comparand(left), node.sign, right.sql);
  written.value = ValueClass::boolean;
  written.may_fault = left.may_fault || right.may_fault;
  written.is_test = true;
  return written;
}

WrittenValue ExpressionWriter::WriteRange(const RangeTest& node, Place place) {
  const WrittenValue operand = Value(*node.operand);
  const WrittenValue low = Value(*node.low);
  const WrittenValue high = Value(*node.high);
  MustCompare(operand, low, place);
  MustCompare(operand, high, place);
  WrittenValue written;
  written.sql = fmt::format("({} {}BETWEEN {} AND {})", Comparand(operand), node.negated ? "NOT " : "",
                            low.sql, high.sql);
  written.value = ValueClass::boolean;
  written.may_fault = operand.may_fault || low.may_fault || high.may_fault;
  written.is_test = true;
  return written;
}

WrittenValue ExpressionWriter::WriteList(const ListTest& node, Place place) {
  const WrittenValue operand = Value(*node.operand);
  WrittenValue written;
  written.may_fault = operand.may_fault;
  bool of_literals = true;
  std::string list;
  for (const ExpressionPtr& element : node.list) {
    const WrittenValue value = Value(*element);
    MustCompare(operand, value, place);
    if (!list.empty()) list += ", ";
    list += value.sql;
    written.may_fault = written.may_fault || value.may_fault;
    of_literals = of_literals && IsLiteral(*element);
  }
  std::string test = fmt::format("{} IN ({})", Comparand(operand), list);
  if (list_tests_ && operand.field != nullptr && of_literals) test = list_tests_(*operand.field, test);
  written.sql = fmt::format("({}{})", node.negated ? "NOT " : "", test);
  written.value = ValueClass::boolean;
  written.is_test = true;
  return written;
}

WrittenValue ExpressionWriter::WriteJunction(const ExpressionList& operands, std::string_view word) {
  WrittenValue written;
  for (const ExpressionPtr& operand : operands) {
    if (!written.sql.empty()) written.sql += word;
    written.sql += Condition(*operand);
  }
  written.sql = fmt::format("({})", written.sql);
  written.value = ValueClass::boolean;
  written.may_fault = true;
  written.is_test = true;
  return written;
}

}  // namespace rbt::dialect
