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

 protected:
  /// The cell whose patterns take room from the grid stays in sight.
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitColumns(const GridRows& rows);

  std::vector<int> characters_;  ///< of the columns; they never shrink
};

}  // namespace rbt
