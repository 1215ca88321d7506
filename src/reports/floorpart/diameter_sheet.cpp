// SPDX-License-Identifier: MIT
#include "reports/floorpart/diameter_sheet.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string_view>

#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/shown_figure.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/page_flow.h"
#include "reports/frame/paper_table.h"
#include "reports/frame/report_text.h"
#include "shell/context/reference_names.h"
#include "tally/detail/detail_cell.h"

namespace rbt {

namespace {

// Rows of the table: the diameter's name, the headings, the stock lengths, the sums.
constexpr int kNameRow = 0;
constexpr int kHeadingRow = 1;
constexpr int kFirstLengthRow = 2;
constexpr float kRowPitch = 250;

constexpr GroupBand kGroups{500, 2190, 7};
constexpr int kFirstThickRow = kGroups.count;

// DrawWidth of the rules.
constexpr std::int32_t kEdgeWidth = 3;
constexpr std::int32_t kLabelWidth = 2;
constexpr std::int32_t kInnerWidth = 1;

// Twips from the left of a group.
constexpr float kLabelRule = 450;
constexpr float kWeightRule = 1200;
constexpr float kFiguresEnd = 2150;
constexpr float kBarsEnd = 1180;
constexpr float kBarsAloneEnd = 1800;
constexpr float kLabelX = 30;
constexpr float kUnitX = 150;
constexpr float kNameX = 100;
constexpr float kOriginX = 660;
constexpr float kOriginWidth = 1500;

constexpr float kNameSize = 12;
constexpr float kLabelSize = 9;
constexpr float kFigureSize = 10;
constexpr float kSumSize = 11;

/// A figure of that many characters that ends at X. Zeros show nothing.
constexpr TableCell FigureEndingAt(float x, std::size_t characters, float size) {
  return {.x = x - static_cast<float>(characters) * size * 10, .number = {characters, kBlankZeroMask}};
}
constexpr TableCell kBarsCell = FigureEndingAt(kBarsEnd, 7, kFigureSize);
constexpr TableCell kBarsAloneCell = FigureEndingAt(kBarsAloneEnd, 7, kFigureSize);
constexpr TableCell kWeightCell = FigureEndingAt(kFiguresEnd, 9, kFigureSize);
constexpr TableCell kSumCell = FigureEndingAt(kFiguresEnd, 11, kSumSize);
constexpr TableCell kFittingCell = FigureEndingAt(kFiguresEnd, 7, kFigureSize);

constexpr std::string_view kBarsCaption = "本 数";
constexpr std::string_view kWeightCaption = "重 量";

/// A row below the lengths; `weight` or `count` is what it shows.
struct SumRow {
  std::string_view label;
  Currency DiameterFigures::*weight = nullptr;
  std::int32_t DiameterFigures::*count = nullptr;
};
constexpr std::array<SumRow, 6> kSumRows{{{"重量", &DiameterFigures::stock},
                                          {"圧接", nullptr, &DiameterFigures::welds},
                                          {"ｶﾌﾟﾗ", nullptr, &DiameterFigures::threads},
                                          {"ＤＢ", nullptr, &DiameterFigures::plates},
                                          {"切断", nullptr, &DiameterFigures::cuts},
                                          {"取重", &DiameterFigures::installed}}};

constexpr std::array<std::string_view, kDiameterRows> kNames{"D 10", "D 13", "D 16", "D 19", "D 22", "D 25",
                                                             "D 29", "D 32", "D 35", "D 38", "D 41", "D 51",
                                                             "U  6", "U  7", "U  9", "U 11", "U 12", "U 16"};

std::string LengthLabel(int column) {
  constexpr std::size_t kCharacters = 4;
  return RightAligned(kStockLengthTexts[static_cast<std::size_t>(column)], kCharacters);
}

/// The diameters of each page, from the left.
std::vector<std::vector<int>> PagesOf(const DiameterSheet& sheet) {
  const auto rows = [](int first, int behind) {
    std::vector<int> page(static_cast<std::size_t>(behind - first));
    std::iota(page.begin(), page.end(), first);
    return page;
  };
  if (sheet.thin) return {rows(kDeformedRows, kDiameterRows)};
  std::vector<std::vector<int>> pages{rows(0, kFirstThickRow)};
  if (sheet.thick) pages.push_back(rows(kFirstThickRow, kDeformedRows));
  return pages;
}

/// The pages of a sheet.
class DiameterPages {
 public:
  DiameterPages(ReportPen& pen, const DiameterSheet& sheet)
      : pen_(pen),
        sheet_(sheet),
        lengths_(StockColumnsInUse(sheet.with_13m)),
        sums_(static_cast<int>(kSumRows.size()) - (sheet.with_installed ? 0 : 1)) {}

  void Draw() {
    const std::vector<std::vector<int>> pages = PagesOf(sheet_);
    DrawPages(pen_, PaginateRows(pages.size(), 1),
              {.head = [this](ReportPen&, const PageOfBlocks&) { Top(); },
               .block =
                   [&](ReportPen&, const PlacedBlock& at) {
                     for (std::size_t i = 0; i < pages[at.block].size(); ++i) {
                       Diameter(pages[at.block][i], static_cast<int>(i));
                     }
                   },
               .foot = {}});
  }

 private:
  int FirstSumRow() const { return kFirstLengthRow + lengths_; }
  int LastRow() const { return FirstSumRow() + sums_; }

  void Top() {
    const RowGrid head = DrawHead(pen_, sheet_.layout, sheet_.head);
    place_.rows = {kRowPitch, head.Y(kFloorPartTableRow)};
    Frame();
  }

