// SPDX-License-Identifier: MIT
#include "session/panels/date_entry.h"

#include <fmt/format.h>

#include "platform/date_time.h"
#include "platform/numbers/number_words.h"
#include "platform/system/clock.h"
#include "platform/text/date_format.h"
#include "shell/calendar/new_era_function.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::int32_t kEraStyle = 2;
constexpr std::int32_t kFirstYearRefused = 32;

constexpr std::int32_t kMonths = 12;
constexpr std::int32_t kLongestMonth = 31;
constexpr std::int32_t kLeapYear = 2000;
constexpr std::int32_t kFirstFullYear = 100;

std::int32_t NumberIn(const std::string& text) {
  // The boxes hold four digits at most.
  return static_cast<std::int32_t>(LeadingNumber(text));
}

/// The Western year of a date; a leap year where the boxes do not tell one.
std::int32_t WesternYear(const DateTexts& date, std::int32_t date_style) {
  const std::int32_t year = NumberIn(date.year);
  if (date_style != kEraStyle) return year < kFirstFullYear ? kLeapYear : year;
  if (year == 0) return kLeapYear;
  const std::string name =
      EraNameOfYear(fmt::format("{:02}{:02}{:02}", year, NumberIn(date.month), NumberIn(date.day)));
  for (const Era& era : kEras) {
    if (era.name == name) return era.FirstYear() - 1 + year;
  }
  return kLeapYear;
}

std::int32_t DaysOfMonth(std::int32_t year, std::int32_t month) {
  std::int32_t days = kLongestMonth;
  while (!IsValid({year, month, days})) --days;
  return days;
}

std::int32_t DateStyle() { return ReadSetting(kDateStyleKey); }

}  // namespace

bool YearPasses(const std::string& year, std::int32_t date_style) {
  return date_style != kEraStyle || LeadingNumber(year) < kFirstYearRefused;
}

std::optional<DateRefusal> RefusalOfDate(const DateTexts& date, std::int32_t date_style, std::size_t boxes) {
  constexpr std::size_t kYear = 0;
  constexpr std::size_t kMonth = 1;
  constexpr std::size_t kDay = 2;
  if (boxes > kYear && !YearPasses(date.year, date_style)) {
    return DateRefusal{kYear, fmt::format("和暦の年は {} までです。", kFirstYearRefused - 1)};
  }
  const std::int32_t month = NumberIn(date.month);
  if (boxes > kMonth && month > kMonths) {
    return DateRefusal{kMonth, fmt::format("月は {} までです。", kMonths)};
  }
  if (boxes <= kDay) return std::nullopt;
  const bool told = month >= 1 && month <= kMonths;
  const std::int32_t days = told ? DaysOfMonth(WesternYear(date, date_style), month) : kLongestMonth;
  if (NumberIn(date.day) <= days) return std::nullopt;
  return DateRefusal{kDay, told ? fmt::format("{} 月は {} 日までです。", month, days)
                                : fmt::format("日は {} までです。", days)};
}

void DateEntry::FillEmpty() {
  filled_style_ = DateStyle();
  const DateTexts today = DefaultDateTexts(Now());
  const std::array<const std::string*, kBoxes> texts{&today.year, &today.month, &today.day};
  for (std::size_t box = 0; box < kBoxes; ++box) {
    if (texts_[box].empty()) texts_[box] = *texts[box];
  }
}

void DateEntry::FillToday() {
  for (std::string& text : texts_) text.clear();
  FillEmpty();
}

void DateEntry::FollowStyle() {
  if (DateStyle() != filled_style_) texts_[0].clear();
  FillEmpty();
}

std::optional<DateRefusal> DateEntry::Refusal(std::size_t boxes) const {
  return RefusalOfDate(Texts(), DateStyle(), boxes);
}

bool DateEntry::YearPasses() const { return rbt::YearPasses(texts_[0], DateStyle()); }

}  // namespace rbt
