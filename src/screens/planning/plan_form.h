// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "session/planning/plan_presenter.h"

namespace Ui {
class PlanForm;
}

namespace rbt {

/// The window of the cutting plan: shows what its presenter gives and passes on what the user does. The
/// search runs while it is open.
class PlanForm : public QWidget {
 public:
  /// Shows the plan, and begins the search.
  PlanForm(PlanParts parts, SitePlan plan);
  ~PlanForm() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  /// As Enter on the current cell: shows its patterns.
  void OpenCell();

 private:
  struct Action;
  static std::vector<Action> Actions();

  void ConnectActions();
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(PlanPresenter&)>& intent);
  void Show();

  std::unique_ptr<Ui::PlanForm> ui_;
  PlanPresenter presenter_;  ///< goes first: its thread calls this window
};

}  // namespace rbt
