// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/system/clock.h"
#include "platform/text/date_format.h"

namespace rbt {

/// How the first year of an era is written.
enum class FirstYearStyle {
  number = 0,  ///< "令和1年"
  word = 1,    ///< "令和元年"
};

/// The one date formatter. `format` holds the words of `PlatformFormat`, and two more: "r" is the year of the
/// era with two digits, "rr" is the era's name before it (letters in any case). The era of 1 May 2019 comes
/// out right on every platform; `eras` is what the platform knows, and this program's platform knows all. A
/// date that the platform refuses comes back as it stands, "2019/2/30".
std::string FormatDate(const DateTime& date, std::string_view format,
                       FirstYearStyle first_year = FirstYearStyle::number, KnownEras eras = KnownEras::all);

/// The era of a date given as six characters: two of the era's year, two of the month, two of the day; a
/// blank counts as "0". Only dates around the change of 2019 are told apart: year 30 and year 31 up to "0430"
/// are "平成", every other year is "令和".
std::string EraNameOfYear(std::string_view yymmdd);

/// The date as "yyyymmdd". Date and time that belong together are taken from one `now`: two readings of the
/// clock may stand on either side of midnight.
std::string TodayStamp(const DateTime& now = Now());
/// The time of day as "hhnnss".
std::string TimeStamp(const DateTime& now = Now());
/// Both as screens and names of saved tallies show them: "2026/11/21", "09:00:00".
std::string FormatSaveDate(const DateTime& now = Now());
std::string FormatSaveTime(const DateTime& now = Now());

}  // namespace rbt
