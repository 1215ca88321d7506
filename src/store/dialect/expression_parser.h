// SPDX-License-Identifier: MIT
#pragma once

#include "store/dialect/ast.h"
#include "store/dialect/token_stream.h"

namespace rbt::dialect {

/// Reads one expression. From the loosest to the tightest: OR, AND, NOT, one comparison (= <> < <= > >= IS
/// BETWEEN IN), &, + -, MOD, \, * /, the sign. So `Not IsNull(a)` and `NOT a = b` invert the comparison, and
/// `a + b & c` adds first. Refuses deeper nesting than any statement has.
ExpressionPtr ParseExpression(TokenStream& tokens);

/// Reads `field` or `table.field`.
ColumnName ParseColumnName(TokenStream& tokens);

}  // namespace rbt::dialect
