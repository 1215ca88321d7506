// SPDX-License-Identifier: MIT
#include "reports/plan/purchase_sheet.h"

#include <array>
#include <span>
#include <vector>

#include <fmt/format.h>

#include "planning/outcome/plan_text.h"
#include "platform/numbers/number_mask.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/page_flow.h"
#include "reports/frame/paper_table.h"

namespace rbt {
namespace {

using planning::Figures;
using planning::Outcome;
using planning::PurchaseLine;

constexpr std::string_view kPurchaseTitle = "鉄 筋 購 買 計 画 表";
constexpr float kTableSize = 10;
constexpr float kRowHeight = 320;
constexpr int kRowsOnPage = 38;
constexpr float kTallyX = 6400;
constexpr float kNoteSize = 8;
constexpr std::string_view kWeightNote =
    "計画した行は 定尺の長さ x 単位重量。全体の集計は加工帳のままの行を含み、定尺の重量表から Kg "
    "に丸めています。";
constexpr double kUnit = 1e6;
constexpr std::string_view kWeightMask = "#,##0.0";
constexpr std::string_view kTallyMask = "#,##0";

enum class PurchaseField { steel, kind, stock, planned, kept, bars, weight, yen };

/// A number right-aligned in `characters` that end a little before the next column.
constexpr TableCell NumberCell(float box_x, float box_width, std::size_t characters,
                               std::string_view mask = kCellMask) {
  const float width = static_cast<float>(characters) * kTableSize * 10.0F;
  const float x = box_x + box_width - width - 80.0F;
  return {.x = x, .total_x = x, .number = {characters, mask}};
}

constexpr TableCell TextCell(float box_x, float box_width) {
  return {.x = box_x + 100.0F, .total_x = box_x + 100.0F, .number = {}, .text_width = box_width - 150.0F};
}

constexpr std::array<TableColumn<PurchaseField>, 8> kColumns{{
    {PurchaseField::steel, {1000, 1000}, {"鋼材", 0, Align::middle}, TextCell(1000, 1000)},
    {PurchaseField::kind, {2000, 1700}, {"種　別", 0, Align::middle}, TextCell(2000, 1700)},
    {PurchaseField::stock, {3700, 1100}, {"定尺 mm", 0, Align::middle}, NumberCell(3700, 1100, 9)},
    {PurchaseField::planned, {4800, 1100}, {"計　画", 0, Align::middle}, NumberCell(4800, 1100, 9)},
    {PurchaseField::kept, {5900, 1100}, {"加工帳", 0, Align::middle}, NumberCell(5900, 1100, 9)},
    {PurchaseField::bars, {7000, 1200}, {"本　数", 0, Align::middle}, NumberCell(7000, 1200, 10)},
    {PurchaseField::weight,
     {8200, 1350},
     {"重量 Kg", 0, Align::middle},
     NumberCell(8200, 1350, 12, kWeightMask)},
    {PurchaseField::yen, {9550, 1350}, {"金額 円", 0, Align::middle}, NumberCell(9550, 1350, 12)},
}};

struct SheetRow {
  std::string steel;
  std::string kind;
  CellValue stock;
  std::int64_t planned = 0;
  std::int64_t kept = 0;
  planning::Milligrams weight = 0;
  std::optional<planning::Micros> yen;
};

SheetRow RowOf(const PurchaseLine& line) {
  return {planning::DiameterText(line.steel.diameter),
          planning::KindText(line.steel.kind) + (line.steel.hoop ? " " + planning::HoopText(line.steel) : ""),
          std::int64_t{line.stock_mm},
          line.planned,
          line.kept,
          line.table_weight,
          line.yen};
}

/// A line for each length, and one with their sum, which lacks the yen where one of the lines does.
std::vector<SheetRow> RowsOf(const Outcome& outcome) {
  std::vector<SheetRow> rows;
  rows.reserve(outcome.purchase.size() + 1);
  SheetRow total{"合計", "", {}, 0, 0, 0, planning::Micros{0}};
  for (const PurchaseLine& line : outcome.purchase) {
    rows.push_back(RowOf(line));
    total.planned += line.planned;
    total.kept += line.kept;
    total.weight += line.table_weight;
    total.yen = total.yen && line.yen ? std::optional(*total.yen + *line.yen) : std::nullopt;
  }
  rows.push_back(std::move(total));
  return rows;
}

CellValue ValueOf(const SheetRow& row, PurchaseField field) {
  switch (field) {
    case PurchaseField::steel:
      return row.steel;
    case PurchaseField::kind:
      return row.kind;
    case PurchaseField::stock:
      return row.stock;
    case PurchaseField::planned:
      return row.planned;
    case PurchaseField::kept:
      return row.kept;
    case PurchaseField::bars:
      return row.planned + row.kept;
    case PurchaseField::weight:
      return static_cast<double>(row.weight) / kUnit;
    case PurchaseField::yen:
      if (row.yen) return static_cast<double>(*row.yen) / kUnit;
      break;
  }
  return {};
}

std::string LossText(std::string_view name, const Figures& figures) {
  return fmt::format("{}  計画した行 {} Kg  ロス {} %", name,
                     FormatNumber(static_cast<double>(figures.steel_weight) / kUnit, kWeightMask),
                     FormatNumber(figures.loss_percent, "0.000"));
}

/// What the tally tells of the same, rows that stay as scheduled among it.
std::string TallyText(const planning::TallyFigures& figures) {
  return fmt::format("全体の集計 {} Kg  ロス率 {} %", FormatNumber(figures.stock_weight, kTallyMask),
                     FormatNumber(figures.loss_rate_percent, "0.00"));
}

class PurchaseSheets {
 public:
  PurchaseSheets(ReportPen& pen, const PlanSheetHead& head, const Outcome& outcome)
      : pen_(pen), head_(head), outcome_(outcome), rows_(RowsOf(outcome)) {}

