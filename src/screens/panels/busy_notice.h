// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

#include <QFrame>
#include <QRect>

class QLayout;

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

  /// Takes the notice out of its form's layout, where it would move everything at each press.
  void Float(QLayout& layout);
  /// In the middle of a place of its form, or out of sight.
  void ShowOver(const QRect& place, bool shown);

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
