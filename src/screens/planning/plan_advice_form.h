// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QWidget>

#include "session/planning/plan_advice.h"

namespace Ui {
class PlanAdviceForm;
}

namespace rbt {

/// The window of the advice which lengths to buy: a table, and the curve of the row's steel. The search runs
/// while it is open. It is hidden when it is left; `Taken` tells what was taken.
class PlanAdviceForm : public QWidget {
 public:
  /// Reads the site, and begins the search. Throws what keeps it from that.
  explicit PlanAdviceForm(PlanChoices choices);
  ~PlanAdviceForm() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  const std::optional<PlanChoices>& Taken() const { return presenter_.Taken(); }
  /// False once all that was found is shown.
  bool Searching() const { return presenter_.View().searching; }

 private:
  void LayOutGrid();
  void BindActions();
  /// Takes the set of the current row.
  void Take();
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(PlanAdvicePresenter&)>& intent);
  void Show();
  void ShowCurve();

  std::unique_ptr<Ui::PlanAdviceForm> ui_;
  PlanAdvicePresenter presenter_;  ///< goes first: its thread calls this window
};

}  // namespace rbt
