// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace rbt {

/// Colours of every second grid row, RGB with red in the low byte.
struct RowColours {
  std::int32_t back = 0;
  std::int32_t fore = 0;

  friend bool operator==(const RowColours&, const RowColours&) = default;
};

/// Those of the settings; nothing where all rows are alike.
std::optional<RowColours> AlternateColours();

}  // namespace rbt
