// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/expression_writer.h"
#include "store/dialect/quoting.h"
#include "store/dialect/walk.h"

namespace rbt::dialect {
namespace {

constexpr std::string_view kAggregateNames[] = {"SUM", "MIN", "MAX", "COUNT"};

bool Is(const Name& function, std::string_view name) { return EqualIgnoringCase(function.text, name); }

bool IsAggregate(const Name& function) {
  return std::ranges::any_of(kAggregateNames, [&](std::string_view name) { return Is(function, name); });
}

}  // namespace

bool HasAggregate(const Expression& expression) {
  const auto* const call = std::get_if<Call>(&expression.node);
  bool found = call != nullptr && IsAggregate(call->function);
  ForEachOperand(expression, [&](const Expression& operand) { found = found || HasAggregate(operand); });
  return found;
}

const Expression& ExpressionWriter::OnlyArgument(const Call& call) const {
  if (call.of_rows || call.arguments.size() != 1) {
    Refuse(statement_, call.function.place, "one argument is expected");
  }
  return *call.arguments.front();
}

WrittenValue ExpressionWriter::WriteCall(const Call& node, Place place) {
  if (IsAggregate(node.function)) return WriteAggregate(node, place);
  WrittenValue written;
  if (Is(node.function, "IsNull")) {
    const WrittenValue operand = Value(OnlyArgument(node));
    written.sql = fmt::format("({} IS NULL)", operand.sql);
    written.value = ValueClass::boolean;
    written.may_fault = operand.may_fault;
    written.is_test = true;
  } else if (Is(node.function, "Fix") || Is(node.function, "Int")) {
    const WrittenValue operand = Number(OnlyArgument(node));
    const std::string_view function = Is(node.function, "Fix") ? "jet_fix" : "jet_int";
    const bool is_whole = operand.value == ValueClass::whole;
    written.sql = is_whole ? operand.sql : fmt::format("{}({})", function, operand.sql);
    written.value = is_whole ? ValueClass::whole : ValueClass::real;
    written.may_fault = operand.may_fault;
  } else if (Is(node.function, "Val")) {
    const WrittenValue operand = Value(OnlyArgument(node));
    if (operand.value == ValueClass::other)
      Refuse(statement_, place, "a text is expected", FaultKind::type_mismatch);
    written.sql = fmt::format("jet_val({})", operand.sql);
    written.value = ValueClass::real;
    written.may_fault = true;
  } else {
    Refuse(statement_, place, "an unknown function");
  }
  return written;
}

WrittenValue ExpressionWriter::WriteAggregate(const Call& node, Place place) {
  if (scope_ != Scope::groups) Refuse(statement_, place, "an aggregate has no place here");
  if (node.of_rows) {
    if (!Is(node.function, "Count")) OnlyArgument(node);
    return {.sql = "count(*)", .value = ValueClass::whole};
  }
  scope_ = Scope::inside_aggregate;
  const WrittenValue operand = Value(OnlyArgument(node));
  scope_ = Scope::groups;

  if (Is(node.function, "Count")) {
    return {.sql = fmt::format("count({})", operand.sql),
            .value = ValueClass::whole,
            .may_fault = operand.may_fault};
  }
  if (Is(node.function, "Sum")) return WriteSum(operand, place);
  if (operand.value == ValueClass::other) {
    Refuse(statement_, place, "values of this type do not compare", FaultKind::type_mismatch);
  }
  const std::string_view function = Is(node.function, "Min") ? "min" : "max";
  return {.sql = fmt::format("{}({})", function, Comparand(operand)),
          .value = operand.value,
          .may_fault = operand.may_fault};
}

WrittenValue ExpressionWriter::Summand(WrittenValue value) const {
  if (value.field == nullptr) return value;
  const std::string place = QuoteText(fmt::format("{}.{}", table_->name, value.field->name));
  value.sql = fmt::format("jet_summand({}, {})", value.sql, place);
  if (value.field->type == FieldType::single) value.sql = fmt::format("CAST({} AS REAL)", value.sql);
  value.field = nullptr;
  value.may_fault = true;
  return value;
}

/// Whole numbers sum exactly in 64 bits, ten-thousandths of a CURRENCY too; doubles one after the other.
WrittenValue ExpressionWriter::WriteSum(WrittenValue operand, Place place) {
  if (!IsNumber(operand.value)) Refuse(statement_, place, "a number is expected", FaultKind::type_mismatch);
  operand = Summand(std::move(operand));
  switch (operand.value) {
    case ValueClass::whole:
    case ValueClass::boolean:
      return {.sql = fmt::format("sum({})", operand.sql),
              .value = ValueClass::whole,
              .may_fault = operand.may_fault};
    case ValueClass::currency:
      return {.sql = fmt::format("jet_sum_currency({})", operand.sql),
              .value = ValueClass::currency,
              .may_fault = true};
    default:
      depends_on_row_order_ = true;
      return {.sql = fmt::format("jet_sum_real({})", operand.sql),
              .value = ValueClass::real,
              .may_fault = operand.may_fault};
  }
}

}  // namespace rbt::dialect
