// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <QPointer>

#include "desktop/grid_control.h"
#include "session/floorpart/floorpart_view.h"

namespace rbt {

/// The grid of floors or diameters by parts. While it is open for a correction, cells take digits and commas,
/// and the keys stay above the total row and left of the total.
class FloorPartGrid : public GridControl {
 public:
  explicit FloorPartGrid(QWidget* parent = nullptr);

  void Show(const FloorPartGridView& view);
  /// Goes to a cell of the first row, which comes into view with it.
  void GoToFirstRow(int column);

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class WeightEditing;

  void SetOpen(bool open);
  /// True for a key that would type something into the current cell, or search for it.
  bool TypesNoWeight(const QKeyEvent& event) const;

  std::vector<FloorPartColumn> columns_;
  bool open_ = false;
  QPointer<QWidget> editor_;  ///< of the cell that is being corrected
};

}  // namespace rbt
