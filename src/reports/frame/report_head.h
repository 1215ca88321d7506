// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/print/printer_surface.h"
#include "reports/frame/report_site.h"

namespace rbt {

/// The rows of a page: row `r` (a fraction in heads) stands at `LineUnit` * r + `BaseY` twips; a text in a
/// row stands `kTextDrop` lower.
struct RowGrid {
  float LineUnit = 0.0F;
  float BaseY = 0.0F;

  float Y(double row) const { return static_cast<float>(row * LineUnit + BaseY); }
};
inline constexpr float kTextDrop = 50.0F;

/// A text at X over a rule from X to X.
struct RuledText {
  float x;
  float rule_from;
  float rule_to;
};

/// Labels of the project line: of a long name on one line, of one on two lines, of a short name.
struct ProjectLabels {
  std::string_view long_name;
  std::string_view broken_name;
  std::string_view short_name;
};
inline constexpr ProjectLabels kProjectLabels{"工事名", "工事名　", "工事名  "};

/// The measures of one kind of head, twips.
struct HeadLayout {
  std::string_view title;
  RuledText title_place;
  float title_drop;  ///< from the top of the page to the title
  float line_gap;    ///< what a row has beside the height of its text
  float margin;      ///< X of the lines' left end
  float short_name_x;
  float name_indent;       ///< from the margin to a long name
  float broken_name_size;  ///< points from which a long name on two lines shrinks; one on one line from 12
  ProjectLabels labels;
  std::int32_t rule_width_without_client;  ///< DrawWidth under the project's name; with a client line it is 2
  float project_rule_to;                   ///< 0: the rule under the project name is as long as the name
  float long_sub_project_size;  ///< points, of more than 22 characters under a long name; others stand in 12
  float sub_project_end;  ///< X that the sub-project text may reach beside the own-company block, 0: any
  float date_drop;        ///< from row 1 up to the date
  RuledText western_date;
  RuledText era_date;
};

/// Title, client line and project lines; returns the rows of the page below.
RowGrid DrawHead(PrinterSurface& Printer, const HeadLayout& layout, const ReportSite& site,
                 const ReportArguments& arguments);
/// 総重量 in row 6, in kilograms.
void DrawTotalLine(PrinterSurface& Printer, const RuledText& place, const RowGrid& grid, double kilograms);
void DrawDate(PrinterSurface& Printer, const HeadLayout& layout, const RowGrid& grid, const ReportSite& site,
              const ReportArguments& arguments);

/// A text and the rule under it, which stands where the pen is after the text.
void PrintRuled(PrinterSurface& Printer, const RuledText& place, float y,
                std::initializer_list<std::string_view> items);

}  // namespace rbt
