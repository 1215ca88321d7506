// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QFrame>

#include "session/panels/views.h"

class QLineEdit;

namespace rbt {

/// What a range panel passes on. A box is known by its place from the left.
struct RangeIntents {
  std::function<void(std::size_t box, std::string text)> type;
  std::function<void(std::size_t box)> enter;  ///< Enter in the box
  std::function<void()> leave = {};            ///< the focus has left the boxes for another control
};

/// The range of the schedule that a scoped tally asks for. Enter is passed on, Up moves back.
class RangePanel : public QFrame {
 public:
  using QFrame::QFrame;

  void Bind(RangeIntents intents);
  virtual void Show(const RangeView& view);

  const std::vector<QLineEdit*>& Boxes() const { return boxes_; }
  /// Puts the focus on a box and selects it.
  void FocusBox(std::size_t box);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  /// Boxes of digits.
  void SetBoxes(std::vector<QLineEdit*> boxes, int most_digits);
  /// Boxes that take what they take.
  void SetBoxes(std::vector<QLineEdit*> boxes);

 private:
  bool HoldsFocus() const;

  std::vector<QLineEdit*> boxes_;
  RangeIntents intents_;
};

}  // namespace rbt
