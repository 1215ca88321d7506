// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rbt {

/// Part numbers, column `部位`: 0 none, 1 to 10 the named parts, 11 the catch-all of the tallies.
inline constexpr int kNoPart = 0;
/// Cuts of this part count at the weld diameter of the row.
inline constexpr int kCutPart = 2;
/// The part of the slit bars.
inline constexpr int kSlitPart = 3;
/// Cuts of this part count in the tallies by groups at the thicker of the bar and the one it is welded to.
inline constexpr int kThickerCutPart = 5;
inline constexpr int kLastNamedPart = 10;
inline constexpr int kOtherParts = 11;
inline constexpr std::string_view kOtherPartsLabel = "その他";

}  // namespace rbt
