// SPDX-License-Identifier: MIT
#include "session/panels/date_entry.h"

#include "platform/numbers/number_words.h"
#include "platform/system/clock.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::int32_t kEraStyle = 2;
constexpr double kFirstYearRefused = 32.0;

std::int32_t DateStyle() { return ReadSetting(kDateStyleKey); }

}  // namespace

bool YearPasses(const std::string& year, std::int32_t date_style) {
  return date_style != kEraStyle || LeadingNumber(year) < kFirstYearRefused;
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

bool DateEntry::YearPasses() const { return rbt::YearPasses(texts_[0], DateStyle()); }

}  // namespace rbt
