// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "reports/frame/report_pen.h"

namespace rbt {

/// What the sheets of a plan tell at their head.
struct PlanSheetHead {
  std::string project;  ///< empty: pieces of a file
  std::string client;
  std::string date;  ///< as it is printed
};

/// The sheets of a plan are A4 portrait; places are twips.
inline constexpr float kPlanSheetLeft = 1000;
inline constexpr float kPlanSheetRight = 10900;
/// Where the rows of a page begin, and how many lines of this height it has.
inline constexpr float kPlanSheetTop = 2300;
inline constexpr float kPlanSheetLine = 200;
inline constexpr int kPlanSheetLines = 66;

/// Title, client and project, date, number of the page.
void DrawPlanHead(ReportPen& pen, std::string_view title, const PlanSheetHead& head);

}  // namespace rbt
