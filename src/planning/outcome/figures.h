// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "planning/outcome/outcome.h"
#include "planning/problem/bar_rule.h"

namespace rbt::planning {

/// a x b. Faults: `overflow`.
std::int64_t Product(std::int64_t a, std::int64_t b);
/// By how many percent of `least` the other is more; 0 where `least` is 0.
double PercentAbove(double most, double least);

/// The pieces of a pattern's bar.
Laid LaidOf(const Pattern& pattern);

/// Weight of all planned pieces.
Milligrams InstalledWeight(const Problem& problem);

/// Every row from its own length, with as many bars as the schedule gives it or as it needs if these are
/// more; nothing without a site.
std::optional<Figures> ScheduleFigures(const Problem& problem);
/// All pieces of a group and cut from the one length of least cost.
Figures PerRowFigures(const Problem& problem);
PlanFigures FiguresOfPlan(const Problem& problem, const Plan& plan);

}  // namespace rbt::planning
