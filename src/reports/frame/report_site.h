// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/system/clock.h"
#include "shell/config/settings.h"

namespace rbt {

/// Where the purchase list has its memo lines (on A4 landscape) and its date.
enum class MemoPlace { below, above };
enum class DatePlace { centre, right };

/// What the purchase list takes beside the rest.
struct DetailArguments {
  std::array<std::string, 3> Memos = {};
  MemoPlace MemoPosition = MemoPlace::below;
  bool Installed = false;  ///< installed weights too, on A4 landscape
  DatePlace DatePosition = DatePlace::centre;
};
/// Without memos, the rest as the settings 明細書メモ印刷位置, 重量集計明細 and 日付印字位置 have it: 1 is
/// above, with installed weights, on the right.
DetailArguments DetailArgumentsOf(const SettingsData& settings);

/// What a screen or a command hands to a report routine.
struct ReportArguments {
  std::string SubProject;
  std::string Year;
  std::string Month;
  std::string Day;
  std::int32_t UlbonFlag = 1;  ///< not 0: the Ulbon and spiral rows are wanted
  std::int32_t Percent = 0;    ///< the screen's uplift of the Ulbon weights
  DetailArguments Detail = {};
  std::int32_t FloorOrPart = 0;  ///< 階 or part of a form that tells of one alone
};

/// The same with its texts, as they were typed, trimmed: blanks alone are no sub-project text.
ReportArguments Trimmed(const ReportArguments& arguments);

/// The date boxes for a date where nothing was typed: the Western year, or, with era dates, the year of the
/// era with two digits; month and day with two digits.
struct DateTexts {
  std::string year;
  std::string month;
  std::string day;
};
DateTexts DefaultDateTexts(const DateTime& date);

/// What a head tells of the site.
struct ReportSite {
  std::string client;            ///< empty: no client line
  std::string short_name;        ///< 工事名
  std::string long_name;         ///< 長い工事名, empty: the short name is printed
  std::int32_t koji_break = 50;  ///< characters of the long name on its first line; 50: it has one line
  bool western_dates = true;     ///< 日付表記 is 1
};
/// The bound site, from `SiteContext`, its open master database and `Settings`.
ReportSite ReadReportSite();

}  // namespace rbt
