// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

#include "desktop/grid_control.h"
#include "session/names/names_view.h"

namespace rbt {

/// The list of registered names. Enter on a line, and a click on its mark, ask to turn the mark over.
class NamesGrid : public GridControl {
 public:
  explicit NamesGrid(QWidget* parent = nullptr);

  void OnMark(std::function<void(std::size_t row)> flip);
  void Show(const NamesView& view);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Flip(int row) const;

  std::function<void(std::size_t row)> flip_;
};

}  // namespace rbt
