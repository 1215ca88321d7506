// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/print/printer_surface.h"
#include "reports/frame/number_field.h"

namespace rbt {

/// Names a cell to the reader of a sheet, by the words that stand there: the label of its row and the caption
/// of its column. One of the two may be empty.
struct CellName {
  std::string_view row;
  std::string_view column;
};

/// A number that was wider than its field and so stands on paper without its first characters.
struct CutFigure {
  std::int32_t page;  ///< from 1
  std::string row;    ///< as in `CellName`
  std::string column;
  std::string figure;  ///< the whole number, without the field's suffix

  friend bool operator==(const CutFigure&, const CutFigure&) = default;
};
using CutFigures = std::vector<CutFigure>;

/// What one document is drawn with: the surface, the page that the pen is on (from 1), and the figures that
/// were cut so far.
struct ReportPen {
  explicit ReportPen(PrinterSurface& printer) : Printer(printer) {}

  PrinterSurface& Printer;
  std::int32_t page = 1;
  CutFigures cut_figures;
};

/// The font of the reports; size in points.
void SetReportFont(PrinterSurface& Printer, float size, bool bold = false);

/// Takes half points off the font until the text is at most that wide (twips), down to half a point.
void ShrinkToWidth(PrinterSurface& Printer, std::string_view text, float width);

/// `FieldText` of a cell; a figure that is cut is noted under the cell's name.
std::string NotedFieldText(ReportPen& pen, const NumberField& field, const CellValue& value,
                           const CellName& cell);
/// Prints that text with its start at a place; a cell that shows nothing prints nothing.
void PrintField(ReportPen& pen, float x, float y, const NumberField& field, const CellValue& value,
                const CellName& cell);

}  // namespace rbt
