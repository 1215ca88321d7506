// SPDX-License-Identifier: MIT
#include "showroom/planning_forms.h"

#include <utility>

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QThread>

#include "desktop/grid_control.h"
#include "screens/planning/plan_advice_form.h"
#include "screens/planning/plan_form.h"
#include "screens/planning/plan_forms.h"
#include "screens/planning/plan_options_form.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"

namespace rbt {

namespace {

template <std::unique_ptr<QWidget> (*make)()>
std::unique_ptr<QWidget> MakeOnSite() {
  MakeResultForm(kBulkScreen);  // binds the site
  return make();
}

/// The patterns of the first cell that holds bars.
void OpenPatterns(QWidget& form) {
  auto& grid = *form.findChild<GridControl*>("dbgPlan");
  const QAbstractItemModel& cells = *grid.model();
  for (int column = 1; column < cells.columnCount() - 3; ++column) {
    const QModelIndex cell = cells.index(0, column);
    if (cell.data().toString().isEmpty()) continue;
    grid.setCurrentIndex(cell);
    return static_cast<PlanForm&>(form).OpenCell();
  }
}

void FillIn(QWidget& form) {
  const std::pair<const char*, const char*> texts[] = {
      {"txtKerf", "3"}, {"txtTrim", "10"}, {"txtLengths", "6000,9000,12000"}, {"txtScope", "-1..2/3..5"}};
  for (const auto& [box, text] : texts) {
    auto& line = *form.findChild<QLineEdit*>(box);
    line.setText(text);
    emit line.textEdited(text);
  }
  form.findChild<QCheckBox*>("chkKeepWelded")->click();
}

/// Until the curves stand, whose search ends as an event.
void AwaitCurves(QWidget& form) {
  constexpr qint64 kPatience = 60'000;
  QElapsedTimer waited;
  waited.start();
  while (static_cast<const PlanAdviceForm&>(form).Searching() && waited.elapsed() < kPatience) {
    QApplication::processEvents();
    QThread::msleep(1);
  }
}

}  // namespace

std::vector<FormEntry> PlanningForms() {
  return {{.name = "PlanForm",
           .make = MakeOnSite<MakePlanForm>,
           .first_focus = "dbgPlan",
           .keys = PlanForm::Keys(),
           .states = {{"plan", [](QWidget&) {}}, {"patterns", OpenPatterns}}},
          {.name = "PlanOptionsForm",
           .make = MakeOnSite<MakePlanOptionsForm>,
           .first_focus = "txtKerf",
           .keys = PlanOptionsForm::Keys(),
           .states = {{"options", [](QWidget&) {}}, {"filled-in", FillIn}}},
          {.name = "PlanAdviceForm",
           .make = MakeOnSite<MakePlanAdviceForm>,
           .first_focus = "dbgAdvice",
           .keys = PlanAdviceForm::Keys(),
           .states = {{"curves", AwaitCurves}, {"searching", [](QWidget&) {}}}}};
}

}  // namespace rbt
