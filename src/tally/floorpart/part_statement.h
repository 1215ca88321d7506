// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "data/floor_mask.h"
#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "tally/floorpart/shape_filters.h"

namespace rbt {

/// The floors that a part tally takes its rows from, as floor codes. A start of 76 or above is that floor
/// alone, whatever the rest says.
struct PartScope {
  std::int16_t start = 0;
  std::int16_t end = 0;
  bool asked_from_0 = false;  ///< the box of the start holds 0: the foundation belongs to the rows
  SpecialMask specials;
};

/// WHERE and the floors of a part tally.
std::string PartFloorClause(const PartScope& scope);
/// As `FloorKindClause`.
std::string_view PartKindClause(KindMask kinds);
/// The rows of the floors, forms and kinds, before hoops and anchor plates are filtered.
std::string PartStatementSoFar(const PartScope& scope, FormMask forms, KindMask kinds);

/// How the part tally asks for hoops and anchor plates.
inline constexpr ShapeFilterClauses kPartShapeFilters{
    " AND (形状No=87)",
    " AND (IsNull(形状No) OR 形状No=0 or  形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR "
    "(形状No Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR "
    "形状No >=177)"};

}  // namespace rbt
