// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "screens/panels/range_panel.h"

namespace Ui {
class ShapeRangePanel;
}

namespace rbt {

/// First and last shape.
class ShapeRangePanel : public RangePanel {
 public:
  explicit ShapeRangePanel(QWidget* parent);
  ~ShapeRangePanel() override;

 private:
  std::unique_ptr<Ui::ShapeRangePanel> ui_;
};

}  // namespace rbt
