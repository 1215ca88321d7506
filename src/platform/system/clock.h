// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

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

/// The one source of the current date and time; `RBK_CLOCK` ("2026-11-21T09:00:00") or a test may fix it.
DateTime Now();
/// Fixes `Now` until it is called again with nothing.
void SetClock(std::optional<DateTime> fixed);

/// Days since 1899-12-30, as the store's DATETIME counts them; the time of day is the fraction.
double DayNumber(const DateTime& at);
DateTime FromDayNumber(double days);

}  // namespace rbt
