// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "screens/panels/range_panel.h"

namespace Ui {
class PageRangePanel;
}

namespace rbt {

/// Start page and line, end page and line: `StartPage` to `EndLine` of the selection. An empty schedule has
/// no boxes, only a notice.
class PageRangePanel : public RangePanel {
 public:
  explicit PageRangePanel(QWidget* parent);
  ~PageRangePanel() override;

  void FillFromSchedule(Database& site) override;
  bool GivesWay() const override { return true; }

 protected:
  std::optional<RangeRefusal> Refusal(std::size_t box) const override;
  void WriteSelection() const override;

 private:
  PositionRange Entered() const;

  std::unique_ptr<Ui::PageRangePanel> ui_;
};

}  // namespace rbt
