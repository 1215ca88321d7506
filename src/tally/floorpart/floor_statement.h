// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "tally/floorpart/floor_list.h"
#include "tally/floorpart/shape_filters.h"

namespace rbt {

/// The condition on 予備3, which closes the floors of a statement; a blank for a mask that limits nothing
/// (none, all).
std::string FloorFormClause(FormMask forms);
/// The condition on 予備2: the chosen kinds, which never hold thin bars, or thin bars alone for none.
std::string_view FloorKindClause(KindMask kinds);
/// WHERE and the floors of a floor tally; its parenthesis is left open.
std::string FloorClause(const FloorScope& scope);

/// The rows of the floors, forms and kinds, before hoops and anchor plates are filtered.
std::string FloorStatementSoFar(const FloorScope& scope, FormMask forms, KindMask kinds);

/// How the floor tally asks for hoops and anchor plates.
inline constexpr ShapeFilterClauses kFloorShapeFilters{" AND 形状No=87", kNoAnchorPlateClause};

}  // namespace rbt
