// SPDX-License-Identifier: MIT
#include "screens/panels/page_range_panel.h"

#include "ui_page_range_panel.h"

namespace rbt {

namespace {

constexpr int kMostPageDigits = 5;  // of a 16-bit number

}  // namespace

PageRangePanel::PageRangePanel(QWidget* parent)
    : RangePanel(parent), ui_(std::make_unique<Ui::PageRangePanel>()) {
  ui_->setupUi(this);
  SetBoxes({ui_->txtStartPage, ui_->txtStartGyo, ui_->txtEndPage, ui_->txtEndGyo}, kMostPageDigits);
}

PageRangePanel::~PageRangePanel() = default;

void PageRangePanel::Show(const RangeView& view) {
  RangePanel::Show(view);
  for (QWidget* control : findChildren<QWidget*>()) {
    control->setVisible(view.has_rows != (control == ui_->lblNoRows));
  }
}

}  // namespace rbt
