// SPDX-License-Identifier: MIT
#include "reports/floorpart/all_parts_sheet.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_texts.h"
#include "reports/floorpart/shown_figure.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/paper_table.h"

namespace rbt {

namespace {

constexpr int kBands = 3;
constexpr GroupBand kGroups{500, 2600, 4};
constexpr float kRowPitch = 205;

// Rows of a band: the diameters, the headings, the parts, the sums.
constexpr int kHeadingRow = 1;
constexpr int kFirstPartRow = 2;
constexpr int kSumRow = kFirstPartRow + kOtherParts;
constexpr int kBandRows = kSumRow + 1;

constexpr std::int32_t kOuterWidth = 3;
constexpr std::int32_t kPartWidth = 2;
/// The lines of the parts stand too close for rules between them.
struct BandRule {
  int row;
  std::int32_t width;
};
constexpr std::array<BandRule, 5> kRowRules{{{0, kOuterWidth},
                                             {kHeadingRow, kPartWidth},
                                             {kFirstPartRow, kPartWidth},
                                             {kSumRow, kPartWidth},
                                             {kBandRows, kOuterWidth}}};

// Twips from the left of a group. Weights and welds share the column behind the names.
constexpr float kNameColumn = 1100;
constexpr float kNameX = 50;
constexpr float kNameWidth = 1000;
constexpr ColumnBox kWeightBox{1110, 900};
constexpr ColumnBox kWeldBox{2090, 500};
constexpr TableCell kWeightCell{.x = kWeightBox.x, .number = {9, kBlankZeroMask}};
constexpr TableCell kWeldCell{.x = kWeldBox.x, .number = {5, kBlankZeroMask}};

constexpr float kTextSize = 10;
constexpr float kHeadingSize = 9;
constexpr std::string_view kWeightCaption = "重 量";
constexpr std::string_view kWeldCaption = "圧　接";
constexpr std::string_view kSumLabel = "合　計";

constexpr std::array<std::string_view, kDiameterRows> kNames{"D 10", "D 13", "D 16", "D 19", "D 22", "D 25",
                                                             "D 29", "D 32", "D 35", "D 38", "D 41", "D 51",
                                                             "U  6", "U  7", "U  9", "U 11", "U 12", "U 16"};
constexpr std::string_view kNoName = "    ";

class AllParts {
 public:
  AllParts(ReportPen& pen, const SheetSite& site, const ReportArguments& arguments, const TallyResult& result)
      : pen_(pen),
        site_(site),
        tables_(result.Parts()),
        thin_(HoldsThinBarsAlone(result.selection)),
        head_(HeadOf("部位別合計数量表", site.site, arguments)) {
    head_.total_weight = tables_.SouGoukei.ToDouble();
    head_.scope = RangeScope(result.selection);
  }

  void Draw() {
    place_.rows = {kRowPitch, DrawHead(pen_, kZenbuiHead, head_).Y(kFloorPartTableRow)};
    for (int band = 0; band < kBands; ++band) {
      band_ = band;
      Frame();
      for (int group = 0; group < kGroups.count; ++group) Group(group);
    }
    pen_.Printer.EndDoc();
  }

 private:
  /// A row of the band on the page.
  int Row(int row) const { return band_ * kBandRows + row; }

  /// The diameter of a group, nothing where no thin one stands.
  std::optional<int> DiameterOf(int group) const {
    const int r = band_ * kGroups.count + group + (thin_ ? kDeformedRows : 0);
    return r < kDiameterRows ? std::optional(r) : std::nullopt;
  }

  /// The name of a diameter is one cell over its columns.
  void Frame() {
    PrinterSurface& Printer = pen_.Printer;
    for (int group = 0; group < kGroups.count; ++group) {
      const float left = kGroups.Left(group);
      DrawVerticals(Printer, {{left, kOuterWidth}}, place_.rows, {Row(0), Row(kBandRows)});
      DrawVerticals(Printer, {{left + kNameColumn, kPartWidth}}, place_.rows,
                    {Row(kHeadingRow), Row(kBandRows)});
    }
    const float right = kGroups.Left(kGroups.count);
    DrawVerticals(Printer, {{right, kOuterWidth}}, place_.rows, {Row(0), Row(kBandRows)});
    for (const auto& [row, width] : kRowRules) {
      DrawRowRule(Printer, place_.rows, Row(row), {kGroups.left, right, width});
    }
  }

  void Group(int group) {
    place_.left = kGroups.Left(group);
    const std::optional<int> r = DiameterOf(group);
    SetFont(kTextSize);
    Heading(0, {0, kGroups.period}, r ? kNames[static_cast<std::size_t>(*r)] : kNoName);
    if (!r) return;
    SetFont(kHeadingSize);
    Heading(kHeadingRow, {0, kNameColumn}, "部　位");
    Heading(kHeadingRow, kWeightBox, kWeightCaption);
    HeadingAtEnd(kHeadingRow, kWeldBox, kWeldCaption);
    SetFont(kTextSize);
    for (int part = kFirstPart; part < kPartEntries; ++part) {
      Line(*r, kFirstPartRow + part - kFirstPart, PartName(part), tables_.BuiTaisaGoukei[*r][part],
           tables_.Assetu.Bui[part][*r]);
    }
    Line(*r, kSumRow, kSumLabel, tables_.TaisaGoukei[*r], tables_.Assetu.Taisa[*r]);
  }

  std::string_view PartName(int part) const {
    return part == kOtherParts ? kOtherPartsLabel
                               : std::string_view(site_.parts.at(static_cast<std::size_t>(part - 1)));
  }

  void SetFont(float size) {
    SetReportFont(pen_.Printer, size);
    place_.text_drop = (kRowPitch - LineHeight(size)) / 2;
  }

  void Text(int row, float x, std::string_view text, float width = 0) {
    DrawCell(pen_, place_, {Row(row), {}}, {.x = x, .text_width = width}, {}, std::string(text));
  }
  void Heading(int row, const ColumnBox& box, std::string_view text) {
    Text(row, CaptionX(pen_.Printer, box, {text, 0, Align::middle}), text);
  }
  /// A heading wider than its figures ends with them, a little off the rule.
  void HeadingAtEnd(int row, const ColumnBox& box, std::string_view text) {
    constexpr float kClearance = 30;
    Text(row, CaptionX(pen_.Printer, box, {text, kClearance, Align::right}), text);
  }

  void Line(int r, int row, std::string_view label, Currency weight, std::int32_t welds) {
    if (!label.empty()) Text(row, kNameX, label, kNameWidth);
    const std::string name = std::string(kNames[static_cast<std::size_t>(r)]) + " " + std::string(label);
    const TableRow named{Row(row), name};
    DrawCell(pen_, place_, named, kWeightCell, kWeightCaption, ShownFigure(weight));
    DrawCell(pen_, place_, named, kWeldCell, kWeldCaption, ShownFigure(welds));
  }

  ReportPen& pen_;
  const SheetSite& site_;
  const PartTables& tables_;
  bool thin_;
  ReportHead head_;
  TablePlace place_;
  int band_ = 0;  ///< that is drawn
};

}  // namespace

CutFigures DrawAllParts(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                        const TallyResult& result) {
  ReportPen pen(Printer);
  AllParts(pen, site, arguments, result).Draw();
  return pen.cut_figures;
}

}  // namespace rbt
