// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"

namespace rbt::planning {

/// True where one of the bought bars of a group could be left out, as the others hold all pieces: it is
/// bought to fill a lot alone. Tries every way to lay the pieces, so for few of them only.
bool HasSpareBar(const Problem& problem, const std::vector<Pattern>& patterns);

}  // namespace rbt::planning
