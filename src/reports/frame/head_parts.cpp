// SPDX-License-Identifier: MIT
#include "reports/frame/head_parts.h"

#include <algorithm>
#include <string>

#include "platform/text/characters.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/own_company.h"
#include "reports/frame/print_jisya.h"
#include "reports/frame/report_text.h"

namespace rbt {

namespace {

float LineY(const PrinterSurface& Printer, const RowPlace& row, const RowGrid& grid) {
  return row.Y(grid, Printer.TextHeight("M"));
}

void RuleAt(PrinterSurface& Printer, float y, float from, float to) { Printer.Line(from, y, to, y); }

/// Where a name of a form stands over its rule.
RuledText NamePlace(const ProjectPart& part, const NameForm& form) {
  return {form.name_x, part.x, form.rule_to};
}

/// The project's name in one of its forms.
struct ProjectLine {
  ReportPen& pen;
  const ProjectPart& part;
  const RowGrid& grid;
  bool over_sub_project;

  void operator()(const ShortName& name) const {
    PrinterSurface& Printer = pen.Printer;
    const NameForm& form = part.short_form;
    Printer.FontSize = form.label_size;
    const float y = LineY(Printer, part.short_row, grid);
    PrintAt(Printer, part.x, y, {form.label});
    const float under_label = Printer.CurrentY;
    Printer.FontSize = form.size;
    if (part.short_name_width > 0) ShrinkToWidth(Printer, name.name, part.short_name_width);
    PrintAt(Printer, form.name_x, y, {name.name});
    const float under_line = std::max(under_label, Printer.CurrentY);
    const float rule_y = part.short_rule_row ? LineY(Printer, *part.short_rule_row, grid) : under_line;
    RuleAt(Printer, rule_y, part.x, RuleEndX(Printer, NamePlace(part, form), name.name));
  }

  void operator()(const OneLineName& name) const {
    PrinterSurface& Printer = pen.Printer;
    const NameForm& form = part.long_form;
    Printer.FontSize = form.label_size;
    const float y = LineY(Printer, over_sub_project ? part.long_row_over_sub_project : part.long_row, grid);
    PrintAt(Printer, part.x, y, {form.label});
    const float under_label = Printer.CurrentY;
    Printer.FontSize = form.size;
    ShrinkToWidth(Printer, name.name, part.long_name_width);
    PrintAt(Printer, form.name_x, y, {name.name});
    // A name that shrank is lower than its label, and neither rule nor next line may run through that.
    const float under_line = std::max(under_label, Printer.CurrentY);
    RuleAt(Printer, under_line, part.x, RuleEndX(Printer, NamePlace(part, form), name.name));
  }

