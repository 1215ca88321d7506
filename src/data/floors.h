// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace rbt {

/// Floor codes, column `階`: -5 to -1 basements, 0 the foundation, 1 to 75 storeys, then the special floors.
inline constexpr int kLowestFloor = -5;
inline constexpr int kFoundationFloor = 0;
inline constexpr int kHighestStorey = 75;
inline constexpr int kRoofFloor = 76;
inline constexpr int kPenthouseFloor = 77;
inline constexpr int kNoFloor = 78;
/// Tables by floor have this many entries and are indexed by `FloorIndex`.
inline constexpr int kFloorCount = kNoFloor - kLowestFloor + 1;

inline constexpr std::string_view kAllFloorsClause = "WHERE 階 BETWEEN -5 AND 78";
inline constexpr std::string_view kNumberedFloorsClause = "WHERE 階 BETWEEN -5 AND 75";

/// 0 for the deepest basement to 83 for no floor. A code outside -5 to 78 throws `subscript out of range`.
int FloorIndex(int floor_code);
/// "Ｂ２階", "基礎階", "１２階", "Ｒ階", "ＰＨ階", "階なし". A code outside -5 to 78 throws `subscript out of
/// range`.
std::string FloorLabel(int floor_code);

}  // namespace rbt
