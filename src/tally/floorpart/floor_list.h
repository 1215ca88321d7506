// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/floor_mask.h"
#include "tally/floor_tables.h"

namespace rbt {

/// The floors of a floor tally, as floor codes.
struct FloorScope {
  std::int16_t start = 0;
  std::int16_t end = 0;
  std::int16_t lowest = 0;  ///< where a start of 0 begins: the lowest floor of the schedule
  SpecialMask specials;     ///< taken beside a start below 76
};

/// Floor codes in the order of the list, floors without data too. Basements and storeys have the foundation
/// between them only when the range starts at it.
std::vector<std::int16_t> ListedFloors(const FloorScope& scope);

/// "2Ｂ階", "基礎階", "12階", "Ｒ　階", "ＰＨ階", "階なし".
std::string FloorListLabel(int floor_code);
/// The floor code of a label: "2Ｂ階" is -2. A text that is no number throws `type mismatch`.
std::int16_t Trim_FloorName(std::string_view label);

inline constexpr std::string_view kFloorTotalLabel = "合　計";

/// Lists the floors with their weights, and the total row behind them.
void ListFloors(FloorTables& tables, const std::vector<std::int16_t>& floors);

}  // namespace rbt
