// SPDX-License-Identifier: MIT
#include "store/dialect/change_writer.h"

#include <algorithm>

#include <fmt/format.h>

#include "store/dialect/assignment.h"
#include "store/dialect/quoting.h"
#include "store/dialect/select_writer.h"

namespace rbt::dialect {
namespace {

/// The fields that an INSERT writes, each once.
std::vector<const FieldDef*> TargetFields(const Insert& insert, const TableDef& table, const Scope& scope) {
  std::vector<const FieldDef*> targets;
  for (const Name& name : insert.fields) {
    const FieldDef& field = scope.Field(table, name);
    if (std::ranges::find(targets, &field) != targets.end())
      scope.RefuseAt(name.place, "a field named twice");
    targets.push_back(&field);
  }
  return targets;
}

void MustMatch(std::size_t values, const Insert& insert, const Scope& scope) {
  if (values != insert.fields.size()) {
    scope.RefuseAt(insert.table.place, fmt::format("{} values for {} fields", values, insert.fields.size()));
  }
}

std::string SourceSql(const Insert& insert, const std::vector<const FieldDef*>& targets, const Scope& scope) {
  std::vector<std::string> values;
  if (const auto* const select = std::get_if<Select>(&insert.source)) {
    const SelectWriter source(*select, scope);
    MustMatch(source.Columns().size(), insert, scope);
    for (const SelectWriter::Column& column : source.Columns()) {
      values.push_back(
          AssignedValue(column.value, *targets[values.size()], scope.Statement(), column.place).sql);
    }
    return source.Sql(values);
  }
  const auto& list = std::get<ExpressionList>(insert.source);
  MustMatch(list.size(), insert, scope);
  ExpressionWriter writer(scope.Statement(), nullptr);
  for (const ExpressionPtr& value : list) {
    values.push_back(
        AssignedValue(writer.Value(*value), *targets[values.size()], scope.Statement(), value->place).sql);
  }
  return fmt::format("VALUES ({})", fmt::join(values, ", "));
}

}  // namespace

ChangeStatement WriteInsert(const Insert& insert, const Scope& scope) {
  const TableDef& table = scope.Table(insert.table);
  const std::vector<const FieldDef*> targets = TargetFields(insert, table, scope);
  std::vector<std::string> names;
  names.reserve(targets.size());
  for (const FieldDef* const field : targets) names.push_back(QuoteName(field->name));
  return {fmt::format("INSERT INTO {} ({}) {}", QuoteName(table.name), fmt::join(names, ", "),
                      SourceSql(insert, targets, scope)),
          table.name,
          {}};
}

WrittenUpdate WriteAssignments(const Update& update, const TableDef& table, const Scope& scope,
                               ListTestWriter list_tests) {
  ExpressionWriter writer(scope.Statement(), &table);
  writer.WriteListTestsBy(std::move(list_tests));
  WrittenUpdate written;
  for (const Assignment& assignment : update.assignments) {
    const FieldDef& field = writer.Field(assignment.target);
    const auto is_same = [&](const WrittenAssignment& other) { return other.field == &field; };
    if (std::ranges::any_of(written.assignments, is_same)) {
      scope.RefuseAt(assignment.target.field.place, "a field set twice");
    }
    written.assignments.push_back({&field, AssignedValue(writer.Value(*assignment.value), field,
                                                         scope.Statement(), assignment.value->place)});
  }
  if (update.where) written.where = writer.Condition(*update.where);
  written.fields_read = writer.FieldsRead();
  return written;
}

ChangeStatement WriteUpdate(const Update& update, const Scope& scope) {
  const TableDef& table = scope.Table(update.table);
  const WrittenUpdate written = WriteAssignments(update, table, scope);
  std::vector<std::string> settings;
  std::vector<std::string> differences;
  bool may_fault = false;
  for (const auto& [field, value] : written.assignments) {
    settings.push_back(fmt::format("{} = {}", QuoteName(field->name), value.sql));
    differences.push_back(fmt::format("{} IS NOT {}", QuoteName(field->name), value.sql));
    may_fault = may_fault || value.may_fault;
  }
  std::string guard = fmt::format("({})", fmt::join(differences, " OR "));
  if (!written.where.empty()) {
    // SQLite may test the parts of an AND in any order; a value that can fault is worked out only for the
    // rows that the statement means.
    guard = may_fault ? fmt::format("CASE WHEN {} THEN {} ELSE 0 END", written.where, guard)
                      : fmt::format("{} AND {}", written.where, guard);
  }
  return {fmt::format("UPDATE {} SET {} WHERE {}", QuoteName(table.name), fmt::join(settings, ", "), guard),
          table.name, fmt::format("SELECT 1 FROM {} WHERE {}", QuoteName(table.name), guard)};
}

ChangeStatement WriteDelete(const Delete& statement, const Scope& scope) {
  const TableDef& table = scope.Table(statement.table);
  ExpressionWriter writer(scope.Statement(), &table);
  if (statement.column) writer.Field(*statement.column);
  std::string rows = fmt::format("FROM {}", QuoteName(table.name));
  if (statement.where) rows += fmt::format(" WHERE {}", writer.Condition(*statement.where));
  return {"DELETE " + rows, table.name, "SELECT 1 " + rows};
}

}  // namespace rbt::dialect
