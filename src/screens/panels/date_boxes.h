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
/// last one moves on. What is no date is told and keeps the focus, or gets it back when the mouse took it.
class DateBoxes : public QWidget {
 public:
  explicit DateBoxes(QWidget* parent = nullptr);
  ~DateBoxes() override;

  /// What is typed goes to this date, which outlives the boxes.
  void Bind(DateEntry& date);
  void Show(const DateTexts& texts, bool enabled);
  void FocusBox(std::size_t box);
  void FocusYear() { FocusBox(0); }
  /// For the order of Tab.
  QLineEdit* LastBox() const { return boxes_.back(); }

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool Accepts(std::size_t boxes);
  void CheckAfterLeaving();
  /// Of the three; their number when the focus is elsewhere.
  std::size_t FocusedBox() const;
  bool Move(std::size_t from, int step);
  bool AnswerKey(std::size_t box, int key);

  std::unique_ptr<Ui::DateBoxes> ui_;
  std::array<QLineEdit*, DateEntry::kBoxes> boxes_;
  DateEntry* date_ = nullptr;
};

}  // namespace rbt
