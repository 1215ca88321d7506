// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "data/shape_filter.h"

namespace rbt {

/// The condition on 予備3 that closes a tally's statement; empty for a mask that limits nothing (none, all).
std::string_view FormClause(FormMask forms);
/// The condition on 予備2, Ulbon always kept in; empty for a mask that limits nothing (none, all).
std::string_view KindClause(KindMask kinds);
/// The condition on 形状No that filters the welded closed hoops, as the tallies by page and by name have it;
/// empty for those that stay with others. Without them go the rows that have no shape.
std::string_view HoopClause(ShapeFilter hoops);
/// The condition on 形状No that filters the anchor-plate shapes; empty for those that stay with others.
std::string_view AnchorPlateClause(ShapeFilter plates);

}  // namespace rbt
