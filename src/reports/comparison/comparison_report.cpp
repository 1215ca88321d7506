// SPDX-License-Identifier: MIT
#include "reports/comparison/comparison_report.h"

#include <cstddef>
#include <string>

#include "data/diameters.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/paper_table.h"

namespace rbt {

namespace {

// Rows of the table, from its first: the heading, the twelve diameters, the total, then Ulbon and spirals.
constexpr int kFirstDiameterRow = 1;
constexpr int kTotalRow = kFirstDiameterRow + kDeformedRows;
constexpr int kFirstExtraRow = kTotalRow + 1;

constexpr std::string_view kUlbonLabel = "ウルボン合計";
constexpr std::string_view kSpiralLabel = "スパイラル合計";
constexpr std::string_view kLossLabel = "ロス率";
constexpr float kTextSize = 12;
constexpr std::int32_t kLossRuleWidth = 2;
/// The loss rate stands two rows below the last one of the table, which ends on the frame's last rule.
constexpr int kLossRowsBelowFrame = 1;

/// How the sheet names diameter row `d`: "D 10".
std::string RowName(int d) { return "D " + std::to_string(DiameterCode(d)); }

CellValue DiameterValue(const ComparisonSheet& sheet, Figure figure, int d) {
  const TallyTable& table = sheet.table;
  switch (figure) {
    case Figure::diameter:
      return RowName(d);
    case Figure::grade:
      return sheet.grades[static_cast<std::size_t>(d)];
    case Figure::stock_weight:
      return table.StockWeightByDia[d];
    case Figure::installed_weight:
      return table.InstalledWeightByDia[d];
    case Figure::difference:
      return table.StockWeightByDia[d] - table.InstalledWeightByDia[d];
    case Figure::welds:
      return std::int64_t{table.WeldCount[d]};
    case Figure::cuts:
      return std::int64_t{table.CutCount[d]};
  }
  return {};
}

CellValue TotalValue(const TallyTable& table, std::string_view label, Figure figure) {
  switch (figure) {
    case Figure::diameter:
      return std::string(label);
    case Figure::grade:
      return {};
    case Figure::stock_weight:
      return table.TotalStockWeight;
    case Figure::installed_weight:
      return table.TotalInstalledWeight;
    case Figure::difference:
      return table.TotalStockWeight - table.TotalInstalledWeight;
    case Figure::welds:
      return std::int64_t{table.TotalWeldCount};
    case Figure::cuts:
      return std::int64_t{table.TotalCutCount};
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
  using Columns = std::span<const ComparisonColumn>;

  Table(ReportPen& pen, const ComparisonForm& form, const ComparisonSheet& sheet, const RowGrid& grid)
      : pen_(pen), form_(form), sheet_(sheet), frame_(FrameRowsOf(form, sheet)), columns_(form.columns) {
    if (sheet.hides_cuts) columns_ = columns_.first(columns_.size() - 1);
    place_.rows = {grid.LineUnit, grid.Y(frame_.first)};
  }

  void Draw() {
    DrawFrame(pen_.Printer, RulesOf(columns_), place_.rows, {0, frame_.last - frame_.first});
    SetReportFont(pen_.Printer, kTextSize);
    DrawCaptions(pen_, columns_, place_, 0);
    Diameters();
    Totals();
    ExtraRows();
    LossRate();
  }

 private:
  Columns Names() const { return columns_.first(kNameColumns); }
  Columns Figures() const { return columns_.subspan(kNameColumns); }

  void Diameters() {
    for (const Columns& columns : {Names(), Figures()}) {
      for (int d = 0; d < kDeformedRows; ++d) {
        const auto value_of = [&](Figure figure) { return DiameterValue(sheet_, figure, d); };
        const std::string name = RowName(d);
        DrawRow(pen_, columns, place_, {kFirstDiameterRow + d, name}, value_of);
      }
    }
  }

  void Totals() {
    const auto value_of = [&](Figure figure) { return TotalValue(sheet_.table, form_.total_label, figure); };
    DrawRow(pen_, columns_, place_, {kTotalRow, form_.total_label, true}, value_of);
  }

  /// Ulbon and spirals have an installed weight: it stands in that column, or in the only one there is, as in
  /// the total row.
  void ExtraRow(int row, std::string_view label, const CellValue& weight, const CellValue& welds) {
    const Figure weight_column = form_.kind == 'A' ? Figure::installed_weight : Figures().front().shows;
    DrawRow(pen_, Names(), place_, {row, label}, [&](Figure figure) {
      return figure == Figure::diameter ? CellValue(std::string(label)) : CellValue();
    });
    DrawRow(pen_, Figures(), place_, {row, label, true}, [&](Figure figure) {
      if (figure == weight_column) return weight;
      return figure == Figure::welds ? welds : CellValue();
    });
  }

  void ExtraRows() {
    int row = kFirstExtraRow;
    if (HasUlbonRow(sheet_)) {
      ExtraRow(row++, kUlbonLabel, sheet_.ulbon_weight, std::int64_t{sheet_.ulbon_welds});
    }
    if (HasSpiralRow(sheet_)) ExtraRow(row, kSpiralLabel, sheet_.table.SpiralTotal, {});
  }

  void LossRate() {
    if (!form_.loss_rate) return;
    const LossRateLine& line = *form_.loss_rate;
    pen_.Printer.DrawWidth = kLossRuleWidth;
    const NumberField field{line.characters, kRateMask, " %"};
    const std::string rate = NotedFieldText(pen_, field, sheet_.table.LossRatePercent, {kLossLabel, {}});
    PrintRuled(pen_.Printer, line.place, place_.TextY(frame_.last - frame_.first + kLossRowsBelowFrame),
               std::string(kLossLabel) + std::string(line.gap) + rate);
  }

  ReportPen& pen_;
  const ComparisonForm& form_;
  const ComparisonSheet& sheet_;
  RowRange frame_;
  Columns columns_;
  TablePlace place_;
};

}  // namespace

RowRange FrameRowsOf(const ComparisonForm& form, const ComparisonSheet& sheet) {
  // A landscape sheet is a row short of the space that Ulbon takes.
  const bool starts_higher = form.total_line.has_value() && sheet.arguments.UlbonFlag != 0;
  RowRange rows{starts_higher ? 7 : 8, starts_higher ? 21 : 22};
  if (HasUlbonRow(sheet)) ++rows.last;
  if (HasSpiralRow(sheet)) ++rows.last;
  return rows;
}

CutFigures DrawComparison(PrinterSurface& Printer, const ComparisonForm& form, const ComparisonSheet& sheet) {
  ReportPen pen(Printer);
  const ReportHead head = ComparisonHeadOf(sheet, form.kind);
  const RowGrid grid = form.head(pen, head);
  if (form.total_line) DrawHeadPart(pen, *form.total_line, grid, head);
  Table(pen, form, sheet, grid).Draw();
  if (form.own_company) DrawHeadPart(pen, *form.own_company, grid, head);
  Printer.EndDoc();
  return pen.cut_figures;
}

}  // namespace rbt
