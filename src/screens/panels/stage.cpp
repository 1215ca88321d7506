// SPDX-License-Identifier: MIT
#include "screens/panels/stage.h"

namespace rbt {

void SwitchPanels(std::span<const std::pair<QWidget*, bool>> panels) {
  for (const auto& [panel, shown] : panels) {
    if (!shown) panel->hide();
  }
  for (const auto& [panel, shown] : panels) {
    if (shown) panel->show();
  }
}

void FocusOverWork::Show(bool busy, const std::function<void()>& show) {
  if (busy && !busy_) focused_before_ = form_.focusWidget();
  const bool work_has_ended = busy_ && !busy;
  busy_ = busy;
  show();
  if (work_has_ended && focused_before_ != nullptr && focused_before_->isVisible()) {
    focused_before_->setFocus();
  }
}

}  // namespace rbt
