// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"

namespace rbt::planning {

/// What is wrong with a plan of the problem, one line each; empty when it keeps what plans promise: every
/// piece is cut once, no bar is overfilled, no limit broken, no kind mixed; no group costs more than its
/// promises allow; the prices prove the bounds. It shares no code with what makes plans. Bounds whose check
/// would take too long are taken on trust, see `kLargestTable`.
std::vector<std::string> FindFaults(const Problem& problem, const Plan& plan);

/// Cells of the table by which prices are checked.
inline constexpr long long kLargestTable = 400'000'000;

}  // namespace rbt::planning
