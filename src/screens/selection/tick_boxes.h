// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <string_view>

class QCheckBox;
class QPushButton;
class QWidget;

namespace rbt {

inline constexpr std::string_view kNoKindMessage = "材質が選択されていません";
inline constexpr std::string_view kNoFormMessage = "材料が選択されていません";

/// The four check boxes of a selection dialog, in the order of the mask's codes.
class TickBoxes {
 public:
  using States = std::array<bool, 4>;

  explicit TickBoxes(const std::array<QCheckBox*, 4>& boxes) : boxes_(boxes) {}

  void Show(const States& ticks);
  States Ticks() const;
  /// Tells that nothing is ticked and leads back to the first box.
  void SayNothingTicked(std::string_view message) const;

 private:
  std::array<QCheckBox*, 4> boxes_;
};

/// Wires a selection dialog: `Command1` takes the choice, Esc asks the dialog to close.
void ConnectSelectionDialog(QWidget& dialog, QPushButton& command1, const std::function<void()>& take);

}  // namespace rbt
