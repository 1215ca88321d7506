// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <utility>

#include <QPointer>
#include <QWidget>

namespace rbt {

/// Shows those of a form's panels that are to be seen now and hides the others. One takes another's place:
/// the form does not grow to hold both.
void SwitchPanels(std::span<const std::pair<QWidget*, bool>> panels);

/// Keeps the focus of a form over its work: what was out of reach meanwhile has lost it.
class FocusOverWork {
 public:
  explicit FocusOverWork(QWidget& form) : form_(form) {}

  /// Shows the form as it stands now, by `show`, and brings the focus back where the work has ended.
  void Show(bool busy, const std::function<void()>& show);

 private:
  QWidget& form_;
  bool busy_ = false;
  QPointer<QWidget> focused_before_;
};

}  // namespace rbt
