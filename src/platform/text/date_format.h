// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/date_time.h"

namespace rbt {

/// One era of the Japanese calendar. Its first year runs from `first_day` to the end of that Western year.
struct Era {
  std::string_view name;        ///< "令和"
  std::string_view short_name;  ///< "令"
  std::string_view letter;      ///< "R"
  int first_day;                ///< 20190501: year, month and day of the first day

  constexpr int FirstYear() const { return first_day / 10000; }
};

/// The eras from 明治 on, oldest first.
inline constexpr std::array<Era, 5> kEras{{
    {"明治", "明", "M", 18681023},
    {"大正", "大", "T", 19120730},
    {"昭和", "昭", "S", 19261225},
    {"平成", "平", "H", 19890108},
    {"令和", "令", "R", 20190501},
}};

/// Which eras a platform's date formatting has heard of. One from before 2019 goes on counting 平成.
enum class KnownEras { up_to_heisei, all };

/// The date as the number yyyymmdd.
int DayStamp(const DateTime& at);

/// The platform's own date formatting, in its Japanese form. Words, in any letter case:
///   yyyy yy   Western year, four digits or the last two
///   m mm      month; minute when the word before it was an hour
///   d dd      day
///   h hh      hour, 0 to 23
///   n nn      minute
///   s ss      second
///   g gg ggg  era: letter, short name, name; nothing before 明治
///   e ee      year of the era, "ee" with two digits at least; the Western year before 明治
/// "[$-411]" (the Japanese locale) shows nothing, `\x` shows x, "..." in double quotes shows what it holds,
/// and everything else, "/", ":" and "." too, shows itself. A run of letters that is longer than its longest
/// word is read word by word from the left. Throws `type mismatch` for a date or time that does not exist
/// (years 100 to 9999).
std::string PlatformFormat(const DateTime& at, std::string_view format, KnownEras eras = KnownEras::all);

}  // namespace rbt
