// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/numbers/currency.h"
#include "reports/frame/paper_table.h"
#include "reports/frame/report_pen.h"
#include "tally/list_row.h"
#include "tally/views/floorpart_grid.h"

namespace rbt {

/// A table of a row each for a floor or diameter and a column each for a part, over the whole width of A4
/// landscape. Its rows are told from the table's top; row 0 is the head.

/// The figures of a row, kilograms.
struct PartTableRow {
  std::string label;
  CheckedArray<Currency, kPartEntries> parts;
  Currency total;
};

class PartTable {
 public:
  /// `first_caption`: of the column of labels.
  PartTable(ReportPen& pen, std::string_view first_caption, const PartNames& names)
      : pen_(pen), first_caption_(first_caption), names_(names) {}

  /// A page begins whose rows these are.
  void DrawTop(const RowGrid& rows);
  /// One line of the table with its frame; zeros leave their cells empty.
  void DrawLine(int row, const PartTableRow& line);
  /// A line that shows its label alone.
  void DrawGap(int row, std::string_view label);

 private:
  std::string_view CaptionOf(int part) const;
  void DrawLineFrame(int row);
  void DrawPartName(int part);
  void DrawCaption(float x, std::string_view text);

  ReportPen& pen_;
  std::string_view first_caption_;
  const PartNames& names_;
  TablePlace place_;
};

/// X at which the name of a part stands over its column in the current font: where `Get_RightX` puts it, and
/// a name that would reach out of the column there, in its middle.
float PartCaptionX(const PrinterSurface& Printer, const ColumnBox& box, std::string_view name);

}  // namespace rbt
