// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "reports/frame/number_field.h"
#include "reports/frame/report_pen.h"
#include "reports/frame/row_grid.h"

namespace rbt {

/// Tables on paper: columns told as data, ruled and filled row by row. Nothing here computes a figure. All X
/// of columns are twips from the left of the table, or of the group of columns that they belong to.

/// DrawWidth of the rules of most frames.
inline constexpr std::int32_t kFrameWidth = 5;

/// The strip of a column between its left rule and the next column.
struct ColumnBox {
  float x = 0.0F;
  float width = 0.0F;
  std::int32_t rule_width = kFrameWidth;  ///< DrawWidth of the left rule; 0: the column has none

  constexpr float Right() const { return x + width; }
};

/// How a caption stands in its column.
enum class Align {
  at_x,         ///< it starts at its X
  middle,       ///< in the middle of the column by its measured width
  right,        ///< it ends `x` before the next column, by its measured width
  short_label,  ///< `Get_RightX` behind the column's left rule
};
struct Caption {
  std::string_view text = {};
  float x = 0.0F;
  Align align = Align::at_x;
};
/// X of a caption in the current font.
float CaptionX(const PrinterSurface& Printer, const ColumnBox& box, const Caption& caption);

/// Where a column's values start, and how its numbers stand there.
struct TableCell {
  float x = 0.0F;
  float total_x = 0.0F;  ///< the same in a total row
  NumberField number = {};
  float text_width = 0.0F;  ///< a text wider than that shrinks by half points; 0: it stays as it is
};

/// A column; `Field` is a form's own enumeration of what a column can show.
template <typename Field>
struct TableColumn {
  Field shows;
  ColumnBox box = {};
  Caption caption = {};
  TableCell cell = {};
};

/// Where a table or a group of columns stands on the page.
struct TablePlace {
  RowGrid rows;
  float left = 0.0F;
  float text_drop = kTextDrop;

  float TextY(int row) const { return rows.Y(row) + text_drop; }
};

/// A row to be filled: its number on the page, and the name that it has when one of its figures is cut.
struct TableRow {
  int row;
  std::string_view name;
  bool is_total = false;
};

/// A vertical rule at an X of the page.
struct FrameRule {
  float x;
  std::int32_t draw_width;

  friend bool operator==(const FrameRule&, const FrameRule&) = default;
};
using FrameRules = std::vector<FrameRule>;

/// A horizontal rule at the top of a row.
struct RowRule {
  float from = 0.0F;
  float to = 0.0F;
  std::int32_t draw_width = kFrameWidth;
};
void DrawRowRule(PrinterSurface& Printer, const RowGrid& rows, int row, const RowRule& rule);

/// Draws each vertical rule over the rows, then one horizontal rule at each row from the first vertical rule
/// to the last.
void DrawFrame(PrinterSurface& Printer, const FrameRules& rules, const RowGrid& rows, const RowRange& range,
               std::int32_t row_width = kFrameWidth);
void DrawVerticals(PrinterSurface& Printer, const FrameRules& rules, const RowGrid& rows,
                   const RowRange& range);

/// Prints one value of a row: a number right-aligned in the cell's field, a text from the cell's start.
void DrawCell(ReportPen& pen, const TablePlace& place, const TableRow& row, const TableCell& cell,
              std::string_view caption, const CellValue& value);

/// The left rules of the columns from `left` on, and the rule that closes them, where that has a width.
template <typename Field>
FrameRules RulesOf(std::span<const TableColumn<Field>> columns, float left = 0.0F,
                   std::int32_t closing_width = kFrameWidth) {
  FrameRules rules;
  for (const TableColumn<Field>& column : columns) {
    if (column.box.rule_width > 0) rules.push_back({left + column.box.x, column.box.rule_width});
  }
  if (closing_width > 0) rules.push_back({left + columns.back().box.Right(), closing_width});
  return rules;
}

/// Prints the captions of the columns in a row.
template <typename Field>
void DrawCaptions(ReportPen& pen, std::span<const TableColumn<Field>> columns, const TablePlace& place,
                  int row) {
  for (const TableColumn<Field>& column : columns) {
    if (column.caption.text.empty()) continue;
    DrawCell(pen, place, {row, column.caption.text}, {.x = CaptionX(pen.Printer, column.box, column.caption)},
             {}, std::string(column.caption.text));
  }
}

/// Prints the values of a row, each in its column: `value_of(Field)` is what a column shows.
template <typename Field, typename ValueOf>
void DrawRow(ReportPen& pen, std::span<const TableColumn<Field>> columns, const TablePlace& place,
             const TableRow& row, const ValueOf& value_of) {
  for (const TableColumn<Field>& column : columns) {
    DrawCell(pen, place, row, column.cell, column.caption.text, value_of(column.shows));
  }
}

/// Groups of the same columns side by side, one beside the other `period` twips apart.
struct GroupBand {
  float left = 0.0F;
  float period = 0.0F;
  int count = 1;  ///< on a page

  constexpr float Left(int slot) const { return left + static_cast<float>(slot) * period; }
};

/// The rules of all groups of a page, whether anything stands in them or not.
template <typename Field>
FrameRules RulesOf(const GroupBand& band, std::span<const TableColumn<Field>> columns,
                   std::int32_t closing_width) {
  FrameRules rules;
  for (int slot = 0; slot < band.count; ++slot) {
    const FrameRules group = RulesOf(columns, band.Left(slot), 0);
    rules.insert(rules.end(), group.begin(), group.end());
  }
  rules.push_back({band.Left(band.count), closing_width});
  return rules;
}

}  // namespace rbt
