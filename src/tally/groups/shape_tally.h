// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// Tallies shapes `ShapeStart` to `ShapeEnd` of the selection into `TallyGrid`, by groups of equal pieces
/// whose stock is worked out anew, and sets the presence flags. The dimension text (予備5) of the schedule is
/// brought up to date first. `HighStrengthRowCount` keeps what the screen put there and grows by 1 when the
/// site holds high strength. A fault ends it and leaves the rest of `TallyGrid` empty.
void Keijou_Jyuuryo_Syukei();

/// The same over the lines between two positions, 頁 and 行. The dimension text is taken as it stands,
/// `HighStrengthRowCount` stays as it was, and bar weights come from `Get_BarWeightTbl`.
void PKeijou_Jyuuryo_Syukei(std::int32_t startPage, std::int32_t startLine, std::int32_t endPage,
                            std::int32_t endLine);

}  // namespace rbt
