// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

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

  /// Other words than the usual ones.
  void Tell(std::string_view words);

 private:
  std::unique_ptr<Ui::BusyNotice> ui_;
};

}  // namespace rbt
