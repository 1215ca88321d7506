// SPDX-License-Identifier: MIT
#include "platform/date_time.h"

#include <chrono>
#include <cmath>
#include <string>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr int kSecondsPerDay = 86400;
// The range of dates that a DATETIME holds: years 100 to 9999.
constexpr double kFirstDay = -657434.0;
constexpr double kBehindLastDay = 2958466.0;

std::chrono::year_month_day DateOf(const DateTime& at) {
  return {std::chrono::year{at.year}, std::chrono::month{static_cast<unsigned>(at.month)},
          std::chrono::day{static_cast<unsigned>(at.day)}};
}

std::chrono::sys_days EpochOfDayNumbers() {
  return std::chrono::sys_days{std::chrono::year{1899} / std::chrono::December / std::chrono::day{30}};
}

}  // namespace

bool IsValid(const DateTime& at) {
  return DateOf(at).ok() && at.hour <= 23 && at.minute <= 59 && at.second <= 59;
}

double DayNumber(const DateTime& at) {
  const std::chrono::sys_days date{DateOf(at)};
  const double days = static_cast<double>((date - EpochOfDayNumbers()).count());
  const double time = (at.hour * 3600 + at.minute * 60 + at.second) / static_cast<double>(kSecondsPerDay);
  // Before the epoch the whole part counts down while the time of day still counts up: -1.25 is six in the
  // morning of 1899-12-29.
  return days < 0 ? days - time : days + time;
}

DateTime FromDayNumber(double days) {
  if (!(days > kFirstDay - 1 && days < kBehindLastDay)) {
    throw Fault(FaultKind::overflow, "day number " + std::to_string(days));
  }
  return DateOfDayNumber(days);
}

DateTime DateOfDayNumber(double days) {
  const double whole = std::trunc(days);
  auto date = EpochOfDayNumbers() + std::chrono::days{static_cast<int>(whole)};
  long seconds = std::lround(std::fabs(days - whole) * kSecondsPerDay);
  if (seconds == kSecondsPerDay) {
    date += std::chrono::days{1};
    seconds = 0;
  }
  const std::chrono::year_month_day ymd{date};
  return {static_cast<int>(ymd.year()),
          static_cast<int>(static_cast<unsigned>(ymd.month())),
          static_cast<int>(static_cast<unsigned>(ymd.day())),
          static_cast<int>(seconds / 3600),
          static_cast<int>(seconds / 60 % 60),
          static_cast<int>(seconds % 60)};
}

}  // namespace rbt
