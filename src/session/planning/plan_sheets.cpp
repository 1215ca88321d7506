// SPDX-License-Identifier: MIT
#include "session/planning/plan_sheets.h"

#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "reports/frame/cut_figure_message.h"
#include "reports/frame/print_frame.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_site.h"
#include "reports/plan/purchase_sheet.h"
#include "reports/plan/shop_sheet.h"

namespace rbt {
namespace {

std::string Today(bool western) {
  const DateTexts today = DefaultDateTexts(Now());
  return DateText({western, today.year, today.month, today.day});
}

}  // namespace

PlanSheetHead PlanHeadOfSite() {
  const ReportSite site = ReadReportSite();
  return {site.long_name.empty() ? site.short_name : site.long_name, site.client, Today(site.western_dates)};
}

PlanSheetHead PlanHeadOfFile() { return {"", "", Today(true)}; }

void PrintPlanSheet(PlanSheet sheet, const PlanSheetHead& head, const planning::Outcome& outcome) {
  CutFigures cut;
  PrintReport(kPortrait, kPaperKindA4, [&](PrinterSurface& Printer) {
    if (sheet == PlanSheet::shop) {
      DrawShopSheet(Printer, head, outcome);
    } else {
      cut = DrawPurchaseSheet(Printer, head, outcome);
    }
  });
  if (!cut.empty()) MsgBox(CutFigureMessage(cut));
}

std::string ShowPlanSheet(PlanSheet sheet, const planning::Outcome& outcome, const Preview& preview) {
  return PrintOrShow(
      true, [&] { PrintPlanSheet(sheet, PlanHeadOfSite(), outcome); }, preview);
}

}  // namespace rbt
