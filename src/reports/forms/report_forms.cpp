// SPDX-License-Identifier: MIT
#include "reports/forms/report_forms.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include "platform/fault.h"
#include "platform/print/paper.h"
#include "platform/system/message.h"
#include "reports/comparison/taihi.h"
#include "reports/detail/meisai.h"
#include "reports/floorpart/floor_reports.h"
#include "reports/floorpart/part_reports.h"
#include "reports/frame/cut_figure_message.h"
#include "reports/frame/print_frame.h"
#include "reports/ulbon/ulbon_report.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::int32_t kKindA = 1;
constexpr std::int32_t kKindB = 2;
constexpr std::int32_t kKindC = 3;
constexpr std::int32_t kWithWeights = 1;
constexpr std::int32_t kCountsAlone = 2;

constexpr std::array<ReportForm, 22> kReportForms{{
    {"taihi-a-a4t", ReportFamily::comparison, ReportPaper::a4t, kKindA, Taihi_A_A4T},
    {"taihi-a-a4y", ReportFamily::comparison, ReportPaper::a4y, kKindA, Taihi_A_A4Y},
    {"taihi-a-b5y", ReportFamily::comparison, ReportPaper::b5y, kKindA, Taihi_A_B5Y},
    {"taihi-b-a4t", ReportFamily::comparison, ReportPaper::a4t, kKindB, Taihi_B_A4T},
    {"taihi-b-a4y", ReportFamily::comparison, ReportPaper::a4y, kKindB, Taihi_B_A4Y},
    {"taihi-b-b5y", ReportFamily::comparison, ReportPaper::b5y, kKindB, Taihi_B_B5Y},
    {"taihi-c-a4t", ReportFamily::comparison, ReportPaper::a4t, kKindC, Taihi_C_A4T},
    {"taihi-c-a4y", ReportFamily::comparison, ReportPaper::a4y, kKindC, Taihi_C_A4Y},
    {"taihi-c-b5y", ReportFamily::comparison, ReportPaper::b5y, kKindC, Taihi_C_B5Y},
    {"ulbon", ReportFamily::ulbon, ReportPaper::a4y, 0, Ulbon_Report},
    {"meisai-a4t", ReportFamily::detail, ReportPaper::a4t, kWithWeights, Meisai_A4T},
    {"meisai-a4t-count", ReportFamily::detail, ReportPaper::a4t, kCountsAlone, Meisai_A4T_Count},
    {"meisai-a4y", ReportFamily::detail, ReportPaper::a4y, kWithWeights, Meisai_A4Y},
    {"meisai-a4y-count", ReportFamily::detail, ReportPaper::a4y, kCountsAlone, Meisai_A4Y_Count},
    {"kai-goukei", ReportFamily::floor, ReportPaper::a4y, 0, Kai_Goukei_Print},
    {"kai-kakukai", ReportFamily::floor, ReportPaper::a4y, 0, Kai_Kakukai_Print, DocumentOf::floor},
    {"kai-meisai", ReportFamily::floor, ReportPaper::a4y, kWithWeights, Kai_Meisai_Print},
    {"kai-meisai-honsu", ReportFamily::floor, ReportPaper::a4y, kCountsAlone, Kai_Meisai_Honsu},
    {"kai-bui-futo", ReportFamily::floor, ReportPaper::a4y, 0, KaiBuiFuto_Print},
    {"bui-goukei", ReportFamily::part, ReportPaper::a4y, 0, Bui_Goukei_Print},
    {"bui-zenbui", ReportFamily::part, ReportPaper::a4y, 0, Bui_Zenbui_Print},
    {"bui-kakubui", ReportFamily::part, ReportPaper::a4y, 0, Bui_Kakubui_Print, DocumentOf::part},
}};

const ReportForm& FirstForm(const std::function<bool(const ReportForm&)>& fits, std::string_view sought) {
  const auto* form = std::find_if(kReportForms.begin(), kReportForms.end(), fits);
  if (form == kReportForms.end()) {
    throw Fault(FaultKind::subscript_out_of_range, "report form " + std::string(sought));
  }
  return *form;
}

const ReportForm& ChosenForm(ReportFamily family, ReportPaper paper, std::int32_t choice) {
  return FirstForm(
      [&](const ReportForm& form) {
        return form.family == family && form.paper == paper && form.choice == choice;
      },
      "of a paper and a choice");
}

}  // namespace

PaperSetting SettingOf(ReportPaper paper) {
  switch (paper) {
    case ReportPaper::a4t:
      return {kPortrait, kPaperKindA4};
    case ReportPaper::a4y:
      return {kLandscape, kPaperKindA4};
    case ReportPaper::b5y:
      break;
  }
  return {kLandscape, kPaperKindB5};
}

std::span<const ReportForm> ReportForms() { return kReportForms; }

const ReportForm& FindReportForm(std::string_view word) {
  return FirstForm([&](const ReportForm& form) { return form.word == word; }, word);
}

const ReportForm& ChosenComparison(ReportPaper paper) {
  const std::int32_t setting = ReadSetting(kComparisonKindKey);
  const std::int32_t choice = setting == kKindA || setting == kKindB ? setting : kKindC;
  return ChosenForm(ReportFamily::comparison, paper, choice);
}

const ReportForm& ChosenDetail(ReportPaper paper) {
  return ChosenForm(ReportFamily::detail, paper,
                    Settings.DetailShowsWeight == 1 ? kWithWeights : kCountsAlone);
}

const ReportForm& ChosenFloorDetail() {
  return ChosenForm(ReportFamily::floor, ReportPaper::a4y,
                    ReadSetting(kFloorDetailPrintKey) == 1 ? kWithWeights : kCountsAlone);
}

const ReportForm& UlbonForm() { return FindReportForm("ulbon"); }

void PrintForm(const ReportForm& form, const ReportArguments& arguments, const TallyResult& result) {
  const PaperSetting paper = SettingOf(form.paper);
  CutFigures cut;
  PrintReport(paper.orientation, paper.paper_kind,
              [&](PrinterSurface& Printer) { cut = form.draw(Printer, Trimmed(arguments), result); });
  if (!cut.empty()) MsgBox(CutFigureMessage(cut));
}

}  // namespace rbt
