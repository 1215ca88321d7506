// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/fault.h"

namespace rbt::dialect {

/// A stretch of a statement, in bytes. An empty one at the end stands for the end of the statement.
struct Place {
  std::size_t begin = 0;
  std::size_t length = 0;
};

/// Throws the fault that refuses a statement: why, the place (characters counted from 1, and the word there)
/// and the whole statement.
[[noreturn]] void Refuse(std::string_view statement, Place place, std::string_view why,
                         FaultKind kind = FaultKind::database);

}  // namespace rbt::dialect
