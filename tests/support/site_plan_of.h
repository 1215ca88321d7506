// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "session/planning/site_plan.h"

namespace rbt::test {

/// The plan of the bound site by choices that allow one. They are remembered.
inline SitePlan SitePlanOf(const PlanChoices& choices) {
  std::optional<PlanChoices> once = choices;
  const auto ask = [&once](const PlanChoices&) { return std::exchange(once, std::nullopt); };
  return ChangeSitePlan(ask, choices).value();
}

}  // namespace rbt::test
