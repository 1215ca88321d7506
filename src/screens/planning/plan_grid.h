// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "desktop/grid_control.h"
#include "session/planning/plan_view.h"

namespace rbt {

/// The bars that a plan buys, a column for each length. Columns are as wide as their figures, so that all of
/// them can be seen; the sum is never scrolled out of sight.
class PlanGrid : public GridControl {
 public:
  explicit PlanGrid(QWidget* parent = nullptr);

  void Show(const PlanScreenView& view);

 private:
  void FitColumns(const GridRows& rows);

  std::vector<int> characters_;  ///< of the columns; they never shrink
};

}  // namespace rbt
