// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/panels/row_colours.h"
#include "session/panels/views.h"
#include "tally/views/result_grid.h"

namespace rbt {

inline constexpr std::string_view kNamesTitle = "登録名加工帳";

/// Columns of `tourokumei`.
inline constexpr int kNameMarkColumn = 2;

/// Controls that the focus goes to by what is typed.
inline constexpr std::string_view kNameGrid = "tourokumei";
inline constexpr std::string_view kRangeStartBox = "DelSNo";
inline constexpr std::string_view kRangeEndBox = "DelENo";
inline constexpr std::string_view kItemBox = "TaihiKmkT";
inline constexpr std::string_view kNameTallyButton = "btnA4Y";

/// All that the screen of registered names shows.
struct NamesView {
  HeadView head;
  GridRows rows;                      ///< `tourokumei`
  std::optional<RowColours> colours;  ///< nothing: all rows are alike
  bool to_first_row = false;          ///< asked for once: the list begins anew
  std::vector<std::string> selected;  ///< `List1`: the marked names, by their numbers
  std::string range_start;            ///< `DelSNo`
  std::string range_end;              ///< `DelENo`
  std::string item;                   ///< `TaihiKmkT`: the comparison item
  std::string_view message;           ///< `MSGB`
  bool busy = false;                  ///< `ACTMsg`
  std::string_view focus;             ///< control that takes it; empty: it stays
  bool left = false;                  ///< the screen is to be closed
};

}  // namespace rbt
