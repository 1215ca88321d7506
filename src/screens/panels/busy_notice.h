// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QFrame>

namespace Ui {
class BusyNotice;
}

namespace rbt {

/// The words that ask to wait while a tally runs.
class BusyNotice : public QFrame {
 public:
  explicit BusyNotice(QWidget* parent = nullptr);
  ~BusyNotice() override;

 private:
  std::unique_ptr<Ui::BusyNotice> ui_;
};

}  // namespace rbt
