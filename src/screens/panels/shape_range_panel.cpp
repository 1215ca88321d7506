// SPDX-License-Identifier: MIT
#include "screens/panels/shape_range_panel.h"

#include "tally/selection.h"
#include "ui_shape_range_panel.h"

namespace rbt {

namespace {

constexpr int kMostDigits = 6;
constexpr std::size_t kLastBox = 1;

}  // namespace

ShapeRangePanel::ShapeRangePanel(QWidget* parent)
    : RangePanel(parent), ui_(std::make_unique<Ui::ShapeRangePanel>()) {
  ui_->setupUi(this);
  SetBoxes({ui_->txtStartKeijouNo, ui_->txtEndKeijouNo}, kMostDigits);
}

ShapeRangePanel::~ShapeRangePanel() = default;

void ShapeRangePanel::GetKeijouNo(Database& site) { whole_ = WholeShapeRange(site); }

void ShapeRangePanel::FillFromSchedule(Database& site) {
  GetKeijouNo(site);
  SetNumber(0, whole_.first);
  SetNumber(1, whole_.last);
}

std::optional<RangeRefusal> ShapeRangePanel::Refusal(std::size_t box) const {
  if (box != kLastBox) return std::nullopt;
  return ShapeRangeRefusal({Number(0), Number(1)}, whole_);
}

void ShapeRangePanel::WriteSelection() const {
  Selection.ShapeStart = Number(0);
  Selection.ShapeEnd = Number(1);
}

}  // namespace rbt
