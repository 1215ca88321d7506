// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "data/shape_filter.h"

namespace rbt {

/// What the form designer shows for all kinds before the first tally.
inline constexpr std::string_view kAllKindsAtDesign = "異形･高強度･ネジ･ｽﾘｯﾄ";

/// "異形･ネジ"; empty for no kind and for a number beyond the masks.
std::string_view KindCaption(KindMask kinds);
/// Label of the grid's total row; one of its own for no kind and for a number beyond the masks.
std::string_view TotalRowLabel(KindMask kinds);
/// "生･切"; "すべて" for all, and for every number that limits nothing.
std::string_view FormCaption(FormMask forms);
/// The same for narrow places: single forms are shortened too.
std::string_view ShortFormCaption(FormMask forms);

/// "含む", "含まず", "のみ".
std::string_view ShapeFilterCaption(ShapeFilter filter);

/// What stands between the welded hoops and their filter: "(形状No87)を", "(形状No87)" for hoops alone.
std::string_view HoopsNote(ShapeFilter hoops);

/// A caption without the slit kind and the dot before it; of the slit kind alone "のみ" stays.
std::string StripSlitWord(std::string_view caption);

}  // namespace rbt
