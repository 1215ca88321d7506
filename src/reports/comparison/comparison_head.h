// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/print/printer_surface.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_site.h"
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
  bool hides_cuts = false;             ///< no cut column: start modes 1 and 3
};

/// 総重量 of a sheet in kilograms: the installed weight for kind 'C', the stock weight for the others, with
/// Ulbon and spirals where they are wanted.
double TotalWeightOf(const ComparisonSheet& sheet, char kind);

/// The heads. Each draws title, client, project and date, that of A4 portrait the total weight too, and
/// answers with `LineUnit` and `BaseY` of the page, joined by a comma.
std::string Taihi_Head_A4T(PrinterSurface& Printer, const ComparisonSheet& sheet, char kind);
std::string Taihi_Head_A4Y(PrinterSurface& Printer, const ComparisonSheet& sheet, char kind);
std::string Taihi_Head_B5Y(PrinterSurface& Printer, const ComparisonSheet& sheet, char kind);
using HeadRoutine = std::string (*)(PrinterSurface& Printer, const ComparisonSheet& sheet, char kind);

/// The rows that a head answered with.
RowGrid RowGridOf(std::string_view head_answer);

}  // namespace rbt
