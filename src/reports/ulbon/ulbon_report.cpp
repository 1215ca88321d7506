// SPDX-License-Identifier: MIT
#include "reports/ulbon/ulbon_report.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "data/bar_tables.h"
#include "reports/frame/grid_head_parts.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/number_field.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_pen.h"
#include "reports/ulbon/ulbon_sums.h"

namespace rbt {

namespace {

constexpr std::string_view kTitle = "ウ ル ボ ン 重 量 表";

/// The frame has room for the twelve deformed diameters too.
constexpr int kFirstRow = 7;
constexpr int kLastRow = 21;
constexpr int kFirstUlbonRow = kFirstRow + 1;
constexpr int kTotalRow = kFirstUlbonRow + (kDiameterRows - kDeformedRows);

constexpr ProjectPart UlbonProject() {
  ProjectPart part = ProjectFrom(1800, 2760, 960);
  for (NameForm* form : {&part.short_form, &part.long_form, &part.broken_form}) {
    form->label = "工事名　";
    form->rule_to = EndsAt(9300);
  }
  part.broken_form.size = 12;
  part.rule_width_without_client = 2;
  return part;
}

constexpr std::array<HeadPart, 5> kHeadParts{
    ClientFrom(1800), UlbonProject(), SubProjectFrom(1800, 12, 9900),
    WeightPart{.kilograms = &ReportHead::total_weight, .place = {1900, 1800, EndsAt(5100)}},
    DatePart{{11800, 11700, EndsAt(14100)}, {11600, 11500, EndsAt(14300)}, {1, -1300}}};
constexpr HeadLayout kHead{{5900, 5700, EndsAt(9400)},
                           500,
                           {.text_size = 13, .gap = 100, .title_lines = 2, .client_rows = 2},
                           kHeadParts};
/// Without a client line the table starts higher.
constexpr OwnCompanyPart kOwnCompany{.x = 10000, .y = 2300, .clear_of_row = kFirstRow};

constexpr std::array<float, 6> kRules{1800, 3800, 6800, 9800, 12800, 14300};
struct Heading {
  float x;
  std::string_view text;
};
/// Only the installed weight of this material is known: the columns of stock and difference stay empty.
constexpr Heading kHeadings[] = {{2100, "太　　　さ"},
                                 {4250, "定   尺   重   量"},
                                 {7250, "取   付   重   量"},
                                 {10350, "差            引"},
                                 {13050, "圧　　接"}};
constexpr std::string_view kLabels[] = {"U  6", "U  7", "U  9", "U 11", "U 12", "U 16"};
constexpr float kLabelX = 2000;
constexpr float kWeightX = 7900;
constexpr std::size_t kWeightCharacters = 11;
constexpr float kWeldX = 13100;
constexpr std::size_t kWeldCharacters = 7;

constexpr float kTextSize = 12;
constexpr std::int32_t kFrameWidth = 5;

void DrawFrame(PrinterSurface& Printer, const RowGrid& grid) {
  Printer.DrawWidth = kFrameWidth;
  for (const float x : kRules) Printer.Line(x, grid.Y(kFirstRow), x, grid.Y(kLastRow));
  for (int row = kFirstRow; row <= kLastRow; ++row) {
    Printer.Line(kRules.front(), grid.Y(row), kRules.back(), grid.Y(row));
  }
}

template <typename Number>
void DrawRow(PrinterSurface& Printer, float y, std::string_view label, Number weight, std::int32_t welds) {
  PrintAt(Printer, kLabelX, y, {label});
  PrintAt(Printer, kWeightX, y, {FieldText({kWeightCharacters, kCellMask, " Kg"}, weight)});
  PrintAt(Printer, kWeldX, y, {FieldText({kWeldCharacters}, std::int64_t{welds})});
}

void DrawTable(PrinterSurface& Printer, const RowGrid& grid, const TallyTable& table, std::int32_t percent,
               double total) {
  DrawFrame(Printer, grid);
  SetReportFont(Printer, kTextSize);
  const auto text_y = [&](int row) { return grid.Y(row) + kTextDrop; };
  for (const Heading& heading : kHeadings) PrintAt(Printer, heading.x, text_y(kFirstRow), {heading.text});
  for (int d = kDeformedRows; d < kDiameterRows; ++d) {
    const int row = d - kDeformedRows;
    DrawRow(Printer, text_y(kFirstUlbonRow + row), kLabels[row], UlbonRowWeight(table, d, percent),
            table.UlbonWeldCount[d]);
  }
  DrawRow(Printer, text_y(kTotalRow), "合　　　計", total, UlbonWeldSum(table));
}

}  // namespace

Currency UlbonRowWeight(const TallyTable& table, int d, std::int32_t percent) {
  const Currency weight = Currency::FromDouble(table.UlbonWeight[d]) + table.SpiralUlbonByDia[d];
  const Currency uplift = Currency::FromDouble(weight.ToDouble() * percent / 100.0);
  return WholeKilograms(weight + uplift);
}

void DrawUlbonReport(PrinterSurface& Printer, const ReportSite& site, const ReportArguments& arguments,
                     const TallyTable& table) {
  const double total = UlbonWeightSum(table, 0);
  ReportHead head = HeadOf(kTitle, site, arguments);
  head.total_weight = total;
  ReportPen pen(Printer);
  const RowGrid grid = DrawHead(pen, kHead, head);
  DrawTable(Printer, grid, table, arguments.Percent, total);
  DrawHeadPart(pen, kOwnCompany, grid, head);
  Printer.EndDoc();
}

void Ulbon_Report(PrinterSurface& Printer, const ReportArguments& arguments) {
  DrawUlbonReport(Printer, ReadReportSite(), arguments, TallyGrid);
}

}  // namespace rbt
