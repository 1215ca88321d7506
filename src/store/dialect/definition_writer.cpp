// SPDX-License-Identifier: MIT
#include "store/dialect/definition_writer.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt::dialect {
namespace {

const IndexDef* FindIndex(const TableDef& table, std::string_view name) {
  const std::string wanted = FoldIdentifier(name);
  const auto found = std::ranges::find_if(
      table.indexes, [&](const IndexDef& index) { return FoldIdentifier(index.name) == wanted; });
  return found == table.indexes.end() ? nullptr : &*found;
}

void MustBeNewIndex(const TableDef& table, std::string_view name, bool primary, Place place,
                    const Scope& scope) {
  if (FindIndex(table, name) != nullptr) scope.RefuseAt(place, fmt::format("the index {} exists", name));
  if (primary && std::ranges::any_of(table.indexes, &IndexDef::primary)) {
    scope.RefuseAt(place, fmt::format("{} has a primary key", table.name));
  }
}

std::vector<std::string> FieldNames(const std::vector<Name>& names, const TableDef& table,
                                    const Scope& scope) {
  std::vector<std::string> fields;
  for (const Name& name : names) {
    const std::string& field = scope.Field(table, name).name;
    if (std::ranges::find(fields, field) != fields.end()) scope.RefuseAt(name.place, "a field named twice");
    fields.push_back(field);
  }
  return fields;
}

}  // namespace

CreateTableStatement Define(const CreateTable& create, const Scope& scope) {
  if (scope.HasTable(create.table)) {
    scope.RefuseAt(create.table.place, fmt::format("the table {} exists", create.table.text));
  }
  TableDef table{.name = create.table.text, .fields = {}, .indexes = {}};
  for (const ColumnDefinition& column : create.columns) {
    if (table.FindField(column.name.text) != nullptr)
      scope.RefuseAt(column.name.place, "a field named twice");
    table.fields.push_back(column.field);
  }
  if (table.fields.empty()) scope.RefuseAt(create.table.place, "a table without fields");
  for (const KeyDefinition& key : create.keys) {
    const Name& first = key.fields.front();
    const std::string name = key.name ? key.name->text : key.primary ? "PrimaryKey" : first.text;
    const Place place = key.name ? key.name->place : first.place;
    MustBeNewIndex(table, name, key.primary, place, scope);
    table.indexes.push_back({.name = name,
                             .primary = key.primary,
                             .unique = true,
                             .fields = FieldNames(key.fields, table, scope)});
  }
  return {std::move(table)};
}

DropTableStatement Define(const DropTable& drop, const Scope& scope) {
  return {scope.Table(drop.table).name};
}

AddColumnStatement Define(const AddColumn& add, const Scope& scope) {
  const TableDef& table = scope.Table(add.table);
  if (table.FindField(add.column.name.text) != nullptr) {
    scope.RefuseAt(add.column.name.place, fmt::format("the field exists in {}", table.name));
  }
  return {table.name, add.column.field};
}

AddPrimaryKeyStatement Define(const AddPrimaryKey& add, const Scope& scope) {
  const TableDef& table = scope.Table(add.table);
  MustBeNewIndex(table, add.constraint.text, true, add.constraint.place, scope);
  return {table.name, add.constraint.text, FieldNames(add.fields, table, scope)};
}

CreateIndexStatement Define(const CreateIndex& create, const Scope& scope) {
  const TableDef& table = scope.Table(create.table);
  MustBeNewIndex(table, create.index.text, false, create.index.place, scope);
  IndexDef index{.name = create.index.text, .unique = create.unique, .fields = {}};
  std::vector<Name> names;
  for (const IndexField& field : create.fields) {
    names.push_back(field.name);
    index.descending.push_back(field.descending);
  }
  index.fields = FieldNames(names, table, scope);
  if (std::ranges::find(index.descending, true) == index.descending.end()) index.descending.clear();
  return {table.name, std::move(index)};
}

DropIndexStatement Define(const DropIndex& drop, const Scope& scope) {
  const TableDef& table = scope.Table(drop.table);
  const IndexDef* const index = FindIndex(table, drop.index.text);
  if (index == nullptr) scope.RefuseAt(drop.index.place, fmt::format("no such index in {}", table.name));
  return {table.name, index->name};
}

}  // namespace rbt::dialect
