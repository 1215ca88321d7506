// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "screens/panels/range_panel.h"

namespace Ui {
class ShapeRangePanel;
}

namespace rbt {

/// First and last shape: `ShapeStart` and `ShapeEnd` of the selection.
class ShapeRangePanel : public RangePanel {
 public:
  explicit ShapeRangePanel(QWidget* parent);
  ~ShapeRangePanel() override;

  void FillFromSchedule(Database& site) override;
  bool GivesWay() const override { return false; }

 protected:
  std::optional<RangeRefusal> Refusal(std::size_t box) const override;
  void WriteSelection() const override;

 private:
  /// Smallest and largest shape of the schedule, kept while the form is open.
  void GetKeijouNo(Database& site);

  std::unique_ptr<Ui::ShapeRangePanel> ui_;
  ShapeRange whole_{};
};

}  // namespace rbt
