// SPDX-License-Identifier: MIT
#include "reports/frame/report_head.h"

#include <cstdint>

#include "platform/text/characters.h"
#include "reports/frame/report_text.h"
#include "shell/calendar/new_era_function.h"

namespace rbt {

namespace {

constexpr std::int32_t kOneLine = 50;  ///< the break that stands for none

/// "重量対比表 見本町集合住宅": the title without the blanks that spread it over the page, and the site.
std::string DocumentTitle(std::string_view title, const ReportSite& site) {
  const std::string words = ReplaceAll(ReplaceAll(title, " ", ""), "　", "");
  return site.short_name.empty() ? words : words + " " + site.short_name;
}

}  // namespace

ProjectName ProjectNameOf(const ReportSite& site) {
  if (site.long_name.empty()) return ShortName{site.short_name};
  if (site.koji_break == kOneLine) return OneLineName{site.long_name};
  const CutName cut = CutAtBreak(site.long_name, site.koji_break);
  return BrokenName{std::string(cut.first), std::string(cut.rest)};
}

std::string DateText(const ReportDate& date) {
  const std::string month = RightAligned(date.month, 2);
  const std::string day = RightAligned(date.day, 2);
  const std::string from_month = " 年 " + month + " 月 " + day + " 日";
  if (date.western) return RightAligned(date.year, 4) + from_month;
  const std::string year = RightAligned(date.year, 2);
  return std::string(EraNameOfYear(year + month + day)) + " " + year + from_month;
}

ReportHead HeadOf(std::string_view title, const ReportSite& site, const ReportArguments& arguments) {
  return {.title = std::string(title),
          .document_title = DocumentTitle(title, site),
          .client = site.client,
          .project = ProjectNameOf(site),
          .sub_project = arguments.SubProject,
          .date = {site.western_dates, arguments.Year, arguments.Month, arguments.Day}};
}

}  // namespace rbt