  void Draw() {
    DrawPages(pen_, PaginateRows(rows_.size(), kRowsOnPage),
              {.head = [this](ReportPen&, const PageOfBlocks& page) { Top(static_cast<int>(page.size())); },
               .block = [this](ReportPen&, const PlacedBlock& at) { Row(at.row + 1, rows_[at.block]); },
               .foot = [this](ReportPen&) { Foot(); }});
  }

 private:
  void Top(int rows) {
    DrawPlanHead(pen_, kPurchaseTitle, head_, outcome_);
    place_.rows = {kRowHeight, kPlanSheetTop};
    place_.text_drop = 60.0F;
    DrawFrame(pen_.Printer, RulesOf(columns_), place_.rows, {0, rows + 1}, 2);
    SetReportFont(pen_.Printer, kTableSize);
    DrawCaptions(pen_, columns_, place_, 0);
  }

  void Row(int at, const SheetRow& row) {
    DrawRow(pen_, columns_, place_, {at, row.steel},
            [&](PurchaseField field) { return ValueOf(row, field); });
  }

  /// What the plan gains, below the table of every page.
  void Foot() const {
    SetReportFont(pen_.Printer, kTableSize);
    float y = kPlanSheetTop + (kRowsOnPage + 1) * kRowHeight + 150.0F;
    const auto print = [&](std::string_view name, const Figures& figures) {
      PrintAt(pen_.Printer, kPlanSheetLeft, y, {LossText(name, figures)});
      if (figures.tally) PrintAt(pen_.Printer, kTallyX, y, {TallyText(*figures.tally)});
      y += 260.0F;
    };
    if (outcome_.schedule) print("加工帳", *outcome_.schedule);
    print("行ごと", outcome_.per_row);
    print("計  画", outcome_.plan.common);
    SetReportFont(pen_.Printer, kNoteSize);
    PrintAt(pen_.Printer, kPlanSheetLeft, y, {kWeightNote});
  }

  ReportPen& pen_;
  const PlanSheetHead& head_;
  const Outcome& outcome_;
  std::vector<SheetRow> rows_;
  std::span<const TableColumn<PurchaseField>> columns_ = kColumns;
  TablePlace place_;
};

}  // namespace

CutFigures DrawPurchaseSheet(PrinterSurface& Printer, const PlanSheetHead& head, const Outcome& outcome) {
  ReportPen pen(Printer);
  PurchaseSheets(pen, head, outcome).Draw();
  return pen.cut_figures;
}

}  // namespace rbt
