// SPDX-License-Identifier: MIT
#include "reports/detail/detail_report.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "data/diameters.h"
#include "platform/text/characters.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/own_company.h"
#include "reports/frame/page_flow.h"
#include "reports/frame/print_jisya.h"
#include "reports/frame/report_text.h"
#include "tally/detail/detail_cell.h"

namespace rbt {

namespace {

// Rows of the table: the diameter's name, the headings, the stock lengths, the sums.
constexpr int kNameRow = 0;
constexpr int kHeadingRow = 1;
constexpr int kFirstLengthRow = 2;

// DrawWidth of the rules between rows, and of those that close the parts of the table.
constexpr std::int32_t kRowWidth = 1;
constexpr std::int32_t kPartWidth = 2;
constexpr std::int32_t kEdgeWidth = 3;

constexpr float kMemoDrop = 60;
constexpr float kSmallestMemo = 8;

std::string NameOf(int d) { return "D " + std::to_string(DiameterCode(d)); }

/// What a cell shows of a figure: a zero leaves it empty.
CellValue Shown(Currency kilograms) { return kilograms == Currency() ? CellValue() : kilograms; }
CellValue Shown(std::int32_t count) { return count == 0 ? CellValue() : std::int64_t{count}; }

CellValue SumOf(const TallyTable& table, int d, DetailSum sum) {
  switch (sum) {
    case DetailSum::stock_weight:
      return Shown(table.StockWeightByDia[d]);
    case DetailSum::installed_weight:
      return Shown(table.InstalledWeightByDia[d]);
    case DetailSum::welds:
      return Shown(table.WeldCount[d]);
    case DetailSum::threads:
      return Shown(table.ThreadCount[d]);
    case DetailSum::plates:
      return Shown(table.PlateCount[d]);
    case DetailSum::cuts:
      return Shown(table.CutCount[d]);
  }
  return {};
}

bool IsWeight(DetailSum sum) { return sum == DetailSum::stock_weight || sum == DetailSum::installed_weight; }

/// The rows below the lengths: installed weight only where it is asked for.
std::vector<SumRow> SumRowsOf(const DetailPaper& form, bool installed) {
  std::vector<SumRow> rows;
  for (const SumRow& row : form.sums) {
    if (row.shows != DetailSum::installed_weight || installed) rows.push_back(row);
  }
  return rows;
}

/// True where the form has a place for installed weights: on A4 portrait it has none.
bool ShowsInstalled(const DetailPaper& form, const DetailArguments& arguments) {
  return arguments.Installed && std::ranges::any_of(form.sums, [](const SumRow& row) {
           return row.shows == DetailSum::installed_weight;
         });
}

ReportHead HeadOfSheet(const DetailPaper& form, const DetailSheet& sheet) {
  ReportHead head = HeadOf(sheet.title, sheet.site, sheet.arguments);
  head.spreads_title = sheet.own_title;
  head.total_weight = sheet.table.TotalStockWeight.ToDouble();
  if (ShowsInstalled(form, sheet.arguments.Detail)) {
    head.installed_weight = sheet.table.TotalInstalledWeight.ToDouble();
  }
  return head;
}

/// A memo in the largest size in which it fits the width, and cut there if it does not fit the smallest.
std::string FittedMemo(PrinterSurface& Printer, std::string_view memo, float width) {
  constexpr float kStep = 0.5F;
  while (Printer.FontSize > kSmallestMemo && Printer.TextWidth(memo) > width) Printer.FontSize -= kStep;
  std::size_t characters = CharacterCount(memo);
  while (Printer.TextWidth(Left(memo, characters)) > width) --characters;
  return std::string(Left(memo, characters));
}

/// The pages of a purchase list.
class DetailSheets {
 public:
  DetailSheets(ReportPen& pen, const DetailPaper& form, const DetailSheet& sheet)
      : pen_(pen),
        form_(form),
        sheet_(sheet),
        head_(HeadOfSheet(form, sheet)),
        diameters_(ListedDiameters(sheet.table, sheet.empty_diameters)),
        sums_(SumRowsOf(form, head_.installed_weight.has_value())),
        lengths_(StockColumnsInUse(sheet.with_13m)) {}

