// SPDX-License-Identifier: MIT
#include "store/dialect/scope.h"

#include <fmt/format.h>

namespace rbt::dialect {

const TableDef& Scope::Table(const Name& name) const {
  const TableDef* const table = schema_.Find(name.text);
  if (table == nullptr) RefuseAt(name.place, fmt::format("no such table: {}", name.text));
  return *table;
}

const FieldDef& Scope::Field(const TableDef& table, const Name& name) const {
  const FieldDef* const field = table.FindField(name.text);
  if (field == nullptr) RefuseAt(name.place, fmt::format("no such field in {}", table.name));
  return *field;
}

std::string_view RowNumberOf(const TableDef& table) {
  for (const std::string_view word : {"rowid", "_rowid_"}) {
    if (table.FindField(word) == nullptr) return word;
  }
  return "oid";
}

}  // namespace rbt::dialect
