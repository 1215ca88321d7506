// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include <QObject>

#include "reports/frame/report_site.h"

class QLineEdit;

namespace rbt {

/// True when a year may stand in the year box: an era, which `date_style` (日付表記) 2 counts by, has no year
/// 32.
bool YearPasses(const std::string& year, int date_style);

/// The three boxes of the report date, in the style of the setting 日付表記. Digits only; Enter and the arrow
/// keys move between them, Enter in the last one moves on.
class DateBoxes : public QObject {
 public:
  DateBoxes(QLineEdit& year, QLineEdit& month, QLineEdit& day);

  /// Fills the empty boxes with today.
  void FillEmpty();
  /// Fills all boxes with today, whatever was typed.
  void FillToday();
  void SetEnabled(bool enabled);
  /// Empties the year when it was written in the other style, and fills it anew.
  void FollowStyle();
  /// As they stand.
  DateTexts Texts() const;
  /// Puts the focus back to the year when it does not pass.
  bool CheckYear();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool Move(int from, int step);

  std::array<QLineEdit*, 3> boxes_;
  int filled_style_ = 0;
};

}  // namespace rbt
