// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "data/shape_filter.h"
#include "data/shapes.h"

namespace rbt {

/// The texts in which the floor and the part tally differ when they ask for shapes.
struct ShapeFilterClauses {
  std::string_view hoop_probe;
  std::string_view no_anchor_plates;
};

/// A statement with the filters of hoops and anchor plates, and what was found on the way.
struct FilteredStatement {
  std::string text;
  bool HoopAri = false;
  bool TeiAri = false;
};

/// Hoops are asked for first, so that with hoops alone the question for plates sees hoops alone. A filter
/// whose shapes are not there filters nothing, and hoops are left out row by row, not here. `has_rows`:
/// whether a statement has rows.
FilteredStatement FilterShapes(std::string so_far, ShapeFilter hoops, ShapeFilter plates,
                               const ShapeFilterClauses& clauses,
                               const std::function<bool(const std::string&)>& has_rows);

}  // namespace rbt
