// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "reports/frame/report_head.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_site.h"
#include "reports/frame/row_grid.h"
#include "tally/tally_grid.h"

namespace rbt {

/// What a comparison report is drawn from.
struct ComparisonSheet {
  ReportSite site;
  ReportArguments arguments;
  const TallyTable& table;
  std::array<std::string, 12> grades;  ///< steel grade of D10 to D51
  double ulbon_weight = 0.0;           ///< UlbonWeightSum under the uplift of the arguments
  std::int32_t ulbon_welds = 0;        ///< UlbonWeldSum
  bool hides_cuts = false;             ///< no cut column
};

/// 総重量 of a sheet in kilograms: the installed weight for kind 'C', the stock weight for the others, with
/// Ulbon and spirals where they are wanted.
double TotalWeightOf(const ComparisonSheet& sheet, char kind);

/// What the head of a sheet says, its total weight included.
ReportHead ComparisonHeadOf(const ComparisonSheet& sheet, char kind);

/// The heads of A4 portrait, A4 landscape and B5 landscape. Each draws title, client, project and date, that
/// of A4 portrait the total weight too, and returns the rows of the page.
RowGrid Taihi_Head_A4T(ReportPen& pen, const ReportHead& head);
RowGrid Taihi_Head_A4Y(ReportPen& pen, const ReportHead& head);
RowGrid Taihi_Head_B5Y(ReportPen& pen, const ReportHead& head);
using HeadRoutine = RowGrid (*)(ReportPen& pen, const ReportHead& head);

}  // namespace rbt
