// SPDX-License-Identifier: MIT
#include "platform/text/date_format.h"

#include <algorithm>
#include <chrono>
#include <span>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr std::string_view kJapaneseLocale = "[$-411]";

/// What the words of a format draw on.
struct Parts {
  DateTime at;
  const Era* era = nullptr;  ///< null before the first era
  bool after_hour = false;   ///< the word before was an hour, so that "m" is the minute

  int EraYear() const { return era == nullptr ? at.year : at.year - era->FirstYear() + 1; }
};

std::string Plain(int number) { return fmt::format("{}", number); }
std::string TwoDigits(int number) { return fmt::format("{:02}", number); }

struct Word {
  std::string_view letters;
  std::string (*text)(const Parts&);
};

/// The longer words of a letter stand before its shorter ones.
constexpr Word kWords[] = {
    {"yyyy", [](const Parts& p) { return fmt::format("{:04}", p.at.year); }},
    {"yy", [](const Parts& p) { return TwoDigits(p.at.year % 100); }},
    {"mm", [](const Parts& p) { return TwoDigits(p.after_hour ? p.at.minute : p.at.month); }},
    {"m", [](const Parts& p) { return Plain(p.after_hour ? p.at.minute : p.at.month); }},
    {"dd", [](const Parts& p) { return TwoDigits(p.at.day); }},
    {"d", [](const Parts& p) { return Plain(p.at.day); }},
    {"hh", [](const Parts& p) { return TwoDigits(p.at.hour); }},
    {"h", [](const Parts& p) { return Plain(p.at.hour); }},
    {"nn", [](const Parts& p) { return TwoDigits(p.at.minute); }},
    {"n", [](const Parts& p) { return Plain(p.at.minute); }},
    {"ss", [](const Parts& p) { return TwoDigits(p.at.second); }},
    {"s", [](const Parts& p) { return Plain(p.at.second); }},
    {"ggg", [](const Parts& p) { return std::string(p.era == nullptr ? "" : p.era->name); }},
    {"gg", [](const Parts& p) { return std::string(p.era == nullptr ? "" : p.era->short_name); }},
    {"g", [](const Parts& p) { return std::string(p.era == nullptr ? "" : p.era->letter); }},
    {"ee", [](const Parts& p) { return TwoDigits(p.EraYear()); }},
    {"e", [](const Parts& p) { return Plain(p.EraYear()); }},
};

const Word* WordAt(std::string_view format) {
  const auto* word = std::find_if(std::begin(kWords), std::end(kWords), [&](const Word& candidate) {
    return EqualIgnoringCase(format.substr(0, candidate.letters.size()), candidate.letters);
  });
  return word == std::end(kWords) ? nullptr : word;
}

/// Takes the literal piece at the start of a format and returns what it shows.
std::string_view TakeLiteral(std::string_view& format) {
  const auto take = [&format](std::size_t skip, std::size_t shown, std::size_t behind) {
    const std::string_view text = format.substr(skip, shown);
    format.remove_prefix(std::min(skip + text.size() + behind, format.size()));
    return text;
  };
  if (format.starts_with(kJapaneseLocale)) return take(kJapaneseLocale.size(), 0, 0);
  if (format.front() == '\\' && format.size() > 1) return take(1, 1, 0);
  if (format.front() == '"') return take(1, format.substr(1).find('"'), 1);
  return take(0, 1, 0);
}

const Era* EraOf(const DateTime& at, KnownEras eras) {
  const std::span<const Era> known(kEras.data(), kEras.size() - (eras == KnownEras::all ? 0 : 1));
  const auto later = std::upper_bound(known.begin(), known.end(), DayStamp(at),
                                      [](int day, const Era& era) { return day < era.first_day; });
  return later == known.begin() ? nullptr : &*std::prev(later);
}

void CheckExists(const DateTime& at) {
  const std::chrono::year_month_day date{std::chrono::year{at.year},
                                         std::chrono::month{static_cast<unsigned>(at.month)},
                                         std::chrono::day{static_cast<unsigned>(at.day)}};
  const bool in_day =
      at.hour >= 0 && at.hour < 24 && at.minute >= 0 && at.minute < 60 && at.second >= 0 && at.second < 60;
  if (date.ok() && at.year >= 100 && at.year <= 9999 && in_day) return;
  throw Fault(FaultKind::type_mismatch, fmt::format("{}-{}-{} {}:{}:{} is no date", at.year, at.month, at.day,
                                                    at.hour, at.minute, at.second));
}

}  // namespace

int DayStamp(const DateTime& at) { return (at.year * 100 + at.month) * 100 + at.day; }

std::string PlatformFormat(const DateTime& at, std::string_view format, KnownEras eras) {
  CheckExists(at);
  Parts parts{.at = at, .era = EraOf(at, eras)};
  std::string text;
  while (!format.empty()) {
    const Word* word = WordAt(format);
    if (word == nullptr) {
      text += TakeLiteral(format);
      continue;
    }
    text += word->text(parts);
    parts.after_hour = word->letters.front() == 'h';
    format.remove_prefix(word->letters.size());
  }
  return text;
}

}  // namespace rbt
