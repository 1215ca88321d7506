// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tally/views/floorpart_grid.h"

namespace rbt {

/// A column of the grid of floors or parts.
struct FloorPartColumn {
  std::string caption;
  int width = 0;  ///< in twips
  bool centred = false;
  bool shown = true;

  friend bool operator==(const FloorPartColumn&, const FloorPartColumn&) = default;
};

/// The columns of the floor screen: floor, parts 1 to 11, total, and the row number, which is not seen.
/// `striped` rows get two columns more room.
std::vector<FloorPartColumn> Set_dbgkai(const PartNames& names, bool striped);
/// Those of the part screen: diameter, parts 1 to 11, total.
std::vector<FloorPartColumn> Set_dbgBui(const PartNames& names, bool striped);

}  // namespace rbt
