// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/frame/report_site.h"
#include "session/detail/detail_controls.h"
#include "session/panels/row_colours.h"
#include "session/panels/views.h"
#include "tally/detail/detail_grid.h"

namespace rbt {

/// What the detail screen is at.
enum class DetailMode {
  buttons,   ///< waits for one
  percent,   ///< takes a percentage in `txtPercent`
  editing,   ///< takes counts in the grid
  printing,  ///< shows the print panel in place of the main buttons
};

/// All that the detail screen shows.
struct DetailView {
  HeadView head;
  std::string_view material;  ///< `lblMaterial`: who supplies the steel
  std::string total_weight;   ///< `lblTotalWeight`
  DetailLayout layout;
  std::vector<std::string_view> captions;
  GridRows rows;
  std::vector<std::size_t> totals;    ///< rows that are sums of others
  std::optional<RowColours> colours;  ///< nothing: all rows are alike

  DetailMode mode = DetailMode::buttons;
  bool busy = false;                               ///< a tally runs: the wait notice shows
  std::array<bool, kDetailButtonCount> enabled{};  ///< by `DetailButton`
  std::string percent;                             ///< shown in percent mode

  std::array<std::string, 3> memos;
  std::string memo_position;  ///< "0" below, "1" above
  std::string installed;      ///< "0" no, "1" yes
  DatePlace date_place = DatePlace::centre;
  bool fields_enabled = true;  ///< memos, positions, date
  std::string notice;          ///< what has become of the last sheet
  PrintPanelView print_panel;  ///< with the date, which is shown all the time

  std::string_view focus;  ///< control that takes it; empty: it stays
  bool left = false;       ///< the screen is to be closed

  bool IsEnabled(DetailButton button) const { return enabled[static_cast<std::size_t>(button)]; }
};

}  // namespace rbt
