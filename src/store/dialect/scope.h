// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "store/dialect/ast.h"
#include "store/dialect/translate.h"

namespace rbt::dialect {

/// One statement on its way: its text, for refusals, and the tables that it may name.
class Scope {
 public:
  Scope(std::string_view statement, const SchemaSource& schema) : statement_(statement), schema_(schema) {}

  std::string_view Statement() const { return statement_; }
  /// The table of that name; refuses an unknown one.
  const TableDef& Table(const Name& name) const;
  bool HasTable(const Name& name) const { return schema_.Find(name.text) != nullptr; }
  /// The field of that name; refuses an unknown one.
  const FieldDef& Field(const TableDef& table, const Name& name) const;

  [[noreturn]] void RefuseAt(Place place, std::string_view why) const { Refuse(statement_, place, why); }

 private:
  std::string_view statement_;
  const SchemaSource& schema_;
};

/// The word by which SQLite gives the row's number; a table's own column of that name goes before.
std::string_view RowNumberOf(const TableDef& table);

}  // namespace rbt::dialect
