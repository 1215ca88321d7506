// SPDX-License-Identifier: MIT
#pragma once

#include "platform/store/dialect/scope.h"

namespace rbt::dialect {

ChangeStatement WriteInsert(const Insert& insert, const Scope& scope);
/// Rows whose values would stay as they are are not written.
ChangeStatement WriteUpdate(const Update& update, const Scope& scope);
ChangeStatement WriteDelete(const Delete& statement, const Scope& scope);

}  // namespace rbt::dialect
