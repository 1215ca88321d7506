// SPDX-License-Identifier: MIT
#include "reports/frame/report_head.h"

#include <algorithm>

#include "platform/text/characters.h"
#include "reports/frame/head_parts.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/report_text.h"
#include "shell/calendar/new_era_function.h"

namespace rbt {

namespace {

constexpr std::int32_t kOneLine = 50;  ///< the break that stands for none
constexpr float kTitleSize = 18;
constexpr std::int32_t kTitleRuleWidth = 4;

/// "重量対比表 見本町集合住宅": the title without the blanks that spread it over the page, and the site.
std::string DocumentTitle(std::string_view title, const ReportSite& site) {
  const std::string words = ReplaceAll(ReplaceAll(title, " ", ""), "　", "");
  return site.short_name.empty() ? words : words + " " + site.short_name;
}

/// Returns the title's Y.
float DrawTitle(PrinterSurface& Printer, const HeadLayout& layout, const std::string& title) {
  MeasureLine(Printer);
  SetReportFont(Printer, kTitleSize, true);
  Printer.DrawWidth = kTitleRuleWidth;
  const float y = Printer.CurrentY + layout.title_y;
  PrintRuled(Printer, layout.title, y, title);
  return y;
}

/// The rows of a page whose title stands at `title_y`, in the title's font.
RowGrid RowsBelow(PrinterSurface& Printer, float title_y, const HeadRows& rows, bool has_client) {
  const float top = title_y + rows.title_lines * MeasureLine(Printer);
  SetReportFont(Printer, rows.text_size);
  RowGrid grid{MeasureLine(Printer) + rows.gap, top};
  if (has_client) grid.BaseY += rows.client_rows * grid.LineUnit;
  return grid;
}

}  // namespace

ProjectName ProjectNameOf(const ReportSite& site) {
  if (site.long_name.empty()) return ShortName{site.short_name};
  if (site.koji_break == kOneLine) return LongName{site.long_name};
  const CutName cut = CutAtBreak(site.long_name, site.koji_break);
  return BrokenName{std::string(cut.first), std::string(cut.rest)};
}

std::string DateText(const ReportDate& date) {
  const std::string month = RightAligned(date.month, 2);
  const std::string day = RightAligned(date.day, 2);
  const std::string from_month = " 年 " + month + " 月 " + day + " 日";
  if (date.western) return RightAligned(date.year, 4) + from_month;
  const std::string year = RightAligned(date.year, 2);
  return std::string(EraNameOfYear(year + month + day)) + " " + year + from_month;
}

ReportHead HeadOf(std::string_view title, const ReportSite& site, const ReportArguments& arguments) {
  return {.title = std::string(title),
          .document_title = DocumentTitle(title, site),
          .client = site.client,
          .project = ProjectNameOf(site),
          .sub_project = arguments.SubProject,
          .date = {site.western_dates, arguments.Year, arguments.Month, arguments.Day}};
}

RowGrid DrawHead(ReportPen& pen, const HeadLayout& layout, const ReportHead& head) {
  pen.Printer.DocumentTitle = head.document_title;
  const float title_y = DrawTitle(pen.Printer, layout, head.title);
  const RowGrid grid = RowsBelow(pen.Printer, title_y, layout.rows, !head.client.empty());
  for (const HeadPart& part : layout.parts) DrawHeadPart(pen, part, grid, head);
  return grid;
}

void DrawHeadPart(ReportPen& pen, const HeadPart& part, const RowGrid& grid, const ReportHead& head) {
  std::visit([&](const auto& one) { DrawPart(pen, one, grid, head); }, part);
}

}  // namespace rbt
