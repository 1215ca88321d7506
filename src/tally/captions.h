// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rbt {

/// What the form designer shows for all kinds before the first tally.
inline constexpr std::string_view kAllKindsAtDesign = "異形･高強度･ネジ･ｽﾘｯﾄ";

/// "異形･ネジ" for a mask of material kinds 1 to 15; empty for any other.
std::string_view KindCaption(std::int32_t material_kind_mask);
/// Label of the grid's total row for a mask of material kinds; one of its own for an unknown mask.
std::string_view TotalRowLabel(std::int32_t material_kind_mask);
/// "生･切" for a mask of material forms; "すべて" for 15 and for every mask that limits nothing.
std::string_view FormCaption(std::int32_t material_form_mask);
/// The same for narrow places: single forms are shortened too.
std::string_view ShortFormCaption(std::int32_t material_form_mask);

/// A caption without the slit kind and the dot before it; of the slit kind alone "のみ" stays.
std::string StripSlitWord(std::string_view caption);

}  // namespace rbt
