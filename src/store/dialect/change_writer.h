// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "store/dialect/expression_writer.h"
#include "store/dialect/scope.h"

namespace rbt::dialect {

/// One SET of an UPDATE in SQLite's dialect.
struct WrittenAssignment {
  const FieldDef* field = nullptr;
  WrittenValue value;  ///< as the field takes it
};
struct WrittenUpdate {
  std::vector<WrittenAssignment> assignments;
  std::string where;  ///< empty when there is none
  std::vector<const FieldDef*> fields_read;
};
/// The parts of an UPDATE of `table`.
WrittenUpdate WriteAssignments(const Update& update, const TableDef& table, const Scope& scope,
                               ListTestWriter list_tests = nullptr);

/// An INSERT, one row of values or the rows of a SELECT. Faults: a field that the table does not have.
ChangeStatement WriteInsert(const Insert& insert, const Scope& scope);
/// Rows whose values would stay as they are are not written.
ChangeStatement WriteUpdate(const Update& update, const Scope& scope);
ChangeStatement WriteDelete(const Delete& statement, const Scope& scope);

}  // namespace rbt::dialect
