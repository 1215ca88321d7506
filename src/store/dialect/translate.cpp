// SPDX-License-Identifier: MIT
#include "store/dialect/translate.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "store/dialect/change_writer.h"
#include "store/dialect/definition_writer.h"
#include "store/dialect/parser.h"
#include "store/dialect/scope.h"
#include "store/dialect/select_writer.h"
#include "store/dialect/update_fusion.h"
#include "store/dialect/walk.h"

namespace rbt::dialect {
namespace {

bool IsWanted(const std::string& field, const TranslateOptions& options) {
  return options.fields.empty() || std::ranges::any_of(options.fields, [&](std::string_view wanted) {
           return FoldIdentifier(wanted) == FoldIdentifier(field);
         });
}

SelectStatement TranslateSelect(const Select& select, const Scope& scope, const TranslateOptions& options) {
  const SelectWriter writer(select, scope);
  if (options.with_rowid && writer.IsGrouped()) {
    scope.RefuseAt(select.table.place, "grouped rows cannot be edited");
  }
  if (options.walked && writer.IsGrouped()) {
    scope.RefuseAt(select.table.place, "grouped rows cannot be walked");
  }
  SelectStatement statement;
  statement.tables = {writer.Table().name};
  statement.grouped = writer.IsGrouped();
  std::vector<std::string> columns;
  for (const SelectWriter::Column& column : writer.Columns()) {
    if (select.items.empty() && !IsWanted(column.name, options)) continue;
    columns.push_back(column.value.sql);
    statement.columns.push_back(
        {column.name, column.value.field == nullptr ? std::nullopt : std::optional(*column.value.field)});
  }
  if (options.with_rowid) columns.push_back(fmt::format("{} AS rowid", RowNumberOf(writer.Table())));
  // No field is wanted that the table has: the rows count all the same.
  if (columns.empty()) columns.emplace_back("NULL");
  statement.sql = options.walked ? writer.WalkSql(columns) : writer.Sql(columns);
  statement.count_sql = writer.CountSql();
  if (options.rows_to_group) statement.rows_to_group = writer.RowsOfGroups();
  if (options.walked) statement.rows_of_scan = writer.ScannedRows(std::move(columns));
  return statement;
}

Translated TranslateStatement(const Statement& statement, const Scope& scope,
                              const TranslateOptions& options) {
  return std::visit(
      Overloaded{
          [&](const Select& select) -> Translated { return TranslateSelect(select, scope, options); },
          [&](const Insert& insert) -> Translated { return WriteInsert(insert, scope); },
          [&](const Update& update) -> Translated { return WriteUpdate(update, scope); },
          [&](const Delete& node) -> Translated { return WriteDelete(node, scope); },
          [&](const auto& definition) -> Translated { return Define(definition, scope); },
      },
      statement);
}

Update ParseUpdateOf(const std::string& jet_update, const Scope& scope) {
  Statement statement = Parse(jet_update);
  auto* const update = std::get_if<Update>(&statement);
  if (update == nullptr) scope.RefuseAt({0, 0}, "not an UPDATE");
  return std::move(*update);
}

}  // namespace
}  // namespace rbt::dialect

namespace rbt {

Translated TranslateJetSql(std::string_view jet_sql, const SchemaSource& schema,
                           const TranslateOptions& options) {
  const dialect::Scope scope(jet_sql, schema);
  return dialect::TranslateStatement(dialect::Parse(jet_sql), scope, options);
}

ChangeStatement FuseUpdates(std::span<const std::string> jet_updates, const SchemaSource& schema) {
  if (jet_updates.empty()) throw Fault(FaultKind::database, "no UPDATE to put together");
  std::optional<dialect::UpdateFusion> fusion;
  std::string table;
  for (const std::string& jet_update : jet_updates) {
    const dialect::Scope scope(jet_update, schema);
    const dialect::Update update = dialect::ParseUpdateOf(jet_update, scope);
    const TableDef& updated = scope.Table(update.table);
    if (!fusion) {
      table = updated.name;
      fusion.emplace(updated);
    }
    if (updated.name != table) scope.RefuseAt(update.table.place, "an UPDATE of another table");
    fusion->Append(update, scope);
  }
  return fusion->Statement();
}

}  // namespace rbt
