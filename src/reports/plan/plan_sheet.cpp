// SPDX-License-Identifier: MIT
#include "reports/plan/plan_sheet.h"

#include <fmt/format.h>

#include "reports/frame/letter_spacing.h"

namespace rbt {
namespace {

constexpr float kTitleSize = 16;
constexpr float kTitleY = 600;
constexpr float kFirstLineY = 1150;
constexpr float kSecondLineY = 1500;
constexpr float kHeadSize = 11;
constexpr float kNameWidth = 6800;
constexpr std::int32_t kTitleRule = 4;

void PrintRight(PrinterSurface& Printer, float right, float y, std::string_view text) {
  PrintAt(Printer, right - Printer.TextWidth(text), y, {text});
}

void PrintNamed(PrinterSurface& Printer, float y, std::string_view label, std::string_view name) {
  if (name.empty()) return;
  SetReportFont(Printer, kHeadSize);
  const float x = kPlanSheetLeft + Printer.TextWidth(label);
  PrintAt(Printer, kPlanSheetLeft, y, {label});
  ShrinkToWidth(Printer, name, kNameWidth);
  PrintAt(Printer, x, y, {name});
}

}  // namespace

void DrawPlanHead(ReportPen& pen, std::string_view title, const PlanSheetHead& head) {
  PrinterSurface& Printer = pen.Printer;
  Printer.DocumentTitle = title;
  SetReportFont(Printer, kTitleSize, true);
  const float width = Printer.TextWidth(title);
  const float x = (kPlanSheetLeft + kPlanSheetRight - width) / 2.0F;
  PrintAt(Printer, x, kTitleY, {title});
  Printer.DrawWidth = kTitleRule;
  const float under = kTitleY + LineHeight(kTitleSize) + 40.0F;
  Printer.Line(x, under, x + width, under);
  PrintNamed(Printer, kFirstLineY, "取引先  ", head.client);
  PrintNamed(Printer, kSecondLineY, "工事名  ", head.project);
  SetReportFont(Printer, kHeadSize);
  PrintRight(Printer, kPlanSheetRight, kFirstLineY, head.date);
  PrintRight(Printer, kPlanSheetRight, kSecondLineY, fmt::format("{} 頁", pen.page));
}

}  // namespace rbt
