// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>

#include <QWidget>

#include "session/panels/date_entry.h"

class QLineEdit;

namespace Ui {
class DateBoxes;
}

namespace rbt {

/// The three boxes of the report date. Digits only; Enter and the arrow keys move between them, Enter in the
/// last one moves on. A year that does not pass keeps the focus.
class DateBoxes : public QWidget {
 public:
  explicit DateBoxes(QWidget* parent = nullptr);
  ~DateBoxes() override;

  /// What is typed goes to this date, which outlives the boxes.
  void Bind(DateEntry& date);
  void Show(const DateTexts& texts, bool enabled);
  void FocusYear();
  /// For the order of Tab.
  QLineEdit* LastBox() const { return boxes_.back(); }

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool CheckYear();
  bool Move(std::size_t from, int step);
  bool AnswerKey(std::size_t box, int key);

  std::unique_ptr<Ui::DateBoxes> ui_;
  std::array<QLineEdit*, DateEntry::kBoxes> boxes_;
  DateEntry* date_ = nullptr;
};

}  // namespace rbt
