// SPDX-License-Identifier: MIT
#include "showroom/planning_forms.h"

#include "desktop/grid_control.h"
#include "screens/planning/plan_form.h"
#include "screens/planning/plan_forms.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"

namespace rbt {

namespace {

std::unique_ptr<QWidget> Make() {
  MakeResultForm(kBulkScreen);  // binds the site
  return MakePlanForm();
}

/// The patterns of the first cell that holds bars.
void OpenPatterns(QWidget& form) {
  auto& grid = *form.findChild<GridControl*>("dbgPlan");
  const QAbstractItemModel& cells = *grid.model();
  for (int column = 1; column < cells.columnCount() - 2; ++column) {
    const QModelIndex cell = cells.index(0, column);
    if (cell.data().toString().isEmpty()) continue;
    grid.setCurrentIndex(cell);
    return static_cast<PlanForm&>(form).OpenCell();
  }
}

}  // namespace

std::vector<FormEntry> PlanningForms() {
  return {{.name = "PlanForm",
           .make = Make,
           .first_focus = "dbgPlan",
           .keys = PlanForm::Keys(),
           .states = {{"plan", [](QWidget&) {}}, {"patterns", OpenPatterns}}}};
}

}  // namespace rbt
