// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>

#include <QFrame>

namespace Ui {
class WorkPanel;
}

namespace rbt {

/// Tells that work goes on and for how long it has, and offers to stop it.
class WorkPanel : public QFrame {
 public:
  /// In a window, or as one of its own where `window` is null. What is stopped is an action, or the program.
  WorkPanel(QWidget* window, bool ends_program);
  ~WorkPanel() override;

  /// `page` as `WorkNews` has it.
  void Tell(bool offers_stop, std::int64_t page, std::chrono::milliseconds worked);
  /// In the middle of its window and over everything there.
  void Rise();
  bool OffersStop() const;

  /// As the button does.
  void AskStop() { stop_asked_ = stop_asked_ || OffersStop(); }
  /// True once after the user has asked for it.
  bool TakeStop() { return std::exchange(stop_asked_, false); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::unique_ptr<Ui::WorkPanel> ui_;
  std::chrono::milliseconds worked_{0};
  bool stop_asked_ = false;
};

}  // namespace rbt
