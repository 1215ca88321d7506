// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace rbt {

/// What a mask says in a statement.
struct MaskText {
  std::int32_t mask;
  std::string_view text;
};

/// The text of a mask, empty when the table does not have it.
template <std::size_t N>
constexpr std::string_view TextOfMask(const MaskText (&table)[N], std::int32_t mask) {
  for (const MaskText& row : table) {
    if (row.mask == mask) return row.text;
  }
  return "";
}

}  // namespace rbt
