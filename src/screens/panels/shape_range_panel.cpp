// SPDX-License-Identifier: MIT
#include "screens/panels/shape_range_panel.h"

#include "ui_shape_range_panel.h"

namespace rbt {

namespace {

constexpr int kMostShapeDigits = 6;

}  // namespace

ShapeRangePanel::ShapeRangePanel(QWidget* parent)
    : RangePanel(parent), ui_(std::make_unique<Ui::ShapeRangePanel>()) {
  ui_->setupUi(this);
  SetBoxes({ui_->txtStartKeijouNo, ui_->txtEndKeijouNo}, kMostShapeDigits);
}

ShapeRangePanel::~ShapeRangePanel() = default;

}  // namespace rbt
