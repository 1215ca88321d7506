// SPDX-License-Identifier: MIT
#include "reports/floorpart/part_table.h"

#include <array>
#include <cstddef>

#include "reports/floorpart/shown_figure.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/report_text.h"

namespace rbt {

namespace {

constexpr float kLeft = 500;
constexpr float kRight = 15500;
/// Left rules of the columns: label, parts 1 to 11, total.
constexpr std::array<float, 13> kColumns{kLeft, 1300, 2450,  3600,  4750,  5900, 7050,
                                         8200,  9350, 10500, 11650, 12800, 13950};
constexpr std::int32_t kInnerWidth = 2;
constexpr std::int32_t kOuterWidth = kFrameWidth;
constexpr RowRule kRowRule{kLeft, kRight, kOuterWidth};

constexpr float kCaptionSize = 12;
constexpr float kCaptionDrop = 75;
constexpr float kFirstCaptionX = 700;
constexpr float kOthersX = 13010;
constexpr float kTotalCaptionX = 14250;
constexpr float kNameClearance = 30;  ///< from the rules beside it

constexpr float kLineSize = 10;
constexpr float kLineDrop = 100;
constexpr float kLabelX = 600;
constexpr float kPartIndent = 100;
constexpr NumberField kPartField{9, kBlankZeroMask};
constexpr TableCell kTotalCell{.x = 14150, .number = {11, kBlankZeroMask}};
constexpr std::string_view kTotalCaption = "合    計";

/// The head begins with a thinner rule than the lines.
FrameRules Verticals(std::int32_t left_width) {
  FrameRules rules;
  rules.reserve(kColumns.size() + 1);
  for (const float x : kColumns) rules.push_back({x, kInnerWidth});
  rules.front().draw_width = left_width;
  rules.push_back({kRight, kOuterWidth});
  return rules;
}

ColumnBox BoxOfPart(int part) {
  const auto column = static_cast<std::size_t>(part);
  return {kColumns[column], kColumns[column + 1] - kColumns[column], kInnerWidth};
}

}  // namespace

float PartCaptionX(const PrinterSurface& Printer, const ColumnBox& box, std::string_view name) {
  const float x = CaptionX(Printer, box, {name, 0, Align::short_label});
  const bool fits =
      x >= box.x + kNameClearance && x + Printer.TextWidth(name) <= box.Right() - kNameClearance;
  return fits ? x : CaptionX(Printer, box, {name, 0, Align::middle});
}

std::string_view PartTable::CaptionOf(int part) const {
  return part == kOtherParts ? kOtherPartsLabel
                             : std::string_view(names_.at(static_cast<std::size_t>(part - 1)));
}

void PartTable::DrawTop(const RowGrid& rows) {
  place_ = {rows, 0, kLineDrop};
  PrinterSurface& Printer = pen_.Printer;
  DrawVerticals(Printer, Verticals(kInnerWidth), rows, {0, 1});
  DrawRowRule(Printer, rows, 0, kRowRule);
  DrawRowRule(Printer, rows, 1, kRowRule);

  DrawCaption(kFirstCaptionX, first_caption_);
  for (int part = kFirstPart; part <= kLastNamedPart; ++part) DrawPartName(part);
  DrawCaption(kOthersX, kOtherPartsLabel);
  DrawCaption(kTotalCaptionX, kTotalCaption);
}

/// A name wider than its column shrinks.
void PartTable::DrawPartName(int part) {
  PrinterSurface& Printer = pen_.Printer;
  const ColumnBox box = BoxOfPart(part);
  const std::string_view name = CaptionOf(part);
  if (name.empty()) return;
  SetReportFont(Printer, kCaptionSize, true);
  ShrinkToWidth(Printer, name, box.width - 2 * kNameClearance);
  PrintAt(Printer, PartCaptionX(Printer, box, name), place_.rows.Y(0) + kCaptionDrop, {name});
}

void PartTable::DrawCaption(float x, std::string_view text) {
  SetReportFont(pen_.Printer, kCaptionSize, true);
  PrintAt(pen_.Printer, x, place_.rows.Y(0) + kCaptionDrop, {text});
}

void PartTable::DrawLineFrame(int row) {
  DrawVerticals(pen_.Printer, Verticals(kOuterWidth), place_.rows, {row, row + 1});
  DrawRowRule(pen_.Printer, place_.rows, row + 1, kRowRule);
  SetReportFont(pen_.Printer, kLineSize);
}

void PartTable::DrawLine(int row, const PartTableRow& line) {
  DrawGap(row, line.label);
  const TableRow name{row, line.label};
  for (int part = kFirstPart; part < kPartEntries; ++part) {
    DrawCell(pen_, place_, name, {.x = BoxOfPart(part).x + kPartIndent, .number = kPartField},
             CaptionOf(part), ShownFigure(line.parts[part]));
  }
  DrawCell(pen_, place_, name, kTotalCell, kTotalCaption, ShownFigure(line.total));
}

void PartTable::DrawGap(int row, std::string_view label) {
  DrawLineFrame(row);
  DrawCell(pen_, place_, {row, label}, {.x = kLabelX}, {}, std::string(label));
}

}  // namespace rbt
