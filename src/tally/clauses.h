// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "data/form_mask.h"
#include "data/kind_mask.h"

namespace rbt {

/// The condition on 予備3 that closes a tally's statement; empty for a mask that limits nothing (none, all).
std::string_view FormClause(FormMask forms);
/// The condition on 予備2, Ulbon always kept in; empty for a mask that limits nothing (none, all).
std::string_view KindClause(KindMask kinds);
/// The condition on 形状No of an anchor-plate mode: 1 leaves the anchor-plate shapes out, 2 leaves nothing
/// else; empty for any other.
std::string_view AnchorPlateClause(std::int32_t anchor_plate_mode);

}  // namespace rbt
