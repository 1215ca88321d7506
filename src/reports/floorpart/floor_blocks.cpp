// SPDX-License-Identifier: MIT
#include "reports/floorpart/floor_blocks.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_texts.h"
#include "reports/floorpart/shown_figure.h"
#include "reports/frame/draw_head.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/page_flow.h"
#include "reports/frame/paper_table.h"
#include "tally/floorpart/floor_marginals.h"

namespace rbt {

namespace {

/// A block starts on a page while fewer lines than these are taken; the largest has a line for each part and
/// its sum.
constexpr int kFullPage = 24;
constexpr int kLargestBlock = kOtherParts + 1;
constexpr PageRoom kRoom{kFullPage, kFullPage - 1 + kLargestBlock};
constexpr float kHeadHeight = 300;
constexpr float kLinePitch = 230;

/// Left rules of the columns: floor, part, the diameters, total; and the rule that closes them.
constexpr int kColumns = 15;
constexpr std::array<float, kColumns + 1> kRules{500,  1100, 2000,  3050,  4100,  5150,  6200,  7250,
                                                 8300, 9350, 10400, 11450, 12500, 13550, 14600, 15700};
constexpr int kFirstDiameterColumn = 2;
constexpr int kTotalColumn = kColumns - 1;
constexpr std::int32_t kEdgeWidth = 3;
constexpr std::int32_t kInnerWidth = 1;
constexpr float kPartsLeft = 1100;

constexpr float kCaptionSize = 11;
constexpr float kLabelSize = 10;
constexpr float kFigureSize = 8;
constexpr float kFloorX = 550;
constexpr float kFloorWidth = 540;
constexpr float kPartX = 1150;
constexpr float kPartWidth = 820;
constexpr float kSumLabelX = 600;
constexpr float kFigureIndent = 200;
constexpr NumberField kFigureField{9, kBlankZeroMask};
constexpr TableCell kTotalCell{.x = 14650, .number = {11, kBlankZeroMask}};

constexpr std::array<std::string_view, kDiameterRows> kCaptions{"D10", "D13", "D16", "D19", "D22", "D25",
                                                                "D29", "D32", "D35", "D38", "D41", "D51",
                                                                "U 6", "U 7", "U 9", "U11", "U12", "U16"};
constexpr std::string_view kNoDiameter = "   ";
constexpr std::string_view kTotalCaption = "合 計";
constexpr std::string_view kSumLabel = "合計";
constexpr std::string_view kAllFloorsLabel = "合  計";

ColumnBox BoxOf(int column) {
  const auto at = static_cast<std::size_t>(column);
  return {kRules[at], kRules[at + 1] - kRules[at]};
}

/// Kilograms of a line by diameter, and in all.
struct BlockLine {
  std::string part;
  Currency total;
  CheckedArray<Currency, kDiameterRows> weights = {};
  bool is_sum = false;
};
struct Block {
  std::string floor;
  std::vector<BlockLine> lines;  ///< the sum last
};

class FloorBlocks {
 public:
  FloorBlocks(ReportPen& pen, const SheetSite& site, const ReportArguments& arguments,
              const TallyResult& result)
      : pen_(pen),
        site_(site),
        tables_(result.Floors()),
        thin_(HoldsThinBarsAlone(result.selection)),
        columns_(ColumnsInUse(site.with_13m)),
        head_(HeadOf("階・部位・径別 合 計 数 量 表", site.site, arguments)) {
    head_.total_weight = tables_.SouGoukei.ToDouble();
    head_.scope = ListedScope(result.selection);
  }

  void Draw() {
    CollectBlocks();
    std::vector<FlowBlock> flow;
    flow.reserve(blocks_.size());
    for (const Block& block : blocks_) flow.push_back({static_cast<int>(block.lines.size())});
    DrawPages(pen_, Paginate(flow, kRoom),
              {.head = [this](ReportPen&, const PageOfBlocks&) { KaiBuiFuto_Head(); },
               .block =
                   [this](ReportPen&, const PlacedBlock& at) {
                     LineCount = at.row;
                     KaiBuiFuto_Line(blocks_[at.block]);
                   },
               .foot = {}});
  }

 private:
  /// Floors without weight have no block.
  void CollectBlocks() {
    blocks_.reserve(tables_.KaiGyouKai.size());
    for (std::size_t i = 0; i + 1 < tables_.KaiGyouKai.size(); ++i) {
      const int floor = tables_.KaiGyouKai[i];
      if (tables_.KaiGoukei[FloorIndex(floor)] > Currency()) blocks_.push_back(BlockOfFloor(floor));
    }
    blocks_.push_back(KaiBuiFuto_Total());
  }

  Block BlockOfFloor(int floor) const {
    const int f = FloorIndex(floor);
    Block block{BlockFloorName(floor), {}};
    block.lines.reserve(kLargestBlock);
    for (int p = kFirstPart; p < kPartEntries; ++p) {
      if (tables_.KaiBuiGoukei[f][p] == Currency()) continue;
      BlockLine& line = block.lines.emplace_back(BlockLine{PartName(p), tables_.KaiBuiGoukei[f][p]});
      for (int r = 0; r < kDiameterRows; ++r) line.weights[r] = WeightOfFloorPart(tables_, f, p, r, columns_);
    }
    block.lines.push_back({std::string(kSumLabel), tables_.KaiGoukei[f], tables_.KaiTaisaGoukei[f], true});
    return block;
  }

