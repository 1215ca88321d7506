// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "screens/panels/range_panel.h"
#include "session/floorpart/floorpart_view.h"

namespace Ui {
class FloorInputPanel;
}

namespace rbt {

/// The first and the last floor of a tally, buttons that enter them, the choice of weight, and the button
/// that tallies. The buttons are wired by the form's table.
class FloorInputPanel : public RangePanel {
 public:
  explicit FloorInputPanel(QWidget* parent = nullptr);
  ~FloorInputPanel() override;

  void OnWeight(std::function<void(bool installed)> chosen);
  void ShowInput(const FloorInputView& view);
  /// Puts the focus on the button that tallies.
  void FocusRun();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  std::unique_ptr<Ui::FloorInputPanel> ui_;
};

}  // namespace rbt
