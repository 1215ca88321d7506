// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// The indices of the problem's groups that are cut from a supply.
std::vector<std::size_t> GroupsOf(const Problem& problem, std::size_t supply);
/// True when every piece of the groups fits one of the lengths.
bool HoldsAll(const Problem& problem, std::span<const std::size_t> groups, const LengthSet& lengths);

/// Lengths that hold every piece, one after the other that which holds most of what is left.
LengthSet Cover(const Problem& problem, std::span<const std::size_t> groups);

/// Told the next set; false where no more are wanted.
using TakeLengthSet = std::function<bool(const LengthSet& lengths)>;

/// Tells the best sets found of at most 1, 2, ..., `most` lengths from which all groups of a supply can be
/// cut; fewer when more lengths gain nothing or when it was stopped. A set is judged by the linear program
/// where it is solved and the effort is full, else by the greedy plan. Each set grows from the one before by
/// the length that gains most, then lengths are exchanged as long as that gains: a larger `most` changes none
/// of the sets before.
void SearchLengthSets(const Problem& problem, std::size_t supply, std::size_t most, const TakeLengthSet& take,
                      Pace& pace);

}  // namespace rbt::planning
