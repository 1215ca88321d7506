// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "planning/outcome/outcome.h"
#include "reports/frame/report_pen.h"

namespace rbt {

/// What the sheets of a plan tell at their head.
struct PlanSheetHead {
  std::string project;  ///< empty: pieces of a file
  std::string client;
  std::string date;       ///< as it is printed
  std::string selection;  ///< what is left out of the site; empty: nothing
};

/// The sheets of a plan are A4 portrait; places are twips.
inline constexpr float kPlanSheetLeft = 1000;
inline constexpr float kPlanSheetRight = 10900;
/// Where the rows of a page begin, and how many lines of this height it has.
inline constexpr float kPlanSheetTop = 2300;
inline constexpr float kPlanSheetLine = 200;
inline constexpr int kPlanSheetLines = 66;

/// Title, client and project, date, number of the page, how bars are cut, what is left out of the site, and
/// whether there was more to try when the search for the plan ended.
void DrawPlanHead(ReportPen& pen, std::string_view title, const PlanSheetHead& head,
                  const planning::Outcome& outcome);

}  // namespace rbt
