// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "session/panels/views.h"

namespace rbt {

/// Buttons of the detail screen `ZAIMEI`, the main ones from the left, then those of the print panel.
enum class DetailButton {
  percent,
  correct,
  restore,
  print,
  save,
  load,
  manage,
  leave,
  a4_landscape,
  a4_portrait,
  settings,
  close_print,
};
inline constexpr std::size_t kDetailButtonCount = 12;

struct DetailButtonRow {
  DetailButton button;
  std::string_view control;
  std::string_view caption;
  int key;  ///< 1 to 7: F1 to F7; 0: Esc
  bool in_print_panel;
};
std::span<const DetailButtonRow, kDetailButtonCount> DetailButtons();
const DetailButtonRow& RowOf(DetailButton button);

/// What the main buttons and the fields tell of themselves.
std::span<const ControlHint> DetailHints();
/// What the screen tells while another control has the focus.
inline constexpr std::string_view kDetailHelp =
    "F1 ～ F6　キーで選択して下さい（マウスクリックでも可）　　　　ESC : 終了";

inline constexpr std::string_view kDetailTitle = "材料明細表";
inline constexpr std::string_view kDetailGrid = "dbgZaimei";
inline constexpr std::string_view kPercentBox = "txtPercent";
inline constexpr std::array<std::string_view, 3> kDateBoxes{"txtYear", "txtMonth", "txtDay"};

}  // namespace rbt
