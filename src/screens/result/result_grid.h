// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/grid_control.h"
#include "session/result/result_view.h"

namespace rbt {

/// The grid of diameters by weights.
class ResultGrid : public GridControl {
 public:
  explicit ResultGrid(QWidget* parent = nullptr);

  void Show(const ResultScreenView& view);

 private:
  void LayOut();

  bool ulbon_view_ = false;
};

}  // namespace rbt
