// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "reports/frame/report_site.h"

namespace rbt {

/// A text that belongs to a control of a layout that several screens share.
struct ControlText {
  std::string_view control;
  std::string_view text;
};

/// How a button stands.
struct ButtonView {
  bool shown = true;
  bool enabled = true;
  std::string_view caption = {};  ///< empty: as it is designed

  friend bool operator==(const ButtonView&, const ButtonView&) = default;
};

/// The head of a screen: the site, its client, date and time of the load.
struct HeadView {
  std::string site_number;  ///< "001"
  std::string site_name;
  std::string client_code;
  std::string client_name;
  std::string load_date;  ///< "yyyymmdd"
  std::string load_time;  ///< "hhnnss"
};

/// The percentage that the Ulbon rows are raised by.
struct UpliftView {
  bool shown = false;
  bool enabled = true;
  std::string text;
};

/// What a screen tells of its selection, with the buttons that change it.
struct FilterView {
  std::string kinds;
  std::string forms;
  ButtonView choose_kinds;
  ButtonView choose_forms;
  ButtonView recalculate{.shown = false};  ///< a worker, never in sight
  bool tells_hoops = true;                 ///< the words beside the button
  std::string_view hoops_note;             ///< the second of them
  ButtonView cycle_hoops;
  bool tells_plates = true;
  ButtonView cycle_plates;
  UpliftView uplift;
  bool accumulating = false;  ///< tells that sites are being added up
  std::string range = {};     ///< of the rows that the result is of; empty: all, unknown, or told elsewhere
  std::string warning;        ///< empty: there is none
};

/// The range that a scoped tally asks for.
struct RangeView {
  bool shown = true;
  bool enabled = true;
  bool has_rows = true;            ///< false: a notice in place of the boxes
  std::vector<std::string> texts;  ///< of the boxes, from the left
};

/// Sheets that can be printed now.
enum class Papers {
  all,
  a4,     ///< A4 alone, of both orientations
  ulbon,  ///< the Ulbon view: one paper button
  none    ///< nothing was tallied: settings and return alone
};

/// The print buttons in place of the main ones, the memo line and the date boxes.
struct PrintPanelView {
  bool open = false;
  Papers papers = Papers::all;
  bool preview = false;
  bool has_memo = true;             ///< the sheets bear a memo line
  std::string memo;                 ///< shown while the panel is open
  DateTexts date;                   ///< can be changed while the panel is open
  std::string printer_notice = {};  ///< empty: sheets go to the printer of the settings
  bool offers_printers = false;     ///< another printer can be taken
};

/// What a form tells of a control: as its tool tip, and in the status line while it has the focus.
struct ControlHint {
  std::string_view control;
  std::string_view hint;
};

/// Where the focus goes.
enum class FocusTarget {
  stays,
  grid,
  uplift,
  range,
  leave,
  a4_landscape,
  a4_portrait,
  settings,
  year  ///< of the date, or the box that many to its right
};

struct FocusRequest {
  FocusTarget target = FocusTarget::stays;
  std::size_t box = 0;  ///< of the range or the date, from the left

  friend bool operator==(const FocusRequest&, const FocusRequest&) = default;
};

}  // namespace rbt
