// SPDX-License-Identifier: MIT
#include "platform/system/clock.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr int kSecondsPerDay = 86400;
// The range of dates that a DATETIME holds: years 100 to 9999.
constexpr double kFirstDay = -657434.0;
constexpr double kBehindLastDay = 2958466.0;

std::optional<DateTime>& FixedClock() {
  static std::optional<DateTime> fixed;
  return fixed;
}

bool ReadNumber(std::string_view text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size();
}

std::chrono::year_month_day DateOf(const DateTime& at) {
  return {std::chrono::year{at.year}, std::chrono::month{static_cast<unsigned>(at.month)},
          std::chrono::day{static_cast<unsigned>(at.day)}};
}

bool IsValid(const DateTime& at) {
  return DateOf(at).ok() && at.hour <= 23 && at.minute <= 59 && at.second <= 59;
}

/// Reads "2026-11-21T09:00:00".
DateTime ParseClock(std::string_view text) {
  constexpr std::string_view kShape = "dddd-dd-ddTdd:dd:dd";
  bool shaped = text.size() == kShape.size();
  for (std::size_t i = 0; shaped && i < kShape.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    shaped = kShape[i] == 'd' ? digit : text[i] == kShape[i];
  }
  DateTime at;
  if (shaped) {
    shaped = ReadNumber(text.substr(0, 4), at.year) && ReadNumber(text.substr(5, 2), at.month) &&
             ReadNumber(text.substr(8, 2), at.day) && ReadNumber(text.substr(11, 2), at.hour) &&
             ReadNumber(text.substr(14, 2), at.minute) && ReadNumber(text.substr(17, 2), at.second);
  }
  if (!shaped || !IsValid(at)) {
    throw Fault(FaultKind::type_mismatch,
                "RBK_CLOCK is \"" + std::string(text) + "\", not a time like 2026-11-21T09:00:00");
  }
  return at;
}

std::chrono::sys_days EpochOfDayNumbers() {
  return std::chrono::sys_days{std::chrono::year{1899} / std::chrono::December / std::chrono::day{30}};
}

}  // namespace

DateTime Now() {
  if (FixedClock()) return *FixedClock();
  if (const char* fixed = std::getenv("RBK_CLOCK"); fixed != nullptr && *fixed != '\0')
    return ParseClock(fixed);
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1,          local.tm_mday, local.tm_hour,
          local.tm_min,         std::min(local.tm_sec, 59)};  // a leap second is the 59th once more
}

void SetClock(std::optional<DateTime> fixed) { FixedClock() = fixed; }

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