  void Draw() {
    const int on_a_page = form_.band.count * static_cast<int>(form_.blocks.size());
    DrawPages(pen_, PaginateRows(diameters_.size(), on_a_page),
              {.head = [this](ReportPen&, const PageOfBlocks&) { Top(); },
               .block = [this](ReportPen&, const PlacedBlock& at) { Diameter(diameters_[at.block], at.row); },
               .foot = [this](ReportPen&) { Foot(); }});
  }

 private:
  int FirstSumRow() const { return kFirstLengthRow + lengths_; }
  int LastRow() const { return FirstSumRow() + static_cast<int>(sums_.size()); }

  void Top() {
    const bool right = sheet_.arguments.Detail.DatePosition == DatePlace::right;
    grid_ = DrawHead(pen_, right ? form_.heads.right : form_.heads.centre, head_);
    SetReportFont(pen_.Printer, kCellSize);
    const double lowered = IsBlockTall() ? kRowsBelowTallBlock : 0;
    memo_row_ = kMemosAboveRow + lowered;
    place_.rows = {MeasureLine(pen_.Printer) + form_.row_gap, grid_.Y(kTableRow + lowered)};
    place_.text_drop = form_.row_gap / 2;
    Frame();
  }

  /// True where the own company would run into what stands below it: the third memo, or the table.
  bool IsBlockTall() const {
    const float bottom = OwnCompanyBottom(ReadOwnCompany(), form_.own_company.y, kReportLineGap);
    return bottom > grid_.Y(MemosStandAbove() ? kMemosAboveRow : kTableRow);
  }

  void Frame() {
    PrinterSurface& Printer = pen_.Printer;
    for (int repeat = 0; repeat < form_.band.count; ++repeat) {
      for (const RepeatRule& rule : form_.rules) {
        if (rule.first_repeat_alone && repeat > 0) continue;
        DrawVerticals(Printer, {{form_.band.Left(repeat) + rule.x, rule.draw_width}}, place_.rows,
                      RangeOf(rule.rows));
      }
    }
    const float right = form_.band.Left(form_.band.count);
    DrawVerticals(Printer, {{right, kEdgeWidth}}, place_.rows, RangeOf(RuleRows::all));
    for (int row = 0; row <= LastRow(); ++row) {
      DrawRowRule(Printer, place_.rows, row, {form_.band.left, right, RowWidth(row)});
    }
  }

  RowRange RangeOf(RuleRows rows) const {
    return {rows == RuleRows::all ? kNameRow : kHeadingRow,
            rows == RuleRows::lengths ? FirstSumRow() : LastRow()};
  }

  std::int32_t RowWidth(int row) const {
    if (row == kNameRow || row == LastRow()) return kEdgeWidth;
    return row == kFirstLengthRow || row == FirstSumRow() ? kPartWidth : kRowWidth;
  }

  /// The diameter in a place of the page, counted from the left.
  void Diameter(int d, int place_on_page) {
    const auto in_repeat = static_cast<int>(form_.blocks.size());
    const DetailBlock& block = form_.blocks[static_cast<std::size_t>(place_on_page % in_repeat)];
    place_.left = form_.band.Left(place_on_page / in_repeat);
    Name(block, d);
    DrawCaptions(pen_, block.columns, place_, kHeadingRow);
    SetReportFont(pen_.Printer, kLabelSize);
    for (int l = 0; l < lengths_; ++l) Label(block, kFirstLengthRow + l, LengthLabel(l));
    for (std::size_t i = 0; i < sums_.size(); ++i) Label(block, SumRowAt(i), sums_[i].label);
    SetReportFont(pen_.Printer, kCellSize);
    for (int l = 0; l < lengths_; ++l) Length(block, d, l);
    for (std::size_t i = 0; i < sums_.size(); ++i) Sum(block, d, i);
  }

