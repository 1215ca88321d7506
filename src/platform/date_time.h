// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Local date and time.
struct DateTime {
  int year = 1899;  ///< Western year
  int month = 12;   ///< 1 to 12
  int day = 30;     ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// Whether there is such a day and such a time of it.
bool IsValid(const DateTime& at);

/// Days since 1899-12-30, as the store's DATETIME counts them; the time of day is the fraction.
double DayNumber(const DateTime& at);
/// Throws `overflow` outside the years 100 to 9999, which are all that a DATETIME holds.
DateTime FromDayNumber(double days);
/// The same without that limit, for numbers that a damaged file may hold: their absolute value below 3
/// million.
DateTime DateOfDayNumber(double days);

}  // namespace rbt
