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
constexpr float kThirdLineY = 1800;
constexpr float kHeadSize = 11;
constexpr float kRuleSize = 9;
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

std::string RuleText(const planning::BarRule& rule) {
  return fmt::format("切断しろ {} mm   端切り {} mm   プラス {} mm", rule.kerf, rule.trim, rule.plus);
}

void DrawPlanLine(ReportPen& pen, const PlanSheetHead& head, const planning::Outcome& outcome) {
  SetReportFont(pen.Printer, kRuleSize);
  const std::string left_out = head.selection.empty() ? "" : "   集計対象 " + head.selection;
  PrintAt(pen.Printer, kPlanSheetLeft, kThirdLineY, {RuleText(outcome.options.bar) + left_out});
  if (outcome.stopped == planning::Stopped::no) return;
  SetReportFont(pen.Printer, kHeadSize, true);
  PrintRight(pen.Printer, kPlanSheetRight, kTitleY, "途中の計画");
}

}  // namespace

void DrawPlanHead(ReportPen& pen, std::string_view title, const PlanSheetHead& head,
                  const planning::Outcome& outcome) {
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
  DrawPlanLine(pen, head, outcome);
}

}  // namespace rbt
