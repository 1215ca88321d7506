// SPDX-License-Identifier: MIT
#include "reports/frame/report_head.h"

#include <algorithm>
#include <string>

#include "platform/text/characters.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/number_field.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/report_text.h"
#include "shell/calendar/new_era_function.h"

namespace rbt {

namespace {

constexpr std::int32_t kOneLine = 50;  ///< the break that stands for none
constexpr float kTitleSize = 18;
constexpr float kLineSize = 13;
constexpr float kNameSize = 12;
constexpr float kTotalSize = 14;
constexpr float kSmallSize = 7;

void RuleUnderPen(PrinterSurface& Printer, float from, float to) {
  Printer.Line(from, Printer.CurrentY, to, Printer.CurrentY);
}

/// Returns the Y of the page's first line.
float DrawTitle(PrinterSurface& Printer, const HeadLayout& layout) {
  MeasureLine(Printer);
  SetReportFont(Printer, kTitleSize, true);
  Printer.DrawWidth = 4;
  const float y = Printer.CurrentY + layout.title_drop;
  PrintRuled(Printer, layout.title_place, y, {layout.title});
  return y + 2 * MeasureLine(Printer);
}

RowGrid DrawClient(PrinterSurface& Printer, const HeadLayout& layout, const std::string& client, float y) {
  SetReportFont(Printer, kLineSize);
  RowGrid grid{MeasureLine(Printer) + layout.line_gap, y};
  Printer.DrawWidth = client.empty() ? layout.rule_width_without_client : 2;
  if (client.empty()) return grid;
  grid.BaseY += 2 * grid.LineUnit;
  // Long enough for a 御中 that the line does not carry.
  const std::int32_t bytes = Get_ByteLen(client + "　御中");
  const float length = static_cast<float>(bytes) * 283.0F / 2.0F + 100.0F;
  PrintRuled(Printer, {layout.margin, layout.margin, layout.margin + length}, grid.BaseY,
             {"取引先", "  ", client});
  return grid;
}

/// In a size of its own, told by the form of the project name, unless the text would run into the own-company
/// block.
void PrintSubProject(PrinterSurface& Printer, const HeadLayout& layout, float y, float size,
                     const std::string& sub_project) {
  const std::string text = "　　　（" + sub_project + "）";
  Printer.FontSize = size;
  const bool runs_on =
      layout.sub_project_end > 0 && layout.margin + Printer.TextWidth(text) > layout.sub_project_end;
  if (runs_on) Printer.FontSize = kSmallSize;
  PrintAt(Printer, layout.margin, y, {text});
}

/// Takes half points off the font until a name of that many bytes ends within the head.
void ShrinkToFit(PrinterSurface& Printer, const HeadLayout& layout, std::int32_t bytes) {
  constexpr float kLimit = 6000;
  constexpr float kStep = 0.5F;
  while (Printer.FontSize > kStep &&
         layout.name_indent + static_cast<float>(bytes) * Printer.TextWidth("M") > kLimit) {
    Printer.FontSize -= kStep;
  }
}

float ProjectRuleEnd(const HeadLayout& layout, double length) {
  return layout.project_rule_to > 0 ? layout.project_rule_to : static_cast<float>(layout.margin + length);
}

/// Under a long name of that many bytes in the font it stands in.
float LongNameRuleEnd(const PrinterSurface& Printer, const HeadLayout& layout, std::int32_t bytes) {
  return ProjectRuleEnd(layout, layout.name_indent + bytes / 2.0 * Printer.FontSize * 20.1 + 100);
}

void DrawLongName(PrinterSurface& Printer, const HeadLayout& layout, const RowGrid& grid,
                  const std::string& name, const std::string& sub_project) {
  constexpr std::size_t kLongSubProject = 22;
  Printer.FontSize = kNameSize;
  const float y = grid.Y(sub_project.empty() ? 2.0 : 1.3) - Printer.TextHeight("M") + 400;
  PrintAt(Printer, layout.margin, y, {layout.labels.long_name});
  const float under_label = Printer.CurrentY;
  const std::int32_t bytes = Get_ByteLen(name);
  ShrinkToFit(Printer, layout, bytes);
  PrintAt(Printer, layout.margin + layout.name_indent, y, {name});
  // A name that shrank is lower than its label, and neither rule nor next line may run through that.
  const float under_line = std::max(under_label, Printer.CurrentY);
  Printer.Line(layout.margin, under_line, LongNameRuleEnd(Printer, layout, bytes), under_line);
  if (sub_project.empty()) return;
  const bool is_long = CharacterCount(sub_project) > kLongSubProject;
  PrintSubProject(Printer, layout, under_line, is_long ? layout.long_sub_project_size : kNameSize,
                  sub_project);
}

/// On two lines there is no room for a sub-project text.
void DrawBrokenName(PrinterSurface& Printer, const HeadLayout& layout, const RowGrid& grid,
                    const ReportSite& site) {
  const auto print_above = [&](float x, double row, std::string_view text) {
    PrintAt(Printer, x, grid.Y(row) - Printer.TextHeight("M"), {text});
  };
  Printer.FontSize = kNameSize;
  print_above(layout.margin, 3.5, layout.labels.broken_name);
  Printer.FontSize = layout.broken_name_size;
  const CutName name = CutAtBreak(site.long_name, site.koji_break);
  const std::int32_t bytes = Get_ByteLen(LongerPiece(name));
  ShrinkToFit(Printer, layout, bytes);
  print_above(layout.margin + layout.name_indent, 2.5, name.first);
  print_above(layout.margin + layout.name_indent, 3.5, name.rest);
  RuleUnderPen(Printer, layout.margin, LongNameRuleEnd(Printer, layout, bytes));
}

void DrawShortName(PrinterSurface& Printer, const HeadLayout& layout, const RowGrid& grid,
                   const std::string& name, const std::string& sub_project) {
  Printer.FontSize = kNameSize;
  PrintAt(Printer, layout.margin, grid.Y(2), {layout.labels.short_name});
  PrintAt(Printer, layout.short_name_x, grid.Y(2), {name});
  const float end = ProjectRuleEnd(layout, static_cast<double>(CharacterCount(name)) * 264 + 1600);
  Printer.Line(layout.margin, grid.Y(2.7), end, grid.Y(2.7));
  if (!sub_project.empty()) PrintSubProject(Printer, layout, grid.Y(3.3), kNameSize, sub_project);
}

void DrawProject(PrinterSurface& Printer, const HeadLayout& layout, const RowGrid& grid,
                 const ReportSite& site, const std::string& sub_project) {
  SetReportFont(Printer, kLineSize);
  if (site.long_name.empty()) {
    DrawShortName(Printer, layout, grid, site.short_name, sub_project);
  } else if (site.koji_break == kOneLine) {
    DrawLongName(Printer, layout, grid, site.long_name, sub_project);
  } else {
    DrawBrokenName(Printer, layout, grid, site);
  }
}

/// "重量対比表 見本町集合住宅": the title without the blanks that spread it over the page, and the site.
std::string DocumentTitle(const HeadLayout& layout, const ReportSite& site) {
  const std::string title = ReplaceAll(ReplaceAll(layout.title, " ", ""), "　", "");
  return site.short_name.empty() ? title : title + " " + site.short_name;
}

}  // namespace

void PrintRuled(PrinterSurface& Printer, const RuledText& place, float y,
                std::initializer_list<std::string_view> items) {
  PrintAt(Printer, place.x, y, items);
  RuleUnderPen(Printer, place.rule_from, place.rule_to);
}

RowGrid DrawHead(PrinterSurface& Printer, const HeadLayout& layout, const ReportSite& site,
                 const ReportArguments& arguments) {
  Printer.DocumentTitle = DocumentTitle(layout, site);
  const float y = DrawTitle(Printer, layout);
  const RowGrid grid = DrawClient(Printer, layout, site.client, y);
  DrawProject(Printer, layout, grid, site, arguments.SubProject);
  return grid;
}

void DrawTotalLine(PrinterSurface& Printer, const RuledText& place, const RowGrid& grid, double kilograms) {
  constexpr double kRow = 6;
  SetReportFont(Printer, kTotalSize);
  Printer.DrawWidth = 3;
  PrintRuled(Printer, place, grid.Y(kRow),
             {"総重量", "  ", FieldText(TotalWeightField(kilograms), kilograms)});
}

void DrawDate(PrinterSurface& Printer, const HeadLayout& layout, const RowGrid& grid, const ReportSite& site,
              const ReportArguments& arguments) {
  SetReportFont(Printer, kNameSize);
  Printer.DrawWidth = 2;
  const float y = grid.Y(1) - layout.date_drop;
  const std::string month = RightAligned(arguments.Month, 2);
  const std::string day = RightAligned(arguments.Day, 2);
  if (site.western_dates) {
    PrintRuled(Printer, layout.western_date, y,
               {RightAligned(arguments.Year, 4), " 年 ", month, " 月 ", day, " 日"});
  } else {
    const std::string year = RightAligned(arguments.Year, 2);
    PrintRuled(Printer, layout.era_date, y,
               {EraNameOfYear(year + month + day), " ", year, " 年 ", month, " 月 ", day, " 日"});
  }
}

}  // namespace rbt
