// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "session/panels/row_colours.h"
#include "session/panels/views.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// All that a result screen shows.
struct ResultScreenView {
  HeadView head;
  RangeView range;           ///< of a scoped screen
  bool result_shown = true;  ///< filters and grid; a scoped screen has none before its tally
  FilterView filters;
  GridRows rows;
  std::vector<std::size_t> totals = {};  ///< rows that are sums of others
  std::optional<RowColours> colours;     ///< nothing: all rows are alike
  bool ulbon_view = false;               ///< the grid holds the Ulbon rows alone
  bool busy = false;                     ///< a tally runs: the wait notice shows

  bool main_buttons_shown = true;
  ButtonView print;
  ButtonView show_ulbon_view;
  ButtonView ulbon;  ///< begins the uplift, or prints the Ulbon report
  ButtonView print_deformed;
  ButtonView restore_values;
  ButtonView show_detail;
  ButtonView change_range;
  ButtonView toggle_accumulation;
  ButtonView show_plan;
  ButtonView leave;

  PrintPanelView print_panel;
  std::string notice = {};  ///< what has become of the last sheet
  FocusRequest focus;
  bool left = false;  ///< the screen is to be closed
};

}  // namespace rbt
