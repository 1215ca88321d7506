// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "platform/text/characters.h"
#include "store/recordset.h"

namespace rbt {

/// The first of some columns, each with a `folded_name`, that has a name, whatever its letter case and width.
template <typename Columns>
std::optional<FieldHandle> FindColumn(const Columns& columns, std::string_view name) {
  const std::string folded = FoldIdentifier(name);
  const auto found =
      std::ranges::find_if(columns, [&](const auto& each) { return each.folded_name == folded; });
  if (found == columns.end()) return std::nullopt;
  return FieldHandle{static_cast<int>(found - columns.begin())};
}

}  // namespace rbt
