// SPDX-License-Identifier: MIT
#include "reports/plan/shop_sheet.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "planning/outcome/pattern_shares.h"
#include "planning/outcome/plan_text.h"
#include "platform/print/printer_surface.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/page_flow.h"

namespace rbt {
namespace {

using planning::BarRule;
using planning::CutShares;
using planning::Outcome;
using planning::OutcomeGroup;
using planning::OutcomePattern;

constexpr std::string_view kTitle = "鉄 筋 切 断 指 示 書";
constexpr float kTextSize = 9;
constexpr float kSheetWidth = kPlanSheetRight - kPlanSheetLeft;
constexpr int kBarLines = 2;  ///< a bar is drawn as high as so many lines
constexpr float kBarDrop = 40;
constexpr float kBarHeight = 300;
constexpr float kHatchStep = 90;

/// Words one behind the other on as many lines as they need.
std::vector<std::string> Wrapped(std::string_view label, const std::vector<std::string>& words,
                                 std::string_view between = " ") {
  std::vector<std::string> lines(1, std::string(label));
  bool begins = true;
  for (const std::string& word : words) {
    const std::string longer = lines.back() + std::string(begins ? "" : between) + word;
    if (!begins && TextWidthAt(kTextSize, longer) > kSheetWidth) {
      lines.push_back("        " + word);
    } else {
      lines.back() = longer;
    }
    begins = false;
  }
  return lines;
}

std::vector<std::string> PlaceWords(const std::vector<CutShares>& shares) {
  std::vector<std::string> words;
  for (const CutShares& cut : shares) {
    std::string label = std::to_string(cut.cut_mm) + ":";
    for (const planning::OutcomeShare& share : cut.rows) {
      words.push_back(label + planning::PlaceText(share));
      label.clear();
    }
  }
  return words;
}

/// One pattern, below the heading of its group where it is the first one; or a line of text that stands by
/// itself.
struct SheetBlock {
  std::string heading = {};  ///< of the pattern's group
  bool begins = false;       ///< the heading stands above
  std::vector<std::string> above = {};
  const OutcomePattern* bar = nullptr;  ///< drawn to scale below the first texts
  std::vector<std::string> below = {};
  int gap = 1;  ///< empty lines below

  int Lines() const {
    return static_cast<int>(above.size() + below.size()) + (bar != nullptr ? kBarLines : 0) + gap;
  }
};

std::string HeadingOf(const OutcomeGroup& group) {
  return "■ " + planning::SteelText(group.steel) + (group.scope == "site" ? "" : "   階 " + group.scope);
}

SheetBlock BlockOf(const OutcomePattern& of, int number, const BarRule& rule,
                   const std::vector<CutShares>& shares) {
  std::string head = fmt::format("{:>4}  {}{} mm  x {} 本   {}   残 {} mm   切断 {}", number,
                                 of.pattern.rest ? "残材 " : "定尺 ", of.pattern.stock_mm, of.pattern.bars,
                                 planning::PiecesText(of.pattern), of.left_mm, of.cuts);
  const std::vector<std::int64_t> at = planning::MarksOf(rule, of.pattern);
  std::vector<std::string> marks;
  marks.reserve(at.size() + 1);
  if (const int trim = planning::TrimOf(rule, of.pattern); trim > 0) {
    marks.push_back("端切り:" + std::to_string(trim));
  }
  for (const std::int64_t mark : at) marks.push_back(std::to_string(mark));
  SheetBlock block;
  block.above = Wrapped(head, {});
  block.bar = &of;
  block.below = Wrapped("  墨 ", marks);
  for (std::string& line : Wrapped("  行 ", PlaceWords(shares))) block.below.push_back(std::move(line));
  return block;
}

std::vector<SheetBlock> BlocksOf(const Outcome& outcome) {
  std::vector<SheetBlock> blocks;
  for (const OutcomeGroup& group : outcome.groups) {
    const auto shares = planning::SharesOf(group);
    for (std::size_t p = 0; p < group.patterns.size(); ++p) {
      SheetBlock& block = blocks.emplace_back(
          BlockOf(group.patterns[p], static_cast<int>(p) + 1, outcome.options.bar, shares[p]));
      block.heading = HeadingOf(group);
      if (p > 0) continue;
      block.begins = true;
      block.above.insert(block.above.begin(), {block.heading, ""});
    }
  }
  if (outcome.rests.empty()) return blocks;
  std::vector<std::string> words;
  words.reserve(outcome.rests.size());
  for (const planning::UsableRest& rest : outcome.rests) {
    words.push_back(fmt::format("{} {}mm x{}", planning::SteelText(rest.steel), rest.mm, rest.count));
  }
  for (std::string& line : Wrapped("使える残材  ", words, "   ")) {
    SheetBlock& block = blocks.emplace_back();
    block.above = {std::move(line)};
    block.gap = 0;
  }
  return blocks;
}

class ShopSheets {
 public:
  ShopSheets(ReportPen& pen, const PlanSheetHead& head, const Outcome& outcome)
      : pen_(pen), head_(head), outcome_(outcome), blocks_(BlocksOf(outcome)) {
    for (const OutcomeGroup& group : outcome.groups) {
      for (const OutcomePattern& of : group.patterns) longest_ = std::max(longest_, of.pattern.stock_mm);
    }
  }

