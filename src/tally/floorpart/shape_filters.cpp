// SPDX-License-Identifier: MIT
#include "tally/floorpart/shape_filters.h"

#include <utility>

namespace rbt {

FilteredStatement FilterShapes(std::string so_far, ShapeFilter hoops, ShapeFilter plates,
                               const ShapeFilterClauses& clauses,
                               const std::function<bool(const std::string&)>& has_rows) {
  FilteredStatement statement{std::move(so_far)};
  statement.HoopAri = has_rows(statement.text + std::string(clauses.hoop_probe));
  if (statement.HoopAri && hoops == ShapeFilter::alone) statement.text += " AND 形状No=87";
  statement.TeiAri = has_rows(statement.text + std::string(kAnchorPlateClause));
  if (!statement.TeiAri) return statement;
  if (plates == ShapeFilter::left_out) statement.text += clauses.no_anchor_plates;
  if (plates == ShapeFilter::alone) statement.text += kAnchorPlateClause;
  return statement;
}

}  // namespace rbt
