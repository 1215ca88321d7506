// SPDX-License-Identifier: MIT
#include "planning/solve/advisor.h"

#include <algorithm>

#include "planning/solve/dive.h"
#include "planning/solve/greedy.h"
#include "planning/solve/group_solver.h"
#include "planning/solve/length_search.h"

namespace rbt::planning {
namespace {

/// What all groups of a supply buy from a set of lengths.
std::int64_t BoughtMm(const Problem& problem, std::span<const std::size_t> groups, const LengthSet& lengths,
                      Pace& pace) {
  std::int64_t bought = 0;
  const Supply& supply = problem.supplies[problem.groups[groups.front()].supply];
  RestCounts rests = AllRests(supply);
  for (const std::size_t g : groups) {
    const Group& group = problem.groups[g];
    const CuttingTask task = MakeTask(problem, group, lengths, rests);
    Cutting cutting = CutGreedily(task, DemandOf(task));
    if (problem.options.effort == Effort::full) {
      Cutting columns = CutByColumns(task, cutting, pace).cutting;
      if (!columns.empty()) cutting = std::move(columns);
    }
    const Candidate plan = MakeCandidate(supply, Method::columns, task, cutting);
    const RestCounts used = RestsUsed(supply, plan);
    for (std::size_t r = 0; r < rests.size(); ++r) rests[r] -= used[r];
    bought += plan.bought_mm;
  }
  return bought;
}

}  // namespace

Advice Advise(const Problem& problem, std::size_t supply, Pace& pace) {
  const Supply& of = problem.supplies[supply];
  const std::vector<std::size_t> groups = GroupsOf(problem, supply);
  const auto most = std::min(static_cast<std::size_t>(problem.options.advise), of.lengths.size());
  const std::vector<LengthSet> sets = SearchLengthSets(problem, supply, most, pace);
  Advice advice{of.steel, {}};
  auto set = sets.begin();
  for (std::size_t count = 1; count <= most && !pace.Stopped(); ++count) {
    AdvicePoint point{static_cast<int>(count), {}, 0};
    if (!advice.curve.empty()) {
      point.lengths = advice.curve.back().lengths;
      point.bought_mm = advice.curve.back().bought_mm;
    }
    if (set != sets.end() && set->size() <= count) {
      const std::int64_t bought = BoughtMm(problem, groups, *set, pace);
      if (point.lengths.empty() || bought < point.bought_mm) {
        point.bought_mm = bought;
        point.lengths.clear();
        for (const std::size_t l : *set) point.lengths.push_back(of.lengths[l].mm);
      }
      ++set;
    }
    if (!point.lengths.empty()) advice.curve.push_back(std::move(point));
  }
  return advice;
}

}  // namespace rbt::planning
