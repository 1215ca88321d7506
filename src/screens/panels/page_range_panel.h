// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "screens/panels/range_panel.h"

namespace Ui {
class PageRangePanel;
}

namespace rbt {

/// Start page and line, end page and line. An empty schedule has no boxes, only a notice.
class PageRangePanel : public RangePanel {
 public:
  explicit PageRangePanel(QWidget* parent);
  ~PageRangePanel() override;

  void Show(const RangeView& view) override;

 private:
  std::unique_ptr<Ui::PageRangePanel> ui_;
};

}  // namespace rbt
