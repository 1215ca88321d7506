// SPDX-License-Identifier: MIT
#include "reports/ulbon/ulbon_report.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/diameters.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/grid_head_parts.h"
#include "reports/frame/page_flow.h"
#include "reports/frame/paper_table.h"
#include "tally/ulbon_totals.h"

namespace rbt {

namespace {

constexpr std::string_view kTitle = "ウ ル ボ ン 重 量 表";

/// The frame has room for the twelve deformed diameters too, and for their total.
constexpr int kFirstRow = 7;
constexpr int kLastRow = 21;
constexpr int kTableRows = kLastRow - kFirstRow;

constexpr ProjectPart UlbonProject() {
  ProjectPart part = ProjectFrom(1800, 2760, 960);
  for (NameForm* form : {&part.short_form, &part.long_form, &part.broken_form}) {
    form->label = "工事名　";
    form->rule_to = EndsAt(9300);
  }
  part.broken_form.size = 12;
  part.rule_width_without_client = 2;
  return part;
}

/// X before the own-company block.
constexpr float kHeadEnd = 9900;
constexpr std::array<HeadPart, 5> kHeadParts{
    ClientFrom(1800, kHeadEnd), UlbonProject(), SubProjectFrom(1800, 12, kHeadEnd),
    WeightPart{.kilograms = &ReportHead::total_weight, .place = {1900, 1800, EndsAt(5100)}},
    DatePart{{11800, 11700, EndsAt(14100)}, {11600, 11500, EndsAt(14300)}, {1, -1300}}};
constexpr HeadLayout kHead{{5900, 5700, EndsAt(9700)},
                           500,
                           {.text_size = 13, .gap = 100, .title_lines = 2, .client_rows = 2},
                           kHeadParts};
/// Without a client line the table starts higher.
constexpr OwnCompanyPart kOwnCompany{.x = 10000, .y = 2300, .clear_of_row = kFirstRow};

/// Only the installed weight of this material is known: the columns of stock and difference stay empty.
enum class UlbonFigure { diameter, stock_weight, installed_weight, difference, welds };
constexpr std::array<TableColumn<UlbonFigure>, 5> kColumns{{
    {UlbonFigure::diameter, {1800, 2000}, {"太　　　さ", 2100}, {2000, 2000}},
    {UlbonFigure::stock_weight, {3800, 3000}, {"定   尺   重   量", 4250}},
    {UlbonFigure::installed_weight,
     {6800, 3000},
     {"取   付   重   量", 7250},
     {7900, 7900, {11, kCellMask, " Kg"}}},
    {UlbonFigure::difference, {9800, 3000}, {"差            引", 10350}},
    {UlbonFigure::welds, {12800, 1500}, {"圧　　接", 13050}, {13100, 13100, {7}}},
}};
constexpr std::string_view kLabels[] = {"U  6", "U  7", "U  9", "U 11", "U 12", "U 16"};
constexpr std::string_view kTotalLabel = "合　　　計";
constexpr float kTextSize = 12;

/// What a row of the table says.
struct UlbonRow {
  std::string_view label;
  CellValue weight;
  std::int32_t welds = 0;
};

/// The diameters in their order, and the total.
std::vector<UlbonRow> RowsOf(const TallyTable& table, std::int32_t percent, double total) {
  std::vector<UlbonRow> rows;
  for (int d = kDeformedRows; d < kDiameterRows; ++d) {
    rows.push_back({kLabels[d - kDeformedRows], UlbonRowWeight(table, d, percent), table.UlbonWeldCount[d]});
  }
  rows.push_back({kTotalLabel, total, UlbonWeldSum(table)});
  return rows;
}

CellValue ValueOf(const UlbonRow& row, UlbonFigure figure) {
  switch (figure) {
    case UlbonFigure::diameter:
      return std::string(row.label);
    case UlbonFigure::installed_weight:
      return row.weight;
    case UlbonFigure::welds:
      return std::int64_t{row.welds};
    default:
      return {};
  }
}

/// The pages of the report, from head to own company.
class UlbonSheets {
 public:
  UlbonSheets(ReportPen& pen, ReportHead head, std::vector<UlbonRow> rows)
      : pen_(pen), head_(std::move(head)), rows_(std::move(rows)) {}

  void Draw() {
    constexpr int kHeadingRows = 1;
    DrawPages(
        pen_, PaginateRows(rows_.size(), kTableRows - kHeadingRows),
        {.head = [this](ReportPen&, const PageOfBlocks&) { Top(); },
         .block = [this](ReportPen&, const PlacedBlock& at) { Row(at.row + kHeadingRows, rows_[at.block]); },
         .foot = [this](ReportPen&) { DrawHeadPart(pen_, kOwnCompany, grid_, head_); }});
  }

 private:
  void Top() {
    grid_ = DrawHead(pen_, kHead, head_);
    place_.rows = {grid_.LineUnit, grid_.Y(kFirstRow)};
    DrawFrame(pen_.Printer, RulesOf(columns_), place_.rows, {0, kTableRows});
    SetReportFont(pen_.Printer, kTextSize);
    DrawCaptions(pen_, columns_, place_, 0);
  }

  void Row(int at, const UlbonRow& row) {
    DrawRow(pen_, columns_, place_, {at, row.label},
            [&](UlbonFigure figure) { return ValueOf(row, figure); });
  }

  ReportPen& pen_;
  ReportHead head_;
  std::vector<UlbonRow> rows_;
  std::span<const TableColumn<UlbonFigure>> columns_ = kColumns;
  RowGrid grid_;
  TablePlace place_;
};

}  // namespace

Currency UlbonRowWeight(const TallyTable& table, int d, std::int32_t percent) {
  const Currency weight = Currency::FromDouble(table.UlbonWeight[d]) + table.SpiralUlbonByDia[d];
  const Currency uplift = Currency::FromDouble(weight.ToDouble() * percent / 100.0);
  return WholeKilograms(weight + uplift);
}

CutFigures DrawUlbonReport(PrinterSurface& Printer, const ReportSite& site, const ReportArguments& arguments,
                           const TallyTable& table) {
  ReportPen pen(Printer);
  const double total = UlbonWeightSum(table, 0);
  ReportHead head = HeadOf(kTitle, site, arguments);
  head.total_weight = total;
  UlbonSheets(pen, std::move(head), RowsOf(table, arguments.Percent, total)).Draw();
  return pen.cut_figures;
}

CutFigures Ulbon_Report(PrinterSurface& Printer, const ReportArguments& arguments,
                        const TallyResult& result) {
  return DrawUlbonReport(Printer, ReadReportSite(), arguments, result.Grid());
}

}  // namespace rbt
