// SPDX-License-Identifier: MIT
#include "screens/planning/plan_forms.h"

#include <utility>

#include "desktop/form.h"
#include "desktop/preview_form.h"
#include "screens/planning/plan_advice_form.h"
#include "screens/planning/plan_form.h"
#include "screens/planning/plan_options_form.h"

namespace rbt {

namespace {

/// Shows one of the two windows over the active one; gives what was taken there.
template <typename Form>
std::optional<PlanChoices> Ask(const PlanChoices& choices) {
  Form form(choices);
  ShowModally(form);
  return form.Taken();
}

PlanParts Parts() {
  PlanParts parts;
  parts.subject = PlanSubjectOfSite();
  parts.ask_choices = Ask<PlanOptionsForm>;
  parts.advise = Ask<PlanAdviceForm>;
  parts.print = [](PlanSheet sheet, const planning::Outcome& outcome) {
    return ShowPlanSheet(sheet, outcome, ShowPreview);
  };
  return parts;
}

}  // namespace

std::unique_ptr<QWidget> MakePlanForm() {
  std::optional<SitePlan> plan = OpenSitePlan(Ask<PlanOptionsForm>);
  if (!plan) return nullptr;
  return std::make_unique<PlanForm>(Parts(), std::move(*plan));
}

std::unique_ptr<QWidget> MakePlanOptionsForm() {
  return std::make_unique<PlanOptionsForm>(RememberedChoices().choices);
}

std::unique_ptr<QWidget> MakePlanAdviceForm() {
  return std::make_unique<PlanAdviceForm>(RememberedChoices().choices);
}

void OpenPlan() {
  if (const std::unique_ptr<QWidget> form = MakePlanForm()) ShowInPlace(*form);
}

}  // namespace rbt
