// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "desktop/grid_control.h"
#include "session/planning/plan_view.h"

namespace rbt {

/// The bars that a plan buys, a column for each length. Columns are as wide as their figures, so that all of
/// them can be seen, and get no narrower while a search goes on; the sum is never scrolled out of sight.
class PlanGrid : public GridControl {
 public:
  explicit PlanGrid(QWidget* parent = nullptr);

  void Show(const PlanScreenView& view);

 protected:
  /// The cell whose patterns take room from the grid stays in sight.
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitColumns(const PlanScreenView& view);

  std::vector<int> least_;       ///< characters of the columns without figures
  std::vector<int> characters_;  ///< as they are
};

}  // namespace rbt
