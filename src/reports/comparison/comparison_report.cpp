// SPDX-License-Identifier: MIT
#include "reports/comparison/comparison_report.h"

#include <cstddef>
#include <string>

#include "data/bar_tables.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/number_field.h"
#include "reports/frame/report_pen.h"

namespace rbt {

namespace {

// Rows of the table, from its first: the heading, the twelve diameters, the total, then Ulbon and spirals.
constexpr int kFirstDiameterRow = 1;
constexpr int kTotalRow = kFirstDiameterRow + kDeformedRows;
constexpr int kFirstExtraRow = kTotalRow + 1;

constexpr std::string_view kDiameterLabels[] = {"D 10", "D 13", "D 16", "D 19", "D 22", "D 25",
                                                "D 29", "D 32", "D 35", "D 38", "D 41", "D 51"};
constexpr float kTextSize = 12;
constexpr std::int32_t kFrameWidth = 5;
constexpr std::int32_t kLossRuleWidth = 2;

bool IsWeight(Figure figure) {
  return figure == Figure::stock_weight || figure == Figure::installed_weight || figure == Figure::difference;
}

template <typename Number>
std::string CellText(const ComparisonColumn& column, Number value) {
  return FieldText({column.characters, kCellMask, IsWeight(column.figure) ? " Kg" : ""}, value);
}

std::string DiameterCell(const TallyTable& table, const ComparisonColumn& column, int d) {
  switch (column.figure) {
    case Figure::stock_weight:
      return CellText(column, table.StockWeightByDia[d]);
    case Figure::installed_weight:
      return CellText(column, table.InstalledWeightByDia[d]);
    case Figure::difference:
      return CellText(column, table.StockWeightByDia[d] - table.InstalledWeightByDia[d]);
    case Figure::welds:
      return CellText(column, std::int64_t{table.WeldCount[d]});
    case Figure::cuts:
      return CellText(column, std::int64_t{table.CutCount[d]});
  }
  return {};
}

std::string TotalCell(const TallyTable& table, const ComparisonColumn& column) {
  switch (column.figure) {
    case Figure::stock_weight:
      return CellText(column, table.TotalStockWeight);
    case Figure::installed_weight:
      return CellText(column, table.TotalInstalledWeight);
    case Figure::difference:
      return CellText(column, table.TotalStockWeight - table.TotalInstalledWeight);
    case Figure::welds:
      return CellText(column, std::int64_t{table.TotalWeldCount});
    case Figure::cuts:
      return CellText(column, std::int64_t{table.TotalCutCount});
  }
  return {};
}

bool HasUlbonRow(const ComparisonSheet& sheet) {
  return sheet.arguments.UlbonFlag != 0 && sheet.ulbon_weight > 0;
}

bool HasSpiralRow(const ComparisonSheet& sheet) {
  return sheet.arguments.UlbonFlag != 0 && sheet.table.SpiralTotal > Currency{};
}

/// The table of one report: its rows on the page and the columns it shows.
class Table {
 public:
  Table(PrinterSurface& Printer, const ComparisonForm& form, const ComparisonSheet& sheet,
        const RowGrid& grid)
      : Printer_(Printer),
        form_(form),
        sheet_(sheet),
        grid_(grid),
        frame_(FrameRowsOf(form, sheet)),
        rules_(form.rules),
        columns_(form.columns) {
    if (!sheet.hides_cuts) return;
    rules_ = rules_.first(rules_.size() - 1);
    columns_ = columns_.first(columns_.size() - 1);
  }

  void Draw() {
    Frame();
    SetReportFont(Printer_, kTextSize);
    Headings();
    Diameters();
    Totals();
    ExtraRows();
    LossRate();
  }

 private:
  /// Y of a text in a row of the table.
  float TextY(int row) const { return grid_.Y(frame_.first + row) + kTextDrop; }

  void Frame() {
    Printer_.DrawWidth = kFrameWidth;
    for (const float x : rules_) Printer_.Line(x, grid_.Y(frame_.first), x, grid_.Y(frame_.last));
    for (int row = frame_.first; row <= frame_.last; ++row) {
      Printer_.Line(rules_.front(), grid_.Y(row), rules_.back(), grid_.Y(row));
    }
  }

