// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/solve/cutting_task.h"

namespace rbt::planning {

/// One way to cut a group, and what is bought for it.
struct Candidate {
  Method method = Method::per_row;
  std::vector<Pattern> patterns;
  Micros cost = 0;
  std::int64_t bought_mm = 0;
  Milligrams table_weight = 0;
};

Candidate MakeCandidate(const Supply& supply, Method method, std::vector<Pattern> patterns);
Candidate MakeCandidate(const Supply& supply, Method method, const CuttingTask& task, const Cutting& cutting);

/// What a group's plan must not exceed.
struct Promises {
  Micros cost = 0;                          ///< of the per-row rule
  std::optional<Micros> schedule_cost;      ///< only for money
  std::optional<std::int64_t> schedule_mm;  ///< only for steel
  std::optional<Milligrams> schedule_table_weight;

  bool KeptBy(const Candidate& candidate) const;
};

/// The schedule's figures count where all its lengths may be bought and hold their pieces: every row with as
/// many bars as the schedule gives it, or as it needs if these are more.
Promises PromisesOf(const Problem& problem, const Group& group);

/// Every row from its own length; nothing where one may not be bought or does not hold its piece.
std::optional<Candidate> ScheduleCandidate(const Problem& problem, const Group& group);
/// Every cut by the per-row rule from some of the lengths; every cut must fit one of them.
Candidate PerRowCandidate(const Problem& problem, const Group& group, const LengthSet& lengths);

/// Takes the other candidate where it keeps the promises and this one does not, or both alike and it costs
/// less, or as much and weighs less at the tally's table.
void TakeBetter(Candidate& best, Candidate other, const Promises& promises);

}  // namespace rbt::planning
