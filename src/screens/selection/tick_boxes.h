// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <string>

#include "session/selection/selection_choices.h"

class QCheckBox;
class QWidget;

namespace rbt {

/// The four check boxes of a selection dialog and its one button, bound to the dialog's presenter. Esc asks
/// the dialog to close.
class TickBoxes {
 public:
  /// `show` is called when the presenter has something new to show.
  TickBoxes(QWidget& dialog, const std::array<QCheckBox*, 4>& boxes, SelectionChoice& choice,
            const std::function<void()>& show);

  /// Shows the ticks, leads back to the first box where that is asked for, and hides a dialog that is done.
  void Show(const ChoiceView& view);

 private:
  QWidget& dialog_;
  std::array<QCheckBox*, 4> boxes_;
};

}  // namespace rbt