  /// A diameter's name is one cell over its columns, its sums one cell behind their labels, so that no rule
  /// runs through a long figure.
  void Frame() {
    PrinterSurface& Printer = pen_.Printer;
    for (int group = 0; group < kGroups.count; ++group) {
      const float left = kGroups.Left(group);
      DrawVerticals(Printer, {{left, kEdgeWidth}}, place_.rows, {kNameRow, LastRow()});
      DrawVerticals(Printer, {{left + kLabelRule, kLabelWidth}}, place_.rows, {kHeadingRow, LastRow()});
      if (!sheet_.with_weights) continue;
      DrawVerticals(Printer, {{left + kWeightRule, kInnerWidth}}, place_.rows, {kHeadingRow, FirstSumRow()});
    }
    const float right = kGroups.Left(kGroups.count);
    DrawVerticals(Printer, {{right, kEdgeWidth}}, place_.rows, {kNameRow, LastRow()});
    for (int row = kNameRow; row <= LastRow(); ++row) {
      DrawRowRule(Printer, place_.rows, row, {kGroups.left, right, RuleWidth(row)});
    }
  }

  std::int32_t RuleWidth(int row) const {
    if (row == kNameRow || row == LastRow()) return kEdgeWidth;
    return row == kFirstLengthRow || row == FirstSumRow() ? kLabelWidth : kInnerWidth;
  }

  void Diameter(int r, int group) {
    place_.left = kGroups.Left(group);
    Name(r);
    SetFont(kLabelSize);
    Headings();
    for (int column = 0; column < lengths_; ++column) Label(kFirstLengthRow + column, LengthLabel(column));
    for (int sum = 0; sum < sums_; ++sum) Label(FirstSumRow() + sum, RowOf(sum).label);
    SetFont(kFigureSize);
    // Where 13.0 m is in use, no sum takes 3.5 m in.
    for (int column = sheet_.with_13m ? 1 : 0; column < lengths_; ++column) Length(r, column);
    for (int sum = 0; sum < sums_; ++sum) Sum(r, sum);
  }

  static const SumRow& RowOf(int sum) { return kSumRows[static_cast<std::size_t>(sum)]; }

  /// A text of this size stands in the middle of its row's height.
  void SetFont(float size) {
    SetReportFont(pen_.Printer, size);
    place_.text_drop = (kRowPitch - LineHeight(size)) / 2;
  }

  std::string CellRow(int r, std::string_view label) const {
    return sheet_.tells_of + std::string(kNames[static_cast<std::size_t>(r)]) + " " + std::string(label);
  }

  void Text(int row, float x, std::string_view text, float width = 0) {
    DrawCell(pen_, place_, {row, {}}, {.x = x, .text_width = width}, {}, std::string(text));
  }

  void Name(int r) {
    SetFont(kNameSize);
    Text(kNameRow, kNameX, kNames[static_cast<std::size_t>(r)]);
    if (r >= kDeformedRows) return;
    const auto d = static_cast<std::size_t>(r);
    const std::string& grade = sheet_.origins.grades[d];
    const std::string& maker = sheet_.origins.makers[d];
    const std::string origin = grade + (grade.empty() || maker.empty() ? "" : " ") + maker;
    if (!origin.empty()) Text(kNameRow, kOriginX, origin, kOriginWidth);
  }

  void Headings() {
    Text(kHeadingRow, kUnitX, "ｍ");
    const float bars_end = sheet_.with_weights ? kWeightRule : kGroups.period;
    Heading({kLabelRule, bars_end - kLabelRule}, kBarsCaption);
    if (sheet_.with_weights) Heading({kWeightRule, kGroups.period - kWeightRule}, kWeightCaption);
  }
  void Heading(const ColumnBox& box, std::string_view text) {
    Text(kHeadingRow, CaptionX(pen_.Printer, box, {text, 0, Align::middle}), text);
  }
  void Label(int row, std::string_view label) { Text(row, kLabelX, label); }

  void Length(int r, int column) {
    const DiameterFigures& figures = sheet_.figures[r];
    const std::string name = CellRow(r, LengthLabel(column));
    const TableRow row{kFirstLengthRow + column, name};
    DrawCell(pen_, place_, row, sheet_.with_weights ? kBarsCell : kBarsAloneCell, kBarsCaption,
             ShownFigure(figures.bars[column]));
    if (!sheet_.with_weights) return;
    DrawCell(pen_, place_, row, kWeightCell, kWeightCaption, ShownFigure(figures.weights[column]));
  }

  void Sum(int r, int sum) {
    const SumRow& shows = RowOf(sum);
    const DiameterFigures& figures = sheet_.figures[r];
    const std::string name = CellRow(r, shows.label);
    const TableRow row{FirstSumRow() + sum, name};
    SetFont(shows.weight != nullptr ? kSumSize : kFigureSize);
    if (shows.weight != nullptr) {
      DrawCell(pen_, place_, row, kSumCell, {}, ShownFigure(figures.*shows.weight));
    } else {
      DrawCell(pen_, place_, row, kFittingCell, {}, ShownFigure(figures.*shows.count));
    }
  }

  ReportPen& pen_;
  const DiameterSheet& sheet_;
  int lengths_;
  int sums_;
  TablePlace place_;
};

}  // namespace

bool HasThickBars(const FiguresByDiameter& figures) {
  const auto weighs = [](const DiameterFigures& of) {
    return of.stock > Currency() || of.installed > Currency();
  };
  return std::any_of(figures.begin() + kFirstThickRow, figures.begin() + kDeformedRows, weighs);
}

CutFigures DrawDiameters(PrinterSurface& Printer, const DiameterSheet& sheet) {
  ReportPen pen(Printer);
  DiameterPages(pen, sheet).Draw();
  return pen.cut_figures;
}

}  // namespace rbt
