// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <QPointer>
#include <QWidget>

namespace Ui {
class ResultForm;
}

namespace rbt {

/// While a tally runs: the filter buttons out of sight, the other buttons and the range out of reach, the
/// wait panel shown. Everything comes back as it stood, the focus too, whatever ends the tally.
class BusyNotice {
 public:
  /// `range` may be null.
  BusyNotice(Ui::ResultForm& ui, QWidget& form, QWidget* range);
  BusyNotice(const BusyNotice&) = delete;
  BusyNotice& operator=(const BusyNotice&) = delete;
  ~BusyNotice();

 private:
  Ui::ResultForm& ui_;
  QPointer<QWidget> focus_;
  std::vector<QWidget*> hidden_;    ///< those that were shown
  std::vector<QWidget*> disabled_;  ///< those that were enabled
};

}  // namespace rbt