  int SumRowAt(std::size_t sum) const { return FirstSumRow() + static_cast<int>(sum); }
  static std::string LengthLabel(int l) {
    constexpr std::size_t kCharacters = 4;
    return RightAligned(kStockLengthTexts[static_cast<std::size_t>(l)], kCharacters);
  }

  void Name(const DetailBlock& block, int d) {
    SetReportFont(pen_.Printer, kCellSize);
    DrawCell(pen_, place_, {kNameRow, {}}, {.x = block.name_x}, {}, NameOf(d));
    const std::string& grade = sheet_.grades[static_cast<std::size_t>(d)];
    if (grade.empty()) return;
    DrawCell(pen_, place_, {kNameRow, {}}, {.x = block.grade_x, .text_width = block.grade_width}, {}, grade);
  }

  void Label(const DetailBlock& block, int row, std::string_view label) {
    DrawCell(pen_, place_, {row, label}, block.columns.front().cell, {}, std::string(label));
  }

  void Length(const DetailBlock& block, int d, int l) {
    const std::string name = NameOf(d) + " " + LengthLabel(l);
    DrawRow(pen_, block.columns, place_, {kFirstLengthRow + l, name}, [&](DetailColumn column) -> CellValue {
      switch (column) {
        case DetailColumn::bars:
          return Shown(sheet_.table.BarCount[d][l]);
        case DetailColumn::weight:
          return Shown(sheet_.table.StockWeight[d][l]);
        case DetailColumn::label:
          break;
      }
      return {};
    });
  }

  void Sum(const DetailBlock& block, int d, std::size_t sum) {
    const SumRow& row = sums_[sum];
    DrawCell(pen_, place_, {SumRowAt(sum), NameOf(d)}, IsWeight(row.shows) ? block.sum : block.fitting,
             row.label, SumOf(sheet_.table, d, row.shows));
  }

  bool MemosStandAbove() const {
    const auto& memos = sheet_.arguments.Detail.Memos;
    return form_.memos.may_stand_above && sheet_.arguments.Detail.MemoPosition == MemoPlace::above &&
           std::ranges::any_of(memos, [](const std::string& memo) { return !memo.empty(); });
  }

  void Foot() {
    DrawHeadPart(pen_, form_.own_company, grid_, head_);
    const float y = MemosStandAbove() ? grid_.Y(memo_row_) : place_.rows.Y(LastRow()) + kMemoDrop;
    for (std::size_t i = 0; i < sheet_.arguments.Detail.Memos.size(); ++i) {
      Memo(i, y + form_.memos.line * static_cast<float>(i));
    }
  }

  void Memo(std::size_t index, float y) {
    const MemoLayout& layout = form_.memos;
    const std::string& memo = sheet_.arguments.Detail.Memos[index];
    if (memo.empty()) return;
    const std::string_view whole =
        layout.characters > 0 ? Left(memo, layout.characters) : std::string_view(memo);
    SetReportFont(pen_.Printer, layout.size, layout.bold);
    const std::string text = FittedMemo(pen_.Printer, whole, layout.width);
    PrintAt(pen_.Printer, layout.x[index], y, {text});
  }

  ReportPen& pen_;
  const DetailPaper& form_;
  const DetailSheet& sheet_;
  ReportHead head_;
  std::vector<int> diameters_;
  std::vector<SumRow> sums_;
  int lengths_;
  RowGrid grid_;
  double memo_row_ = kMemosAboveRow;
  TablePlace place_;
};

}  // namespace

std::vector<int> ListedDiameters(const TallyTable& table, bool empty_diameters) {
  std::vector<int> rows;
  for (int d = 0; d < kDeformedRows; ++d) {
    if (empty_diameters || table.StockWeightByDia[d] != Currency()) rows.push_back(d);
  }
  return rows;
}

CutFigures DrawDetail(PrinterSurface& Printer, const DetailPaper& form, const DetailSheet& sheet) {
  ReportPen pen(Printer);
  DetailSheets(pen, form, sheet).Draw();
  return pen.cut_figures;
}

}  // namespace rbt
