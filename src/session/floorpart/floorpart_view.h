// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/floorpart/floor_input.h"
#include "session/floorpart/floorpart_columns.h"
#include "session/panels/row_colours.h"
#include "session/panels/views.h"

namespace rbt {

/// The panel that asks for the floors.
struct FloorInputView {
  bool shown = true;
  bool enabled = true;
  std::string notice;  ///< which floors there are
  FloorInput::Texts boxes;
  bool installed = false;  ///< the choice of weight
};

/// The grid of floors or diameters by parts.
struct FloorPartGridView {
  std::vector<FloorPartColumn> columns;
  std::vector<std::vector<std::string>> rows;  ///< the total row last
  std::optional<RowColours> colours;           ///< nothing: all rows are alike
  bool open = false;                           ///< cells can be corrected by hand
};

/// Where the focus goes.
enum class FloorPartFocus {
  stays,
  start,       ///< the box of the first floor
  end,         ///< of the last one
  run,         ///< the button that tallies
  first_row,   ///< of the grid
  first_cell,  ///< the first part of the first row
  uplift,
  year,   ///< of the date to print
  month,  ///< likewise
  day,
};

/// All that a screen of floors or parts shows.
struct FloorPartView {
  HeadView head;
  std::string scope;             ///< the floors that are tallied
  std::string_view weight_word;  ///< which weight the floor screen shows
  FloorInputView input;
  FilterView filters;
  FloorPartGridView grid;       ///< shown when the input is not
  bool busy = false;            ///< a tally runs
  std::string_view raise_note;  ///< told while figures are being raised

  bool main_buttons_shown = true;
  ButtonView open_print;
  ButtonView change_floors;
  ButtonView change_weights;
  ButtonView save;
  ButtonView load;
  ButtonView manage;
  ButtonView leave;
  UpliftView uplift;

  PrintPanelView print_panel;
  FloorPartFocus focus = FloorPartFocus::stays;  ///< asked for once
  bool beep = false;                             ///< likewise
  bool left = false;                             ///< the screen is to be closed
};

}  // namespace rbt
