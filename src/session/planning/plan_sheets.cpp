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
#include "tally/captions.h"
#include "tally/selection.h"

namespace rbt {
namespace {

std::string Today(bool western) {
  const DateTexts today = DefaultDateTexts(Now());
  return DateText({western, today.year, today.month, today.day});
}

/// The selection where it leaves out rows that bars are bought for; empty where it does not.
std::string LeftOutText(const SelectionData& selection) {
  std::string text;
  const auto tell = [&text](std::string_view name, std::string_view what) {
    text += (text.empty() ? "" : "  ") + std::string(name) + " " + std::string(what);
  };
  const auto tell_shapes = [&](std::string_view name, ShapeFilter filter) {
    if (filter != ShapeFilter::with_others) tell(name, ShapeFilterCaption(filter));
  };
  if (!selection.MaterialKindMask.IsAll()) tell("材質", KindCaption(selection.MaterialKindMask));
  if (!selection.MaterialFormMask.IsAll()) tell("材料", FormCaption(selection.MaterialFormMask));
  tell_shapes("溶接フープ", selection.HoopMode);
  tell_shapes("定着板", selection.AnchorPlateMode);
  return text;
}

}  // namespace

PlanSheetHead PlanHeadOfSite() {
  const ReportSite site = ReadReportSite();
  return {site.long_name.empty() ? site.short_name : site.long_name, site.client, Today(site.western_dates),
          LeftOutText(Selection)};
}

PlanSheetHead PlanHeadOfFile() { return {"", "", Today(true), ""}; }

std::string PlanSubjectOfSite() {
  const PlanSheetHead head = PlanHeadOfSite();
  return head.project + (head.selection.empty() ? "" : "（" + head.selection + "）");
}

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
