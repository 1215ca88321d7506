// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "store/dialect/ast.h"

namespace rbt::dialect {

/// Reads one statement; a semicolon at its end passes. Refuses what it does not know.
Statement Parse(std::string_view statement);

}  // namespace rbt::dialect
