// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QFrame>

#include "session/panels/views.h"

class QWidget;

namespace Ui {
class FilterPanel;
}

namespace rbt {

/// What a screen tells of its selection: kinds, forms, the modes of hoops and plates, the uplift of the Ulbon
/// rows, and its warnings. Its buttons are wired by the form's table.
class FilterPanel : public QFrame {
 public:
  explicit FilterPanel(QWidget* parent = nullptr);
  ~FilterPanel() override;

  /// Called with every text that stands in the box of the uplift, and at Enter there.
  void OnUplift(std::function<void(std::string text)> typed, std::function<void()> taken);
  void Show(const FilterView& view);
  void FocusUplift();
  /// For the order of Tab.
  QWidget* LastControl() const;

 private:
  void HoldStill();

  std::unique_ptr<Ui::FilterPanel> ui_;
};

}  // namespace rbt
