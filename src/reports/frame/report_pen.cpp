// SPDX-License-Identifier: MIT
#include "reports/frame/report_pen.h"

#include "reports/frame/letter_spacing.h"
#include "reports/frame/print_frame.h"

namespace rbt {

void SetReportFont(PrinterSurface& Printer, float size, bool bold) {
  Printer.FontName = ReportFont;
  Printer.FontSize = size;
  Printer.FontBold = bold;
}

void ShrinkToWidth(PrinterSurface& Printer, std::string_view text, float width) {
  constexpr float kStep = 0.5F;
  while (Printer.FontSize > kStep && Printer.TextWidth(text) > width) Printer.FontSize -= kStep;
}

std::string NotedFieldText(ReportPen& pen, const NumberField& field, const CellValue& value,
                           const CellName& cell) {
  if (IsTooWide(field, value)) {
    pen.cut_figures.push_back(
        {pen.page, std::string(cell.row), std::string(cell.column), WholeText(field, value)});
  }
  return FieldText(field, value);
}

void PrintField(ReportPen& pen, float x, float y, const NumberField& field, const CellValue& value,
                const CellName& cell) {
  if (std::holds_alternative<std::monostate>(value)) return;
  PrintAt(pen.Printer, x, y, {NotedFieldText(pen, field, value, cell)});
}

}  // namespace rbt
