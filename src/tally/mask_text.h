// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace rbt {

/// What a mask says, in a statement or on a screen. The rows of a table have the mask's number.
template <typename Mask>
struct MaskText {
  typename Mask::Number mask;
  std::string_view text;
};

/// The text of a mask, empty when the table does not have it.
template <typename Mask, std::size_t N>
constexpr std::string_view TextOfMask(const MaskText<Mask> (&table)[N], Mask mask) {
  for (const MaskText<Mask>& row : table) {
    if (row.mask == mask.AsNumber()) return row.text;
  }
  return "";
}

}  // namespace rbt
