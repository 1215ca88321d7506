// SPDX-License-Identifier: MIT
#include "planning/solve/advisor.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "planning/solve/length_search.h"
#include "planning/solve/limited_supply.h"

namespace rbt::planning {
namespace {

struct BoughtSet {
  LengthSet lengths;
  std::int64_t bought_mm = 0;
};

/// What plans buy, with the lengths that they need, those included that pieces on rest bars fit.
BoughtSet SetOf(const Problem& problem, std::size_t supply, const std::vector<Candidate>& plans) {
  const std::vector<std::size_t> groups = GroupsOf(problem, supply);
  BoughtSet set{UsedLengths(problem.supplies[supply], plans)};
  for (const Candidate& plan : plans) set.bought_mm += plan.bought_mm;
  if (HoldsAll(problem, groups, set.lengths)) return set;
  LengthSet all;
  std::ranges::set_union(set.lengths, Cover(problem, groups), std::back_inserter(all));
  set.lengths = all;
  return set;
}

AdvicePoint PointOf(const Supply& supply, int count, const BoughtSet& set) {
  AdvicePoint point{count, {}, set.bought_mm};
  point.lengths.reserve(set.lengths.size());
  for (const std::size_t l : set.lengths) point.lengths.push_back(supply.lengths[l].mm);
  return point;
}

}  // namespace

Advice Advise(const Problem& problem, std::size_t supply, const std::vector<Candidate>& plans, Pace& pace) {
  const Supply& of = problem.supplies[supply];
  const LimitedSupply limits(problem, supply);
  const auto most = static_cast<std::size_t>(problem.options.advise);
  std::vector<BoughtSet> sets{SetOf(problem, supply, plans)};
  for (LengthSet& lengths : SearchLengthSets(problem, supply, most, kQuickSearch, pace)) {
    const std::optional<std::int64_t> bought = limits.BoughtMm(lengths, pace);
    if (bought) sets.push_back({std::move(lengths), *bought});
  }
  Advice advice{of.steel, {}};
  for (std::size_t count = 1; count <= most && !pace.Stopped(); ++count) {
    const BoughtSet* best = nullptr;
    for (const BoughtSet& set : sets) {
      const bool is_better = best == nullptr || set.bought_mm < best->bought_mm ||
                             (set.bought_mm == best->bought_mm && set.lengths.size() < best->lengths.size());
      if (set.lengths.size() <= count && is_better) best = &set;
    }
    if (best != nullptr) advice.curve.push_back(PointOf(of, static_cast<int>(count), *best));
  }
  return advice;
}

}  // namespace rbt::planning
