// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "planning/outcome/outcome.h"
#include "planning/problem/problem.h"
#include "session/planning/plan_choices.h"

namespace rbt {

/// What the plan's screen and its messages are called.
inline constexpr std::string_view kPlanTitle = "切断・購買計画";

/// A plan of the bound site to begin with: the one that a search would begin with.
struct SitePlan {
  PlanChoices choices;
  planning::Problem problem;
  planning::Outcome outcome;
};

/// The problem of the bound site as the bulk tally reads it, under the selection. Throws what the tally
/// throws; refusals: see `SiteProblem`.
planning::Problem TalliedProblem(const PlanRequest& request);

/// Lets the user change choices; nothing when they are left as they are.
using AskChoices = std::function<std::optional<PlanChoices>(const PlanChoices& choices)>;

/// The plan by the choices that are asked for: as often as they are refused, which is told, others are asked
/// for. They are remembered. Nothing when the user leaves it at that.
std::optional<SitePlan> ChangeSitePlan(const AskChoices& ask, const PlanChoices& choices);

/// The plan by the choices that are remembered for the site; where these are refused or cannot be read,
/// others are asked for.
std::optional<SitePlan> OpenSitePlan(const AskChoices& ask);

}  // namespace rbt
