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

/// The same words in a window of their own, before the first form shows.
class StartNotice {
 public:
  StartNotice();

 private:
  BusyNotice notice_;
};

}  // namespace rbt
