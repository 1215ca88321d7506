// SPDX-License-Identifier: MIT
#include "reports/frame/draw_head.h"

#include <variant>

#include "platform/numbers/number_words.h"
#include "reports/frame/head_parts.h"
#include "reports/frame/letter_spacing.h"

namespace rbt {

namespace {

constexpr float kTitleSize = 18;
constexpr std::int32_t kTitleRuleWidth = 4;

/// A title of one letter or none is told by a message and stands at the left of its width.
void PrintSpreadTitle(PrinterSurface& Printer, const HeadLayout& layout, float y, const std::string& title) {
  const float gap =
      Get_MojiKankaku(Printer, ReportFont, ShortestDecimal(kTitleSize), layout.title_width, title);
  PrintSpread(Printer, layout.title.x, y, title, gap);
  const float rule_y = y + LineHeight(kTitleSize);
  const float rule_to = layout.title.x + layout.title_width + static_cast<float>(layout.title.rule_to.more);
  Printer.Line(layout.title.rule_from, rule_y, rule_to, rule_y);
}

/// Returns the title's Y.
float DrawTitle(PrinterSurface& Printer, const HeadLayout& layout, const ReportHead& head) {
  MeasureLine(Printer);
  SetReportFont(Printer, kTitleSize, true);
  Printer.DrawWidth = kTitleRuleWidth;
  const float y = Printer.CurrentY + layout.title_y;
  if (head.spreads_title) {
    PrintSpreadTitle(Printer, layout, y, head.title);
  } else {
    PrintRuled(Printer, layout.title, y, head.title);
  }
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

RowGrid DrawHead(ReportPen& pen, const HeadLayout& layout, const ReportHead& head) {
  pen.Printer.DocumentTitle = head.document_title;
  const float title_y = DrawTitle(pen.Printer, layout, head);
  const RowGrid grid = RowsBelow(pen.Printer, title_y, layout.rows, !head.client.empty());
  for (const HeadPart& part : layout.parts) DrawHeadPart(pen, part, grid, head);
  return grid;
}

void DrawHeadPart(ReportPen& pen, const HeadPart& part, const RowGrid& grid, const ReportHead& head) {
  std::visit([&](const auto& one) { DrawPart(pen, one, grid, head); }, part);
}

}  // namespace rbt
