// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include "desktop/grid_control.h"

namespace rbt {

/// A grid that is open at times: its cells take digits and commas then, and no key types anything else or
/// searches for it.
class NumberGrid : public GridControl {
 public:
  explicit NumberGrid(QWidget* parent = nullptr);

 protected:
  bool IsOpen() const { return open_; }
  /// What is being typed when it closes is not taken.
  void SetOpen(bool open);
  bool IsEditable(const QModelIndex& cell) const;

  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Editing;
  /// True for a key that would type something else into the current cell, or search for it.
  bool TypesNoNumber(const QKeyEvent& event) const;

  bool open_ = false;
  QPointer<QWidget> editor_;  ///< of the cell that is being edited
};

}  // namespace rbt
