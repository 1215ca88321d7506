// SPDX-License-Identifier: MIT
#include "shell/live/free_place.h"

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt {

namespace {

/// A name is at most so many characters long.
constexpr std::size_t kLongestName = 60;
constexpr std::string_view kKept = "(控え)";

/// Outer blanks and the case of ASCII letters make no other name.
std::string Folded(std::string_view name) {
  std::string folded(Trim(name));
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

/// The second behind "hhnnss"; midnight behind the last one, and behind what is no time.
std::string SecondBehind(std::string_view time) {
  constexpr int kDay = 24 * 60 * 60;
  int number = 0;
  const auto [end, error] = std::from_chars(time.data(), time.data() + time.size(), number);
  if (error != std::errc() || end != time.data() + time.size()) return "000000";
  const int seconds = (number / 10000 * 3600 + number / 100 % 100 * 60 + number % 100 + 1) % kDay;
  return fmt::format("{:02}{:02}{:02}", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

}  // namespace

FreePlace::FreePlace(std::size_t name_size)
    : name_size_(name_size == 0 ? kLongestName : std::min(name_size, kLongestName)) {}

void FreePlace::NoteMoment(const std::string& date, const std::string& time) { moments_.emplace(date, time); }

void FreePlace::NoteName(std::string_view name, std::string_view kind) { names_.emplace(kind, Folded(name)); }

bool FreePlace::IsNameTaken(std::string_view name, std::string_view kind) const {
  return names_.contains({std::string(kind), Folded(name)});
}

std::string FreePlace::KeptName(std::string_view name, std::string_view kind) const {
  for (int number = 1;; ++number) {
    const std::string behind = number == 1 ? std::string(kKept) : fmt::format("{}{}", kKept, number);
    const std::size_t room = name_size_ - std::min(name_size_, CharacterCount(behind));
    std::string kept = fmt::format("{}{}", Left(Trim(name), room), behind);
    if (!IsNameTaken(kept, kind)) return kept;
  }
}

TallyPlace FreePlace::Take(TallyPlace wanted, std::string_view kind) {
  const bool is_moment_taken = moments_.contains({wanted.date, wanted.time});
  if (is_moment_taken || IsNameTaken(wanted.name, kind)) wanted.name = KeptName(wanted.name, kind);
  while (moments_.contains({wanted.date, wanted.time})) wanted.time = SecondBehind(wanted.time);
  NoteMoment(wanted.date, wanted.time);
  NoteName(wanted.name, kind);
  return wanted;
}

}  // namespace rbt