  Block KaiBuiFuto_Total() const {
    Block block{std::string(kAllFloorsLabel), {}};
    block.lines.reserve(kLargestBlock);
    for (int p = kFirstPart; p < kPartEntries; ++p) {
      if (tables_.BuiGoukei[p] == Currency()) continue;
      BlockLine& line = block.lines.emplace_back(BlockLine{PartName(p), tables_.BuiGoukei[p]});
      for (int r = 0; r < kDiameterRows; ++r) line.weights[r] = WeightOfPart(tables_, p, r, columns_);
    }
    BlockLine& sum = block.lines.emplace_back(BlockLine{std::string(kSumLabel), tables_.SouGoukei, {}, true});
    for (int r = 0; r < kDiameterRows; ++r) sum.weights[r] = WeightOfDiameter(tables_, r);
    return block;
  }

  std::string PartName(int part) const {
    return part == kOtherParts ? std::string(kOtherPartsLabel)
                               : site_.parts.at(static_cast<std::size_t>(part - 1));
  }

  void KaiBuiFuto_Head() {
    PrinterSurface& Printer = pen_.Printer;
    const float top = DrawHead(pen_, kFutoHead, head_).Y(kFloorPartTableRow);
    const RowGrid caption_row{kHeadHeight, top};
    DrawVerticals(Printer, Verticals(), caption_row, {0, 1});
    for (const int row : {0, 1})
      DrawRowRule(Printer, caption_row, row, {kRules.front(), kRules.back(), kEdgeWidth});
    const float y = top + (kHeadHeight - LineHeight(kCaptionSize)) / 2;
    SetReportFont(Printer, kCaptionSize);
    for (int column = 0; column < kColumns; ++column) {
      const Caption caption{CaptionOf(column), 0, Align::middle};
      PrintAt(Printer, CaptionX(Printer, BoxOf(column), caption), y, {caption.text});
    }
    place_.rows = {kLinePitch, caption_row.Y(1)};
  }

  static FrameRules Verticals() {
    FrameRules rules;
    rules.reserve(kRules.size());
    for (const float x : kRules) rules.push_back({x, kInnerWidth});
    rules.front().draw_width = rules.back().draw_width = kEdgeWidth;
    return rules;
  }

  std::string_view CaptionOf(int column) const {
    if (column == 0) return "階";
    if (column == 1) return "部位";
    if (column == kTotalColumn) return kTotalCaption;
    const int r = DiameterOf(column);
    return r < kDiameterRows ? kCaptions[static_cast<std::size_t>(r)] : kNoDiameter;
  }

  /// The thin diameters take the columns of the first deformed ones; `kDiameterRows` and above behind them.
  int DiameterOf(int column) const { return column - kFirstDiameterColumn + (thin_ ? kDeformedRows : 0); }

  void KaiBuiFuto_Line(const Block& block) {
    const int lines = static_cast<int>(block.lines.size());
    DrawBlockFrame(lines);
    // A block without parts has its one line for the sum's own label.
    if (lines > 1) DrawLabel(LineCount, kFloorX, block.floor, kFloorWidth);
    for (const BlockLine& line : block.lines) {
      DrawLabel(LineCount, line.is_sum ? kSumLabelX : kPartX, line.part, kPartWidth);
      DrawFigures(block.floor, line);
      ++LineCount;
    }
  }

  void DrawBlockFrame(int lines) {
    PrinterSurface& Printer = pen_.Printer;
    const int last = LineCount + lines;
    DrawVerticals(Printer, Verticals(), place_.rows, {LineCount, last});
    for (int row = LineCount + 1; row < last; ++row) {
      DrawRowRule(Printer, place_.rows, row, {kPartsLeft, kRules.back(), kInnerWidth});
    }
    for (const int row : {LineCount, last}) {
      DrawRowRule(Printer, place_.rows, row, {kRules.front(), kRules.back(), kEdgeWidth});
    }
  }

  void SetFont(float size) {
    SetReportFont(pen_.Printer, size);
    place_.text_drop = (kLinePitch - LineHeight(size)) / 2;
  }

  void DrawLabel(int row, float x, std::string_view text, float width) {
    if (text.empty()) return;
    SetFont(kLabelSize);
    DrawCell(pen_, place_, {row, {}}, {.x = x, .text_width = width}, {}, std::string(text));
  }

  void DrawFigures(const std::string& floor, const BlockLine& line) {
    SetFont(kFigureSize);
    const std::string name = floor + " " + line.part;
    const TableRow row{LineCount, name};
    for (int column = kFirstDiameterColumn; column < kTotalColumn; ++column) {
      const int r = DiameterOf(column);
      if (r >= kDiameterRows) break;
      DrawCell(pen_, place_, row, {.x = BoxOf(column).x + kFigureIndent, .number = kFigureField},
               CaptionOf(column), ShownFigure(line.weights[r]));
    }
    DrawCell(pen_, place_, row, kTotalCell, kTotalCaption, ShownFigure(line.total));
  }

  ReportPen& pen_;
  const SheetSite& site_;
  const FloorTables& tables_;
  bool thin_;
  ColumnRun columns_;
  ReportHead head_;
  std::vector<Block> blocks_;
  TablePlace place_;
  int LineCount = 0;  ///< lines of the page above the next one
};

}  // namespace

CutFigures DrawFloorBlocks(PrinterSurface& Printer, const SheetSite& site, const ReportArguments& arguments,
                           const TallyResult& result) {
  ReportPen pen(Printer);
  FloorBlocks(pen, site, arguments, result).Draw();
  return pen.cut_figures;
}

}  // namespace rbt
