// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <string>

#include <QObject>

class QLineEdit;

namespace rbt {

/// Text of a date as a report's head takes it.
struct DateTexts {
  std::string year;  ///< four digits, or two of the era with the era form
  std::string month;
  std::string day;
};

/// Today as the boxes show it: the year as "yyyy" when `date_style` (日付表記) is 1, else the era's year in
/// two digits.
DateTexts TodayForBoxes(int date_style);

/// True when a year may stand in the year box: an era has no year 32.
bool YearPasses(const std::string& year, int date_style);

/// The three boxes of the report date. Digits only; Enter and the arrow keys move between them, Enter in the
/// last one moves on.
class DateBoxes : public QObject {
 public:
  DateBoxes(QLineEdit& year, QLineEdit& month, QLineEdit& day, std::function<int()> date_style);

  /// Fills the empty boxes with today.
  void FillEmpty();
  /// Fills all boxes with today, whatever was typed.
  void FillToday();
  void SetEnabled(bool enabled);
  /// Empties the year when it was written in the other style, and fills it anew.
  void FollowStyle();
  DateTexts Texts() const;
  /// Puts the focus back to the year when it does not pass.
  bool CheckYear();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool Move(int from, int step);

  std::array<QLineEdit*, 3> boxes_;
  std::function<int()> date_style_;
  int filled_style_ = 0;
};

}  // namespace rbt