  void Draw() {
    std::vector<FlowBlock> flow;
    flow.reserve(blocks_.size());
    for (const SheetBlock& block : blocks_) flow.push_back({block.Lines()});
    DrawPages(pen_, Paginate(flow, {kPlanSheetLines, kPlanSheetLines}),
              {.head = [this](ReportPen&, const PageOfBlocks& page) { Top(page); },
               .block = [this](ReportPen&, const PlacedBlock& at) { Block(at.row, blocks_[at.block]); },
               .foot = nullptr});
  }

 private:
  /// A page that goes on with a group says which.
  void Top(const PageOfBlocks& page) {
    DrawPlanHead(pen_, kTitle, head_, outcome_);
    if (page.empty()) return;
    const SheetBlock& first = blocks_[page.front().block];
    if (first.begins || first.heading.empty()) return;
    SetReportFont(pen_.Printer, kTextSize);
    PrintAt(pen_.Printer, kPlanSheetLeft, kPlanSheetTop - 1.5F * kPlanSheetLine,
            {first.heading + "（続き）"});
  }

  void Block(int row, const SheetBlock& block) {
    SetReportFont(pen_.Printer, kTextSize);
    const auto y = [&] { return kPlanSheetTop + static_cast<float>(row) * kPlanSheetLine; };
    const auto print = [&](const std::string& line) {
      PrintAt(pen_.Printer, kPlanSheetLeft, y(), {line});
      ++row;
    };
    for (const std::string& line : block.above) print(line);
    if (block.bar != nullptr) {
      Bar(y() + kBarDrop, *block.bar);
      row += kBarLines;
    }
    SetReportFont(pen_.Printer, kTextSize);
    for (const std::string& line : block.below) print(line);
  }

  float X(std::int64_t mm) const {
    return kPlanSheetLeft + kSheetWidth * static_cast<float>(mm) / static_cast<float>(longest_);
  }

  /// The bar to scale: a rule where its end is cut off and at each mark, the length in each piece that has
  /// room for it, the rest hatched.
  void Bar(float y, const OutcomePattern& of) {
    PrinterSurface& Printer = pen_.Printer;
    const float right = X(of.pattern.stock_mm);
    Printer.DrawWidth = 3;
    Printer.Line(kPlanSheetLeft, y, right, y);
    Printer.Line(kPlanSheetLeft, y + kBarHeight, right, y + kBarHeight);
    Printer.Line(kPlanSheetLeft, y, kPlanSheetLeft, y + kBarHeight);
    Printer.Line(right, y, right, y + kBarHeight);
    Printer.DrawWidth = 2;
    const BarRule& rule = outcome_.options.bar;
    const std::vector<std::int64_t> marks = planning::MarksOf(rule, of.pattern);
    if (const int trim = planning::TrimOf(rule, of.pattern); trim > 0) {
      Printer.Line(X(trim), y, X(trim), y + kBarHeight);
    }
    std::size_t mark = 0;
    for (const auto& [cut, pieces] : of.pattern.pieces) {
      for (int piece = 0; piece < pieces; ++piece, ++mark) {
        const float end = std::min(right, X(marks[mark]));
        Printer.Line(end, y, end, y + kBarHeight);
        Length(y, X(marks[mark] - cut), end, cut);
      }
    }
    if (of.left_mm > 0) Hatch(y, X(of.pattern.stock_mm - of.left_mm), right);
  }

  void Length(float y, float from, float to, int cut) {
    const std::string text = std::to_string(cut);
    const float width = pen_.Printer.TextWidth(text);
    if (width + 40.0F > to - from) return;
    PrintAt(pen_.Printer, (from + to - width) / 2.0F, y + (kBarHeight - LineHeight(kTextSize)) / 2.0F,
            {text});
  }

  void Hatch(float y, float from, float to) {
    pen_.Printer.DrawWidth = 1;
    const int strokes = static_cast<int>(std::ceil((to - from) / kHatchStep));
    for (int stroke = 0; stroke < strokes; ++stroke) {
      const float x = from + static_cast<float>(stroke) * kHatchStep;
      const float end = std::min(to, x + kBarHeight);
      pen_.Printer.Line(x, y + kBarHeight, end, y + kBarHeight - (end - x));
    }
  }

  ReportPen& pen_;
  const PlanSheetHead& head_;
  const Outcome& outcome_;
  std::vector<SheetBlock> blocks_;
  int longest_ = 1;
};

}  // namespace

void DrawShopSheet(PrinterSurface& Printer, const PlanSheetHead& head, const Outcome& outcome) {
  ReportPen pen(Printer);
  ShopSheets(pen, head, outcome).Draw();
}

}  // namespace rbt
