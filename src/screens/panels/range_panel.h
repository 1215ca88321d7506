// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include <QFrame>

#include "session/result/range_rules.h"
#include "store/database.h"

class QLineEdit;

namespace rbt {

/// The range of the schedule that a scoped tally asks for. Boxes take digits only; Enter moves on when the
/// box passes its test, Up moves back, Enter in the last box takes the range.
class RangePanel : public QFrame {
 public:
  using QFrame::QFrame;

  /// Puts the schedule's whole range into the boxes.
  virtual void FillFromSchedule(Database& site) = 0;
  /// True when the grid takes the panel's place once the tally has run; else the panel stays above it.
  virtual bool GivesWay() const = 0;
  /// Called when the range stands in the selection.
  void OnTaken(std::function<void()> handler);

  const std::vector<QLineEdit*>& Boxes() const { return boxes_; }
  /// Puts the focus on a box and selects it. False when the panel has none to fill in.
  bool FocusBox(std::size_t box);
  /// As Enter in the last box: all tests once more, since Tab and the mouse pass boxes by.
  /// Nothing when there is no range to take.
  void TakeRange();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  void SetBoxes(std::vector<QLineEdit*> boxes, int most_digits);
  void SetNumber(std::size_t box, std::int32_t number);
  std::int32_t Number(std::size_t box) const;

  virtual std::optional<RangeRefusal> Refusal(std::size_t box) const = 0;
  virtual void WriteSelection() const = 0;

 private:
  bool Passes(std::size_t box);
  void Enter(std::size_t box);

  std::vector<QLineEdit*> boxes_;
  std::function<void()> taken_;
};

}  // namespace rbt
