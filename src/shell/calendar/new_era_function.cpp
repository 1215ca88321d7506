// SPDX-License-Identifier: MIT
#include "shell/calendar/new_era_function.h"

#include <array>
#include <optional>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/numbers/number_mask.h"
#include "platform/pass_over_faults.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr DateTime kFirstDayOfReiwa{2019, 5, 1, 0, 0, 0};
constexpr double kDayNumberOfReiwa = 43586.0;
constexpr int kYearBeforeReiwa = 2018;
/// What a platform makes of 1 May 2019 with "gemmdd" when it has not heard of the new era.
constexpr std::string_view kOldPlatformsAnswer = "H310501";
constexpr std::string_view kJapaneseLocale = "[$-411]";
constexpr std::string_view kFirstYearWord = "元年";

struct Replacement {
  std::string_view from;
  std::string_view to;
};

constexpr Replacement kEraYearLetters[] = {
    {"rr", "gggee"}, {"rR", "gggee"}, {"Rr", "gggee"}, {"RR", "gggee"}, {"r", "ee"}, {"R", "ee"},
};

/// The era's words, taken out of a format before an old platform reads it. Names of the era go in at once;
/// what would be read as a word of the format, or depends on the date, waits behind a letter that no format
/// has.
constexpr Replacement kEraWordsToMarks[] = {
    {"ggg", "令和"}, {"Ggg", "令和"}, {"gGg", "令和"}, {"ggG", "令和"}, {"GGg", "令和"}, {"GgG", "令和"},
    {"gGG", "令和"}, {"GGG", "令和"}, {"gg", "令"},    {"gG", "令"},    {"Gg", "令"},    {"GG", "令"},
    {"g", "α"},      {"G", "α"},      {"ee", "β"},     {"eE", "β"},     {"Ee", "β"},     {"EE", "β"},
    {"e", "γ"},      {"E", "γ"},      {".", "Ω"},
};

template <typename Replacements>
std::string Rewrite(std::string text, const Replacements& replacements) {
  for (const auto& [from, to] : replacements) text = ReplaceAll(text, from, to);
  return text;
}

/// Asked on each call, so that an update of the platform is noticed while the program runs.
bool PlatformKnows(const DateTime& date, KnownEras eras) {
  return PlatformFormat(kFirstDayOfReiwa, "gemmdd", eras) != kOldPlatformsAnswer ||
         DayNumber(date) < kDayNumberOfReiwa;
}

/// Nothing for a date that the platform refuses: such an error is passed over.
std::optional<std::string> FormattedUnlessRefused(const DateTime& date, std::string_view format,
                                                  KnownEras eras) {
  std::optional<std::string> formatted;
  PassOverFaults(FaultKind::type_mismatch, [&] { formatted = PlatformFormat(date, format, eras); });
  return formatted;
}

std::string FormatOnOldPlatform(const DateTime& date, std::string_view format, KnownEras eras) {
  const std::string bare = ReplaceAll(format, kJapaneseLocale, "");
  if (bare.empty()) return "";
  const std::int64_t era_year = date.year - kYearBeforeReiwa;
  const std::string two_digits = FormatNumber(era_year, "00");
  const std::string plain = FormatNumber(era_year, "0");
  const Replacement marks[] = {{"α", "R"}, {"β", two_digits}, {"γ", plain}, {"Ω", "."}};
  return Rewrite(PlatformFormat(date, Rewrite(bare, kEraWordsToMarks), eras), marks);
}

/// `text` with each form of the era's name before `from` followed by `to` instead.
std::string ReplaceBehindNames(std::string text, const Era& era, std::string_view from, std::string_view to) {
  for (const std::string_view name : {era.name, era.short_name, era.letter}) {
    text = ReplaceAll(text, fmt::format("{}{}", name, from), fmt::format("{}{}", name, to));
  }
  return text;
}

std::string WriteFirstYear(std::string text, const DateTime& date, FirstYearStyle style) {
  for (const Era& era : kEras) {
    if (date.year != era.FirstYear()) continue;
    if (style == FirstYearStyle::number) return ReplaceBehindNames(text, era, kFirstYearWord, "1年");
    if (DayStamp(date) < era.first_day) continue;
    text = ReplaceBehindNames(text, era, "01年", kFirstYearWord);
    return ReplaceBehindNames(text, era, "1年", kFirstYearWord);
  }
  return text;
}

}  // namespace

std::string FormatDate(const DateTime& date, std::string_view format, FirstYearStyle first_year,
                       KnownEras eras) {
  const std::string rewritten = Rewrite(std::string(format), kEraYearLetters);
  std::string text;
  if (PlatformKnows(date, eras)) {
    const std::optional<std::string> formatted = FormattedUnlessRefused(date, rewritten, eras);
    if (!formatted) return fmt::format("{}/{}/{}", date.year, date.month, date.day);
    text = *formatted;
  } else {
    text = FormatOnOldPlatform(date, rewritten, eras);
  }
  return WriteFirstYear(text, date, first_year);
}

std::string EraNameOfYear(std::string_view yymmdd) {
  const std::string digits = ReplaceAll(yymmdd, " ", "0");
  const std::string_view year = Left(digits, 2);
  const bool heisei = year == "30" || (year == "31" && Mid(digits, 3, 4) < "0501");
  return heisei ? "平成" : "令和";
}

std::string TodayStamp(const DateTime& now) { return FormatDate(now, "yyyymmdd"); }

std::string TimeStamp(const DateTime& now) { return FormatDate(now, "hhnnss"); }

std::string FormatSaveDate(const DateTime& now) { return TodayStamp(now).insert(6, "/").insert(4, "/"); }

std::string FormatSaveTime(const DateTime& now) { return TimeStamp(now).insert(4, ":").insert(2, ":"); }

}  // namespace rbt
