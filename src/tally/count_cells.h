// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/numbers/checked_array.h"
#include "platform/numbers/number_words.h"

namespace rbt {

/// Adds to one count. Faults: `subscript out of range` for an index outside, `overflow` naming the column.
template <int N>
void AddCount(CheckedArray<std::int32_t, N>& counts, int index, std::int32_t addend,
              std::string_view column) {
  counts[index] = AddInt32(counts[index], addend, column);
}

/// Null adds nothing and asks for no cell.
template <int N>
void AddCount(CheckedArray<std::int32_t, N>& counts, int index, const std::optional<std::int32_t>& addend,
              std::string_view column) {
  if (addend) AddCount(counts, index, *addend, column);
}

}  // namespace rbt
