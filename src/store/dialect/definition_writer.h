// SPDX-License-Identifier: MIT
#pragma once

#include "store/dialect/scope.h"

namespace rbt::dialect {

/// The statements that change tables, with their names looked up. An index that a key constraint leaves
/// unnamed is named `PrimaryKey` or by its first field.
CreateTableStatement Define(const CreateTable& create, const Scope& scope);
DropTableStatement Define(const DropTable& drop, const Scope& scope);
AddColumnStatement Define(const AddColumn& add, const Scope& scope);
AddPrimaryKeyStatement Define(const AddPrimaryKey& add, const Scope& scope);
CreateIndexStatement Define(const CreateIndex& create, const Scope& scope);
DropIndexStatement Define(const DropIndex& drop, const Scope& scope);

}  // namespace rbt::dialect