  void Headings() {
    PrintAt(Printer_, form_.diameter_heading_x, TextY(0), {form_.diameter_heading});
    for (const ComparisonColumn& column : columns_) {
      PrintAt(Printer_, column.heading_x, TextY(0), {column.heading});
    }
  }

  void Diameters() {
    for (int d = 0; d < kDeformedRows; ++d) {
      const float y = TextY(kFirstDiameterRow + d);
      const auto index = static_cast<std::size_t>(d);
      PrintAt(Printer_, form_.label_x, y, {kDiameterLabels[index]});
      PrintAt(Printer_, form_.label_x + kGradeShift, y, {sheet_.grades[index]});
    }
    for (int d = 0; d < kDeformedRows; ++d) {
      const float y = TextY(kFirstDiameterRow + d);
      for (const ComparisonColumn& column : columns_) {
        PrintAt(Printer_, column.value_x, y, {DiameterCell(sheet_.table, column, d)});
      }
    }
  }

  void Totals() {
    const float y = TextY(kTotalRow);
    PrintAt(Printer_, form_.diameter_heading_x, y, {form_.total_label});
    for (const ComparisonColumn& column : columns_) {
      PrintAt(Printer_, column.total_x, y, {TotalCell(sheet_.table, column)});
    }
  }

  /// Ulbon and spirals have an installed weight: it stands in that column, or in the only one there is.
  const ComparisonColumn& WeightColumn() const { return columns_[form_.kind == 'A' ? 1 : 0]; }

  const ComparisonColumn& WeldColumn() const {
    std::size_t index = 0;
    while (columns_[index].figure != Figure::welds) ++index;
    return columns_[index];
  }

  void ExtraRows() {
    int row = kFirstExtraRow;
    if (HasUlbonRow(sheet_)) {
      const float y = TextY(row++);
      PrintAt(Printer_, form_.label_x, y, {"ウルボン合計"});
      PrintAt(Printer_, WeightColumn().total_x, y, {CellText(WeightColumn(), sheet_.ulbon_weight)});
      PrintAt(Printer_, WeldColumn().total_x, y, {CellText(WeldColumn(), std::int64_t{sheet_.ulbon_welds})});
    }
    if (HasSpiralRow(sheet_)) {
      const float y = TextY(row);
      PrintAt(Printer_, form_.label_x, y, {"スパイラル合計"});
      PrintAt(Printer_, WeightColumn().total_x, y, {CellText(WeightColumn(), sheet_.table.SpiralTotal)});
    }
  }

  void LossRate() {
    if (!form_.loss_rate) return;
    const LossRateLine& line = *form_.loss_rate;
    Printer_.DrawWidth = kLossRuleWidth;
    const std::string rate = FieldText({line.characters, kRateMask, " %"}, sheet_.table.LossRatePercent);
    const float y = grid_.Y(frame_.last + line.rows_below) + kTextDrop;
    PrintRuled(Printer_, line.place, y, "ロス率" + std::string(line.gap) + rate);
  }

  PrinterSurface& Printer_;
  const ComparisonForm& form_;
  const ComparisonSheet& sheet_;
  RowGrid grid_;
  FrameRows frame_;
  std::span<const float> rules_;
  std::span<const ComparisonColumn> columns_;
};

}  // namespace

FrameRows FrameRowsOf(const ComparisonForm& form, const ComparisonSheet& sheet) {
  // A landscape sheet is a row short of the space that Ulbon takes.
  const bool starts_higher = form.total_line.has_value() && sheet.arguments.UlbonFlag != 0;
  FrameRows rows{starts_higher ? 7 : 8, starts_higher ? 21 : 22};
  if (HasUlbonRow(sheet)) ++rows.last;
  if (HasSpiralRow(sheet)) ++rows.last;
  return rows;
}

void DrawComparison(PrinterSurface& Printer, const ComparisonForm& form, const ComparisonSheet& sheet) {
  ReportPen pen(Printer);
  const ReportHead head = ComparisonHeadOf(sheet, form.kind);
  const RowGrid grid = form.head(pen, head);
  if (form.total_line) DrawHeadPart(pen, *form.total_line, grid, head);
  Table(Printer, form, sheet, grid).Draw();
  if (form.own_company) DrawHeadPart(pen, *form.own_company, grid, head);
  Printer.EndDoc();
}

}  // namespace rbt
