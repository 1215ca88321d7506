// SPDX-License-Identifier: MIT
#include "screens/planning/plan_forms.h"

#include "desktop/form.h"
#include "desktop/preview_form.h"
#include "screens/planning/plan_form.h"

namespace rbt {

std::unique_ptr<QWidget> MakePlanForm() {
  PlanParts parts;
  parts.request.options.bar.plus = DefaultPlus();
  parts.print = [](PlanSheet sheet, const planning::Outcome& outcome) {
    return ShowPlanSheet(sheet, outcome, ShowPreview);
  };
  return std::make_unique<PlanForm>(std::move(parts));
}

void OpenPlan() { ShowInPlace(*MakePlanForm()); }

}  // namespace rbt
