// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "planning/outcome/outcome.h"

namespace rbt::planning {

/// A plan's figures as one JSON object, one field a line, closed by a line feed. Costs of groups are mm or
/// yen, those of the whole plan kilograms or yen; prices are millionths of a cost unit. `advice` stands where
/// it was asked for.
std::string PlanJson(const Outcome& outcome);

}  // namespace rbt::planning
