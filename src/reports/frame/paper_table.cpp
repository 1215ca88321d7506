// SPDX-License-Identifier: MIT
#include "reports/frame/paper_table.h"

#include "reports/frame/letter_spacing.h"
#include "reports/frame/report_text.h"

namespace rbt {

float CaptionX(const PrinterSurface& Printer, const ColumnBox& box, const Caption& caption) {
  switch (caption.align) {
    case Align::at_x:
      return caption.x;
    case Align::middle:
      return box.x + (box.width - Printer.TextWidth(caption.text)) / 2.0F;
    case Align::right:
      return box.Right() - caption.x - Printer.TextWidth(caption.text);
    case Align::short_label:
      return box.x + Get_RightX(caption.text);
  }
  return caption.x;
}

void DrawRowRule(PrinterSurface& Printer, const RowGrid& rows, int row, const RowRule& rule) {
  Printer.DrawWidth = rule.draw_width;
  Printer.Line(rule.from, rows.Y(row), rule.to, rows.Y(row));
}

void DrawVerticals(PrinterSurface& Printer, const FrameRules& rules, const RowGrid& rows,
                   const RowRange& range) {
  for (const FrameRule& rule : rules) {
    Printer.DrawWidth = rule.draw_width;
    Printer.Line(rule.x, rows.Y(range.first), rule.x, rows.Y(range.last));
  }
}

void DrawFrame(PrinterSurface& Printer, const FrameRules& rules, const RowGrid& rows, const RowRange& range,
               std::int32_t row_width) {
  DrawVerticals(Printer, rules, rows, range);
  const RowRule rule{rules.front().x, rules.back().x, row_width};
  for (int row = range.first; row <= range.last; ++row) DrawRowRule(Printer, rows, row, rule);
}

void DrawCell(ReportPen& pen, const TablePlace& place, const TableRow& row, const TableCell& cell,
              std::string_view caption, const CellValue& value) {
  PrinterSurface& Printer = pen.Printer;
  const float size = Printer.FontSize;
  const auto* text = std::get_if<std::string>(&value);
  if (text != nullptr && cell.text_width > 0) ShrinkToWidth(Printer, *text, cell.text_width);
  PrintField(pen, place.left + (row.is_total ? cell.total_x : cell.x), place.TextY(row.row), cell.number,
             value, {row.name, caption});
  Printer.FontSize = size;
}

}  // namespace rbt
