// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "planning/outcome/outcome.h"
#include "session/panels/row_colours.h"
#include "session/panels/views.h"
#include "tally/views/result_grid.h"

namespace rbt {

/// A bar to be drawn to scale, with what stands beside it.
struct PlanBarView {
  int stock_mm = 0;
  std::vector<std::int64_t> marks;  ///< mm from the bar's end, where its pieces end
  std::vector<int> cuts;            ///< lengths of the pieces, parallel to the marks
  std::int64_t left_mm = 0;         ///< the rest, which is hatched
  int trim_mm = 0;                  ///< cut off its end before the first piece
  std::string head;                 ///< "12000 x 14 本   2340x5   残 300 mm"
  std::string rows;                 ///< page and line of its pieces
};

/// All that the plan screen shows.
struct PlanScreenView {
  std::string title;                  ///< of the window: whose plan it is
  GridRows rows;                      ///< bars to buy, a row for each steel, by `PlanCaptions`
  std::vector<std::size_t> totals;    ///< rows that are sums of others
  std::optional<RowColours> colours;  ///< of every second row; nothing: all rows are alike
  std::vector<std::string> losses;    ///< of the schedule, of the rows alone, of the plan
  std::string bound;                  ///< and how far the plan is from it
  std::string counts;                 ///< cuts, patterns, lengths, usable rests
  std::string choices;                ///< where they are not the usual ones
  std::string progress;               ///< of the search, or how it ended
  bool improving = false;             ///< a thread is at work
  std::string patterns_of;            ///< the cell whose patterns are shown, and its kept bars; empty: none
  std::vector<PlanBarView> bars;      ///< of that cell
  int longest_mm = 1;                 ///< the scale of the bars: as long as the picture is wide
  std::string notice;                 ///< what has become of the last sheet
  bool left = false;                  ///< the screen is to be closed
};

/// The captions of the grid: the steel, a column for each stock length, number and weight, rest bars.
std::vector<std::string> PlanCaptions();

/// The bars to buy of a plan, and the rest bars that it cuts: the cells hold numbers of bars, empty for none;
/// the last row is the sum.
GridRows PlanRows(const planning::Outcome& outcome);

/// The patterns that cut a steel's bars of one stock length, or its rest bars, in all groups; `row` and
/// `column` are those of `PlanRows`. Empty for any other cell.
std::vector<PlanBarView> BarsOfCell(const planning::Outcome& outcome, std::size_t row, std::size_t column);
/// "D16 異形 12.0 m"; empty for a cell that names no bars.
std::string NameOfCell(const planning::Outcome& outcome, std::size_t row, std::size_t column);

/// How many bars of a cell are those of rows that stay as scheduled: "   加工帳のまま 76 本"; empty for none.
std::string KeptText(const planning::Outcome& outcome, std::size_t row, std::size_t column);
/// True for a cell that has patterns, or bars of rows that stay as scheduled.
bool HoldsBars(const planning::Outcome& outcome, std::size_t row, std::size_t column);

/// The words for the losses of the planned rows, beside them the rate of the tally; for bound and counts.
std::vector<std::string> LossTexts(const planning::Outcome& outcome);
std::string BoundText(const planning::Outcome& outcome);
std::string CountsText(const planning::Outcome& outcome);

/// What the controls of the screen do.
std::span<const ControlHint> PlanHints();

}  // namespace rbt
