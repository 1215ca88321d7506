// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "screens/panels/number_grid.h"
#include "session/floorpart/floorpart_view.h"

namespace rbt {

/// The grid of floors or diameters by parts. While it is open for a correction the keys stay above the total
/// row and left of the total.
class FloorPartGrid : public NumberGrid {
 public:
  explicit FloorPartGrid(QWidget* parent = nullptr) : NumberGrid(parent) {}

  void Show(const FloorPartGridView& view);
  /// Goes to a cell of the first row, which comes into view with it.
  void GoToFirstRow(int column);

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  std::vector<FloorPartColumn> columns_;
};

}  // namespace rbt
