// SPDX-License-Identifier: MIT
#include "reports/frame/report_site.h"

#include "data/reference.h"
#include "platform/text/characters.h"
#include "shell/calendar/new_era_function.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"

namespace rbt {

namespace {

/// Read for each report: the settings form may have saved another choice since the load.
bool WesternDates() { return ReadSetting(kDateStyleKey) == 1; }

}  // namespace

DetailArguments DetailArgumentsOf(const SettingsData& settings) {
  return {.MemoPosition = settings.MemoPosition == 1 ? MemoPlace::above : MemoPlace::below,
          .Installed = settings.DetailPrint == 1,
          .DatePosition = settings.DetailDatePosition == 1 ? DatePlace::right : DatePlace::centre};
}

ReportArguments Trimmed(const ReportArguments& arguments) {
  ReportArguments trimmed = arguments;
  for (std::string* text : {&trimmed.SubProject, &trimmed.Year, &trimmed.Month, &trimmed.Day}) {
    *text = std::string(Trim(*text));
  }
  for (std::string& memo : trimmed.Detail.Memos) memo = std::string(Trim(memo));
  return trimmed;
}

DateTexts DefaultDateTexts(const DateTime& date) {
  const std::string year =
      WesternDates() ? FormatDate(date, "yyyy") : std::string(Right("0" + FormatDate(date, "e"), 2));
  return {year, FormatDate(date, "mm"), FormatDate(date, "dd")};
}

ReportSite ReadReportSite() {
  const SiteHead head = ReadSiteHead(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  ReportSite site;
  site.client = ClientName(*SiteContext.MasterDatabase, head.client_code);
  site.short_name = head.name;
  site.long_name = SiteContext.LongSiteName;
  site.koji_break = SiteContext.LongSiteNameWidth;
  site.western_dates = WesternDates();
  return site;
}

}  // namespace rbt
