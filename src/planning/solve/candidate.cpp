// SPDX-License-Identifier: MIT
#include "planning/solve/candidate.h"

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>

#include "planning/problem/bar_rule.h"
#include "planning/problem/weights.h"
#include "planning/solve/row_plans.h"

namespace rbt::planning {
namespace {

/// Rest bars first, then by falling stock, then by falling pieces; equal ones become one.
std::vector<Pattern> InOrder(std::vector<Pattern> patterns) {
  const auto order = [](const Pattern& a, const Pattern& b) {
    return std::tie(a.rest, a.stock_mm, a.pieces) > std::tie(b.rest, b.stock_mm, b.pieces);
  };
  std::ranges::sort(patterns, order);
  std::vector<Pattern> merged;
  for (Pattern& pattern : patterns) {
    if (!merged.empty() && !order(merged.back(), pattern)) {
      merged.back().bars += pattern.bars;
    } else {
      merged.push_back(std::move(pattern));
    }
  }
  return merged;
}

}  // namespace

Candidate MakeCandidate(const Supply& supply, Method method, std::vector<Pattern> patterns) {
  Candidate candidate{method, InOrder(std::move(patterns))};
  for (const Pattern& pattern : candidate.patterns) {
    if (pattern.rest) continue;
    const StockLength& length = *FindLength(supply, pattern.stock_mm);
    candidate.cost += length.cost * pattern.bars;
    candidate.bought_mm += std::int64_t{length.mm} * pattern.bars;
    candidate.table_weight += length.table_weight * pattern.bars;
  }
  return candidate;
}

Candidate MakeCandidate(const Supply& supply, Method method, const CuttingTask& task,
                        const Cutting& cutting) {
  std::vector<Pattern> patterns;
  for (const CutBars& bars : cutting) {
    const Bar& bar = task.bars[bars.bar];
    Pattern pattern{bar.mm, bar.rest, bars.count, {}};
    for (const auto& [item, pieces] : bars.content) {
      pattern.pieces.emplace_back(task.items[item].cut_mm, pieces);
    }
    patterns.push_back(std::move(pattern));
  }
  return MakeCandidate(supply, method, std::move(patterns));
}

bool Promises::KeptBy(const Candidate& candidate) const {
  return candidate.cost <= cost && (!schedule_cost || candidate.cost <= *schedule_cost) &&
         (!schedule_mm || candidate.bought_mm <= *schedule_mm) &&
         (!schedule_table_weight || candidate.table_weight <= *schedule_table_weight);
}

Promises PromisesOf(const Problem& problem, const Group& group) {
  const Supply& supply = problem.supplies[group.supply];
  const BarRule& rule = problem.options.bar;
  Promises promises;
  bool lengths_allowed = true;
  Micros cost = 0;
  std::int64_t mm = 0;
  Milligrams table_weight = 0;
  for (const Cut& cut : group.cuts) {
    const BarsOfOneCut best = *CutFromBestLength(rule, supply, cut);
    promises.cost += FindLength(supply, best.stock_mm)->cost * best.Bars();
    for (const PlannedRow& row : cut.rows) {
      const StockLength* own = FindLength(supply, row.own_mm);
      if (own == nullptr || PiecesPerBar(rule, own->mm, cut.mm) == 0) {
        lengths_allowed = false;
        continue;
      }
      const std::int64_t bars = std::max(row.own_bars, CutAlone(rule, row.own_mm, cut.mm, row.pieces).Bars());
      cost += own->cost * bars;
      mm += std::int64_t{own->mm} * bars;
      table_weight += own->table_weight * bars;
    }
  }
  if (!lengths_allowed) return promises;
  if (problem.options.aim == Aim::money) {
    promises.schedule_cost = cost;
  } else {
    promises.schedule_mm = mm;
    promises.schedule_table_weight = table_weight;
  }
  return promises;
}

std::optional<Candidate> ScheduleCandidate(const Problem& problem, const Group& group) {
  const Supply& supply = problem.supplies[group.supply];
  const BarRule& rule = problem.options.bar;
  std::vector<Pattern> patterns;
  for (const Cut& cut : group.cuts) {
    for (const PlannedRow& row : cut.rows) {
      if (FindLength(supply, row.own_mm) == nullptr) return std::nullopt;
      if (PiecesPerBar(rule, row.own_mm, cut.mm) == 0) return std::nullopt;
      AppendPatterns(patterns, CutAlone(rule, row.own_mm, cut.mm, row.pieces));
    }
  }
  return MakeCandidate(supply, Method::schedule, std::move(patterns));
}

Candidate PerRowCandidate(const Problem& problem, const Group& group, const LengthSet& lengths) {
  const Supply& supply = problem.supplies[group.supply];
  std::vector<Pattern> patterns;
  for (const Cut& cut : group.cuts) {
    AppendPatterns(patterns, *CutFromBestLength(problem.options.bar, supply, cut, lengths));
  }
  return MakeCandidate(supply, Method::per_row, std::move(patterns));
}

void TakeBetter(Candidate& best, Candidate other, const Promises& promises) {
  const auto rank = [&](const Candidate& candidate) {
    return std::tuple(!promises.KeptBy(candidate), candidate.cost, candidate.table_weight);
  };
  if (rank(other) < rank(best)) best = std::move(other);
}

}  // namespace rbt::planning
