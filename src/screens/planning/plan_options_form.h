// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QWidget>

#include "session/planning/plan_options.h"

class QLineEdit;

namespace Ui {
class PlanOptionsForm;
}

namespace rbt {

/// The window of the options of a plan. It is hidden when it is left; `Taken` tells what was taken.
class PlanOptionsForm : public QWidget {
 public:
  explicit PlanOptionsForm(PlanChoices choices);
  ~PlanOptionsForm() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  const std::optional<PlanChoices>& Taken() const { return presenter_.Taken(); }

 private:
  struct Action;
  static std::vector<Action> Actions();

  void BindBoxes();
  void BindActions();
  /// Asks for a CSV file and writes its path into a box.
  void Browse(QLineEdit& box);
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(PlanOptionsPresenter&)>& intent);
  void Show();

  std::unique_ptr<Ui::PlanOptionsForm> ui_;
  PlanOptionsPresenter presenter_;
};

}  // namespace rbt
