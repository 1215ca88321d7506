// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "reports/frame/report_site.h"

namespace rbt {

/// True when a year may stand in the year box: an era, which `date_style` (日付表記) 2 counts by, has no year
/// 32.
bool YearPasses(const std::string& year, std::int32_t date_style);

/// Why a date is refused, and the box that is to be changed.
struct DateRefusal {
  std::size_t box = 0;
  std::string text;
};
/// What keeps the first `boxes` boxes (year, month, day) from being a date: an era year above 31, a month
/// above 12, a day that the month does not have. An empty box and a nought are let pass.
std::optional<DateRefusal> RefusalOfDate(const DateTexts& date, std::int32_t date_style, std::size_t boxes);

/// The date of a report as three texts: year, month, day, in the style of the setting 日付表記. The setting
/// is read each time: the settings form may have saved another style. Faults: `type mismatch` of the setting.
class DateEntry {
 public:
  static constexpr std::size_t kBoxes = 3;

  /// Takes what the user types into a box, 0 to 2.
  void Type(std::size_t box, std::string text) { texts_.at(box) = std::move(text); }

  /// Fills the empty boxes with today.
  void FillEmpty();
  /// Fills all boxes with today, whatever was typed.
  void FillToday();
  /// Empties the year when it was written in the other style, and fills it anew.
  void FollowStyle();

  bool YearPasses() const;
  /// What keeps the first boxes from being a date, in the style of the setting.
  std::optional<DateRefusal> Refusal(std::size_t boxes = kBoxes) const;
  /// As they stand.
  DateTexts Texts() const { return {texts_[0], texts_[1], texts_[2]}; }

 private:
  std::array<std::string, kBoxes> texts_;
  std::int32_t filled_style_ = 0;
};

}  // namespace rbt
