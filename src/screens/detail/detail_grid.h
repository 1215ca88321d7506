// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "screens/panels/number_grid.h"
#include "session/detail/detail_view.h"

namespace rbt {

/// The grid of diameters by stock lengths. Its letters become smaller until all columns are in sight, as long
/// as they can be read. While it is open the keys go from one cell that can be corrected to the next.
class DetailGrid : public NumberGrid {
 public:
  explicit DetailGrid(QWidget* parent = nullptr);

  void Show(const DetailView& view);

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut(const DetailView& view);
  void FitLetters();
  void TakeLetters(const QFont& letters);
  /// The first cell that can be corrected from `cell` on, so many rows and columns a step; none: invalid.
  QModelIndex Editable(QModelIndex cell, int rows, int columns) const;

  std::vector<std::string_view> captions_;
  std::vector<int> characters_;
  int fitted_width_ = 0;
};

}  // namespace rbt