  void operator()(const BrokenName& name) const {
    PrinterSurface& Printer = pen.Printer;
    const NameForm& form = part.broken_form;
    Printer.FontSize = form.label_size;
    const bool labels_both = !part.rest_label.empty();
    if (labels_both) PrintAt(Printer, part.x, LineY(Printer, part.first_row, grid), {form.label});
    PrintAt(Printer, part.x, LineY(Printer, part.second_row, grid),
            {labels_both ? part.rest_label : form.label});
    const float under_label = Printer.CurrentY;
    const std::string_view longer = LongerPiece({name.first, name.rest});
    Printer.FontSize = form.size;
    ShrinkToWidth(Printer, longer, part.long_name_width);
    PrintAt(Printer, form.name_x, LineY(Printer, part.first_row, grid), {name.first});
    PrintAt(Printer, form.name_x, LineY(Printer, part.second_row, grid), {name.rest});
    const float under_line = std::max(under_label, Printer.CurrentY);
    RuleAt(Printer, under_line, part.x, RuleEndX(Printer, NamePlace(part, form), longer));
  }
};

/// Row of the sub-project text under the project's name, none where there is no room.
std::optional<RowPlace> SubProjectRow(const SubProjectPart& part, const ProjectName& project) {
  if (std::holds_alternative<ShortName>(project)) return part.under_short;
  return std::holds_alternative<OneLineName>(project) ? part.under_long : part.under_broken;
}

/// In the size that goes by the form of the name, unless the text would run into what stands beside it.
float SubProjectSize(const SubProjectPart& part, const ReportHead& head, std::string_view text) {
  constexpr std::size_t kLongText = 22;
  constexpr float kSmallSize = 7;
  const bool is_long =
      std::holds_alternative<OneLineName>(head.project) && CharacterCount(head.sub_project) > kLongText;
  const float size = is_long ? part.long_text_size : part.size;
  const bool runs_on = part.text_end > 0 && part.x + TextWidthAt(size, text) > part.text_end;
  return runs_on ? kSmallSize : size;
}

/// The table starts higher on some pages: a block of many lines that would run into it moves up.
float OwnCompanyTop(const OwnCompanyPart& part, const RowGrid& grid) {
  if (part.clear_of_row <= 0) return part.y;
  const float bottom = OwnCompanyBottom(ReadOwnCompany(), part.y, kReportLineGap);
  return part.y - std::max(0.0F, bottom - grid.Y(part.clear_of_row));
}

}  // namespace

void DrawPart(ReportPen& pen, const ClientPart& part, const RowGrid& grid, const ReportHead& head) {
  if (head.client.empty()) return;
  PrinterSurface& Printer = pen.Printer;
  SetReportFont(Printer, part.size);
  Printer.DrawWidth = part.rule_width;
  const std::string text = std::string(part.before) + head.client + std::string(part.behind);
  if (part.text_end > 0) ShrinkToWidth(Printer, text, part.text_end - part.place.x);
  const bool whole = part.place.rule_to.by == RuleBy::width;
  PrintRuled(Printer, part.place, LineY(Printer, part.row, grid), text, whole ? text : head.client);
}

void DrawPart(ReportPen& pen, const ProjectPart& part, const RowGrid& grid, const ReportHead& head) {
  SetReportFont(pen.Printer, part.short_form.label_size);
  pen.Printer.DrawWidth = head.client.empty() ? part.rule_width_without_client : part.rule_width;
  std::visit(ProjectLine{pen, part, grid, !head.sub_project.empty()}, head.project);
}

void DrawPart(ReportPen& pen, const SubProjectPart& part, const RowGrid& grid, const ReportHead& head) {
  const std::optional<RowPlace> row = SubProjectRow(part, head.project);
  if (!row || head.sub_project.empty()) return;
  const std::string text = std::string(part.before) + head.sub_project + std::string(part.behind);
  SetReportFont(pen.Printer, SubProjectSize(part, head, text));
  PrintAt(pen.Printer, part.x, LineY(pen.Printer, *row, grid), {text});
}

void DrawPart(ReportPen& pen, const WeightPart& part, const RowGrid& grid, const ReportHead& head) {
  const std::optional<double>& kilograms = head.*part.kilograms;
  if (!kilograms) return;
  SetReportFont(pen.Printer, part.size);
  pen.Printer.DrawWidth = part.rule_width;
  const std::string weight =
      NotedFieldText(pen, TotalWeightField(*kilograms, part.tonnes_mask), *kilograms, {part.label, {}});
  PrintRuled(pen.Printer, part.place, LineY(pen.Printer, part.row, grid),
             std::string(part.label) + "  " + weight);
}

void DrawPart(ReportPen& pen, const DatePart& part, const RowGrid& grid, const ReportHead& head) {
  SetReportFont(pen.Printer, part.size);
  pen.Printer.DrawWidth = part.rule_width;
  PrintRuled(pen.Printer, head.date.western ? part.western : part.era, LineY(pen.Printer, part.row, grid),
             DateText(head.date));
}

void DrawPart(ReportPen& pen, const TextPart& part, const RowGrid& grid, const ReportHead& head) {
  const std::string& text = head.*part.text;
  if (text.empty()) return;
  SetReportFont(pen.Printer, part.size, part.bold);
  PrintAt(pen.Printer, part.x, LineY(pen.Printer, part.row, grid), {text});
}

void DrawPart(ReportPen& pen, const PagePart& part, const RowGrid& grid, const ReportHead& /*head*/) {
  SetReportFont(pen.Printer, part.size);
  PrintAt(pen.Printer, part.x, LineY(pen.Printer, part.row, grid), {"page:", std::to_string(pen.page)});
}

void DrawPart(ReportPen& pen, const OwnCompanyPart& part, const RowGrid& grid, const ReportHead& /*head*/) {
  PrintOwnCompany(pen.Printer, part.x, OwnCompanyTop(part, grid), part.label_font);
}

}  // namespace rbt
