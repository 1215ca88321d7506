// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// The rows of a page or of a table: row `r` (a fraction in heads) stands at `LineUnit` * r + `BaseY` twips.
struct RowGrid {
  float LineUnit = 0.0F;
  float BaseY = 0.0F;

  float Y(double row) const { return static_cast<float>(row * LineUnit + BaseY); }
};

/// A text in a row of a table stands so many twips below the row's rule.
inline constexpr float kTextDrop = 50.0F;

/// Rows from `first` up to `last`; a frame's last rule stands at the top of row `last`.
struct RowRange {
  int first = 0;
  int last = 0;
};

/// Where a line of a head stands: in a row, so many twips below its top, or (`above`) with its foot there.
struct RowPlace {
  double row = 0.0;
  float drop = 0.0F;
  bool above = false;

  /// Y of the line's top, twips; `text_height` is that of its font.
  float Y(const RowGrid& grid, float text_height) const {
    return grid.Y(row) - (above ? text_height : 0.0F) + drop;
  }
};

}  // namespace rbt
