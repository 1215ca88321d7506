// SPDX-License-Identifier: MIT
#include "reports/detail/meisai.h"

#include <string>

#include "reports/detail/detail_report.h"
#include "shell/config/settings.h"
#include "shell/context/reference_names.h"

namespace rbt {

namespace {

constexpr std::int32_t kDetailTitleChoice = 2;
constexpr std::int32_t kOwnTitleChoice = 3;

std::string TitleOf(const SettingsData& settings) {
  switch (settings.ReportTitleChoice) {
    case kDetailTitleChoice:
      return "材  料  明  細  表";
    case kOwnTitleChoice:
      return settings.ReportTitleText;
    default:
      return "合  計  数  量  表";
  }
}

CutFigures DrawSite(PrinterSurface& Printer, const DetailPaper& form, const ReportArguments& arguments,
                    const TallyResult& result) {
  return DrawDetail(Printer, form,
                    {.site = ReadReportSite(),
                     .arguments = arguments,
                     .table = result.Grid(),
                     .grades = DiameterGradeNames(),
                     .title = TitleOf(Settings),
                     .own_title = Settings.ReportTitleChoice == kOwnTitleChoice,
                     .with_13m = Settings.Use13mColumn == 1,
                     .empty_diameters = Settings.PrintEmptyDiameters == 1});
}

}  // namespace

CutFigures Meisai_A4T(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, kMeisaiA4T, arguments, result);
}

CutFigures Meisai_A4T_Count(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawSite(Printer, kMeisaiA4TCount, arguments, result);
}

CutFigures Meisai_A4Y(PrinterSurface& Printer, const ReportArguments& arguments, const TallyResult& result) {
  return DrawSite(Printer, kMeisaiA4Y, arguments, result);
}

CutFigures Meisai_A4Y_Count(PrinterSurface& Printer, const ReportArguments& arguments,
                            const TallyResult& result) {
  return DrawSite(Printer, kMeisaiA4YCount, arguments, result);
}

}  // namespace rbt
