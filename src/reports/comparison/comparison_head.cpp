// SPDX-License-Identifier: MIT
#include "reports/comparison/comparison_head.h"

#include <fmt/format.h>

#include "platform/numbers/number_words.h"
#include "reports/comparison/comparison_layout.h"

namespace rbt {

namespace {

std::string Answer(const RowGrid& grid) { return fmt::format("{},{}", grid.LineUnit, grid.BaseY); }

std::string DrawLandscapeHead(PrinterSurface& Printer, const HeadLayout& layout,
                              const ComparisonSheet& sheet) {
  const RowGrid grid = DrawHead(Printer, layout, sheet.site, sheet.arguments);
  DrawDate(Printer, layout, grid, sheet.site, sheet.arguments);
  return Answer(grid);
}

}  // namespace

double TotalWeightOf(const ComparisonSheet& sheet, char kind) {
  const Currency total = kind == 'C' ? sheet.table.TotalInstalledWeight : sheet.table.TotalStockWeight;
  if (sheet.arguments.UlbonFlag == 0) return total.ToDouble();
  return total.ToDouble() + sheet.ulbon_weight + sheet.table.SpiralTotal.ToDouble();
}

std::string Taihi_Head_A4T(PrinterSurface& Printer, const ComparisonSheet& sheet, char kind) {
  const RowGrid grid = DrawHead(Printer, kHeadA4T, sheet.site, sheet.arguments);
  DrawTotalLine(Printer, kTotalLineA4T, grid, TotalWeightOf(sheet, kind));
  DrawDate(Printer, kHeadA4T, grid, sheet.site, sheet.arguments);
  return Answer(grid);
}

std::string Taihi_Head_A4Y(PrinterSurface& Printer, const ComparisonSheet& sheet, char /*kind*/) {
  return DrawLandscapeHead(Printer, kHeadA4Y, sheet);
}

std::string Taihi_Head_B5Y(PrinterSurface& Printer, const ComparisonSheet& sheet, char /*kind*/) {
  return DrawLandscapeHead(Printer, kHeadB5Y, sheet);
}

RowGrid RowGridOf(std::string_view head_answer) {
  const std::size_t comma = head_answer.find(',');
  return {static_cast<float>(LeadingNumber(head_answer.substr(0, comma))),
          static_cast<float>(LeadingNumber(head_answer.substr(comma + 1)))};
}

}  // namespace rbt
