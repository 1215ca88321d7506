// SPDX-License-Identifier: MIT
#include "reports/comparison/comparison_head.h"

#include "reports/comparison/comparison_layout.h"
#include "reports/frame/draw_head.h"

namespace rbt {

double TotalWeightOf(const ComparisonSheet& sheet, char kind) {
  const Currency total = kind == 'C' ? sheet.table.TotalInstalledWeight : sheet.table.TotalStockWeight;
  if (sheet.arguments.UlbonFlag == 0) return total.ToDouble();
  return total.ToDouble() + sheet.ulbon_weight + sheet.table.SpiralTotal.ToDouble();
}

ReportHead ComparisonHeadOf(const ComparisonSheet& sheet, char kind) {
  ReportHead head = HeadOf(kComparisonTitle, sheet.site, sheet.arguments);
  head.total_weight = TotalWeightOf(sheet, kind);
  return head;
}

RowGrid Taihi_Head_A4T(ReportPen& pen, const ReportHead& head) { return DrawHead(pen, kHeadA4T, head); }

RowGrid Taihi_Head_A4Y(ReportPen& pen, const ReportHead& head) { return DrawHead(pen, kHeadA4Y, head); }

RowGrid Taihi_Head_B5Y(ReportPen& pen, const ReportHead& head) { return DrawHead(pen, kHeadB5Y, head); }

}  // namespace rbt
