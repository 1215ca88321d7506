// SPDX-License-Identifier: MIT
#include "session/planning/site_plan.h"

#include <utility>

#include "planning/make_plan.h"
#include "planning/problem/refusal.h"
#include "platform/fault.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "session/panels/fault_words.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"

namespace rbt {
namespace {

void Tell(const std::string& text) { MsgBox(text, kPlanTitle, MessageButtons::ok_to_warning); }

SitePlan PlanRequested(const PlanChoices& choices, const PlanRequest& request) {
  planning::Problem problem = TalliedProblem(request);
  planning::Outcome outcome = planning::Describe(problem, planning::MakeFirstPlan(problem));
  return {choices, std::move(problem), std::move(outcome)};
}

/// Nothing, after a message, where the choices do not allow a plan: other choices may. What the tally throws
/// passes.
std::optional<SitePlan> TryPlan(const PlanChoices& choices) {
  bool reading_files = true;
  try {
    const PlanRequest request = RequestOf(choices);
    reading_files = false;
    return PlanRequested(choices, request);
  } catch (const planning::Refusal& refusal) {
    Tell(FaultWords(refusal));
  } catch (const Fault& fault) {
    if (!reading_files) throw;
    Tell(FaultWords(fault));
  }
  return std::nullopt;
}

/// A plan that stands does not go because its choices cannot be stored.
void Remember(const PlanChoices& choices) {
  const auto fault = PassOverFaults(FaultKind::file, [&] { RememberChoices(choices); });
  if (fault) Tell(FaultWords(*fault));
}

std::string UnreadableText(const std::vector<std::string>& places) {
  std::string text = "読めない計画の条件があります。選び直して下さい。\n";
  for (const std::string& place : places) text += "\n" + place;
  return text;
}

}  // namespace

planning::Problem TalliedProblem(const PlanRequest& request) {
  // The presence flags are those of this tally.
  const ClassifiedSchedule held(Selection.StartMode);
  CountTally(TallyKind::bulk);
  return SiteProblem(request);
}

std::optional<SitePlan> ChangeSitePlan(const AskChoices& ask, const PlanChoices& choices) {
  for (std::optional<PlanChoices> asked = ask(choices); asked; asked = ask(*asked)) {
    std::optional<SitePlan> plan = TryPlan(*asked);
    if (!plan) continue;
    Remember(*asked);
    return plan;
  }
  return std::nullopt;
}

std::optional<SitePlan> OpenSitePlan(const AskChoices& ask) {
  const RememberedPlan remembered = RememberedChoices();
  std::optional<SitePlan> plan;
  if (remembered.unreadable.empty()) {
    plan = TryPlan(remembered.choices);
  } else {
    Tell(UnreadableText(remembered.unreadable));
  }
  return plan ? std::move(plan) : ChangeSitePlan(ask, remembered.choices);
}

}  // namespace rbt
