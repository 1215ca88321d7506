// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/system/clock.h"

namespace rbt {

/// What a screen or a command hands to a report routine.
struct ReportArguments {
  std::string SubProject;
  std::string Year;
  std::string Month;
  std::string Day;
  std::int32_t UlbonFlag = 1;  ///< not 0: the Ulbon and spiral rows are wanted
  std::int32_t Percent = 0;    ///< the screen's uplift of the Ulbon weights
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
