// SPDX-License-Identifier: MIT
#include "planning/solve/limited_supply.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "planning/problem/refusal.h"
#include "planning/solve/dive.h"
#include "planning/solve/greedy.h"
#include "planning/solve/group_solver.h"
#include "planning/solve/row_plans.h"

namespace rbt::planning {
namespace {

/// Sets of so few lengths are tried besides the lengths that a plan without limits buys.
constexpr std::size_t kSetsForLots = 3;
/// Sets from which greedy plans are made to fill the lots, and how many of them are tried by columns.
constexpr int kGreedySets = 40;
constexpr std::size_t kBestSets = 3;

Micros CostOf(const std::vector<Candidate>& plans) {
  Micros cost = 0;
  for (const Candidate& plan : plans) cost += plan.cost;
  return cost;
}

}  // namespace

bool IsLimited(const Problem& problem, const Supply& supply) {
  const auto has_lot = [](const StockLength& length) { return length.least_lot > 0; };
  return problem.options.max_lengths > 0 || std::ranges::any_of(supply.lengths, has_lot);
}

LengthSet UsedLengths(const Supply& supply, const std::vector<Candidate>& plans) {
  std::set<std::size_t> used;
  for (const Candidate& plan : plans) {
    for (const Pattern& pattern : plan.patterns) {
      if (!pattern.rest)
        used.insert(static_cast<std::size_t>(FindLength(supply, pattern.stock_mm) - supply.lengths.data()));
    }
  }
  return {used.begin(), used.end()};
}

LimitedSupply::LimitedSupply(const Problem& problem, std::size_t supply)
    : problem_(problem),
      index_(supply),
      supply_(problem.supplies[supply]),
      groups_(GroupsOf(problem, supply)),
      kept_(supply_.lengths.size(), 0) {
  for (const KeptRow& row : problem.kept) {
    const StockLength* length = row.steel == supply_.steel ? FindLength(supply_, row.stock_mm) : nullptr;
    if (length != nullptr)
      kept_[static_cast<std::size_t>(length - supply_.lengths.data())] += row.table_weight * row.bars;
  }
}

std::size_t LimitedSupply::MostLengths() const {
  const auto most = static_cast<std::size_t>(problem_.options.max_lengths);
  return most == 0 ? supply_.lengths.size() : most;
}

void LimitedSupply::MakeQuickPlan(Pace& pace) {
  if (HasLots() && ConsiderEveryPlan()) {
    if (!best_) Refuse();
    return;
  }
  for (std::size_t length = 0; length < supply_.lengths.size(); ++length) {
    if (HoldsAll(problem_, groups_, {length})) Keep(MakePlans({length}, Method::per_row, pace));
  }
  if (!best_) ConsiderWithFullLots(Cover(problem_, groups_), false, pace);
  if (!best_) ConsiderWithFullLots(AllLengths(supply_), false, pace);
  if (best_) {
    if (!pace.Stopped()) ConsiderWithFullLots(UsedLengths(supply_, *best_), false, pace);
    return;
  }
  // A refusal is no answer for want of time; none of this takes long.
  Pace patience(nullptr);
  if (!ConsiderEveryPlan()) SearchFullLots(false, patience);
  if (!best_) Refuse();
}

void LimitedSupply::Refuse() const {
  const std::string label = "D" + std::to_string(supply_.steel.diameter);
  const LengthSet cover = Cover(problem_, groups_);
  if (cover.size() > MostLengths()) {
    throw Refusal(label + ": " + std::to_string(MostLengths()) + " lengths do not hold every piece");
  }
  throw Refusal(label + ": no length can fill its least lot");
}

void LimitedSupply::Improve(Pace& pace) {
  if (pace.Stopped()) return;
  const bool by_columns = problem_.options.effort == Effort::full;
  // The plan from all lengths is the best where it happens to keep the limits.
  const Plans free = Consider(AllLengths(supply_), by_columns, pace);
  if (ConsiderEveryPlan() || KeepsLimits(free)) return;
  const LengthSet used = UsedLengths(supply_, free);
  if (used.size() <= MostLengths()) ConsiderWithFullLots(used, by_columns, pace);
  const bool has_lots =
      std::ranges::any_of(supply_.lengths, [](const auto& length) { return length.least_lot > 0; });
  const std::size_t most = problem_.options.max_lengths > 0 ? MostLengths() : kSetsForLots;
  const std::vector<LengthSet> sets = SearchLengthSets(problem_, index_, most, kThoroughSearch, pace);
  for (const LengthSet& set : sets) {
    // A smaller set fills its lots more easily.
    if (has_lots || &set == &sets.back()) ConsiderWithFullLots(set, by_columns, pace);
  }
  if (has_lots) SearchFullLots(by_columns, pace);
}

bool LimitedSupply::ConsiderEveryPlan() {
  PurchaseLimits limits{MostLengths(), {}};
  for (std::size_t l = 0; l < supply_.lengths.size(); ++l) {
    const StockLength& length = supply_.lengths[l];
    const Milligrams lot = length.least_lot - kept_[l] + length.table_weight - 1;
    limits.least_bars.push_back(std::max<std::int64_t>(1, lot / length.table_weight));
  }
  const EveryPlan every = TryEveryPlan(problem_, groups_, limits);
  if (every.cheapest) Keep(*every.cheapest);
  return every.finished;
}

void LimitedSupply::SearchFullLots(bool by_columns, Pace& pace) {
  std::vector<LengthSet> open{AllLengths(supply_)};
  std::set<LengthSet> seen(open.begin(), open.end());
  std::vector<std::pair<Micros, LengthSet>> full;
  for (int tried = 0; tried < kGreedySets && !open.empty() && !pace.Stopped(); ++tried) {
    const LengthSet lengths = std::move(open.back());
    open.pop_back();
    const Plans plans = Consider(lengths, false, pace);
    if (KeepsLimits(plans)) full.emplace_back(CostOf(plans), lengths);
    const LengthSet emptiest = EmptiestLots(plans, lengths);
    // The emptiest is left out first.
    for (auto length = emptiest.rbegin(); length != emptiest.rend(); ++length) {
      LengthSet others = lengths;
      std::erase(others, *length);
      if (seen.insert(others).second) open.push_back(std::move(others));
    }
  }
  std::ranges::sort(full);
  for (std::size_t set = 0; by_columns && set < std::min(kBestSets, full.size()); ++set) {
    if (!pace.Stopped()) Consider(full[set].second, true, pace);
  }
}

LimitedSupply::Plans LimitedSupply::Consider(const LengthSet& lengths, bool by_columns, Pace& pace) {
  Plans plans = MakePlans(lengths, Method::per_row, pace);
  Keep(plans);
  for (const Method method : {Method::greedy, Method::columns}) {
    if (pace.Stopped() || (method == Method::columns && !by_columns)) break;
    plans = MakePlans(lengths, method, pace);
    Keep(plans);
  }
  return plans;
}

LimitedSupply::Plans LimitedSupply::MakePlans(const LengthSet& lengths, Method method, Pace& pace) const {
  Plans plans;
  RestCounts rests = AllRests(supply_);
  for (const std::size_t g : groups_) {
    const Group& group = problem_.groups[g];
    Candidate plan = PerRowCandidate(problem_, group, lengths);
    if (method != Method::per_row) {
      const CuttingTask task = MakeTask(problem_, group, lengths, rests);
      const Cutting greedy = CutGreedily(task, DemandOf(task));
      TakeBetter(plan, MakeCandidate(supply_, Method::greedy, task, greedy), {});
      if (method == Method::columns) {
        const Cutting columns = CutByColumns(task, greedy, pace).cutting;
        if (!columns.empty()) TakeBetter(plan, MakeCandidate(supply_, Method::columns, task, columns), {});
      }
    }
    const RestCounts used = RestsUsed(supply_, plan);
    for (std::size_t r = 0; r < rests.size(); ++r) rests[r] -= used[r];
    plans.push_back(std::move(plan));
  }
  return plans;
}

void LimitedSupply::ConsiderWithFullLots(LengthSet lengths, bool by_columns, Pace& pace) {
  // What a plan uses may hold too little: some of its pieces come out of rest bars.
  while (HoldsAll(problem_, groups_, lengths)) {
    const Plans plans = Consider(lengths, by_columns, pace);
    if (KeepsLimits(plans)) return;
    const LengthSet used = UsedLengths(supply_, plans);
    const LengthSet emptiest = EmptiestLots(plans, used);
    if (emptiest.empty()) return;
    lengths = used;
    std::erase(lengths, emptiest.front());
  }
}

void LimitedSupply::Keep(const Plans& plans) {
  if (KeepsLimits(plans) && (!best_ || CostOf(plans) < CostOf(*best_))) best_ = plans;
}

std::vector<Milligrams> LimitedSupply::LotsOf(const Plans& plans) const {
  std::vector<Milligrams> lots(supply_.lengths.size(), 0);
  for (const Candidate& plan : plans) {
    for (const Pattern& pattern : plan.patterns) {
      if (pattern.rest) continue;
      const StockLength* length = FindLength(supply_, pattern.stock_mm);
      lots[static_cast<std::size_t>(length - supply_.lengths.data())] += length->table_weight * pattern.bars;
    }
  }
  for (std::size_t l = 0; l < lots.size(); ++l) {
    if (lots[l] > 0) lots[l] += kept_[l];
  }
  return lots;
}

bool LimitedSupply::FillsLots(const Plans& plans) const {
  const std::vector<Milligrams> lots = LotsOf(plans);
  for (std::size_t l = 0; l < lots.size(); ++l) {
    if (lots[l] > 0 && lots[l] < supply_.lengths[l].least_lot) return false;
  }
  return true;
}

bool LimitedSupply::KeepsLimits(const Plans& plans) const {
  return UsedLengths(supply_, plans).size() <= MostLengths() && FillsLots(plans);
}

std::optional<std::int64_t> LimitedSupply::BoughtMm(const LengthSet& lengths, Pace& pace) const {
  std::optional<std::int64_t> least;
  for (const Method method : {Method::per_row, Method::greedy, Method::columns}) {
    if (method == Method::columns && problem_.options.effort == Effort::greedy) break;
    const Plans plans = MakePlans(lengths, method, pace);
    if (!FillsLots(plans)) continue;
    std::int64_t bought = 0;
    for (const Candidate& plan : plans) bought += plan.bought_mm;
    least = std::min(least.value_or(bought), bought);
  }
  return least;
}

LengthSet LimitedSupply::EmptiestLots(const Plans& plans, const LengthSet& lengths) const {
  const std::vector<Milligrams> lots = LotsOf(plans);
  std::vector<std::pair<double, std::size_t>> shares;
  for (const std::size_t l : lengths) {
    const Milligrams lot = supply_.lengths[l].least_lot;
    if (lots[l] == 0 || lots[l] >= lot) continue;
    LengthSet others = lengths;
    std::erase(others, l);
    if (!HoldsAll(problem_, groups_, others)) continue;
    shares.emplace_back(static_cast<double>(lots[l]) / static_cast<double>(lot), l);
  }
  std::ranges::sort(shares);
  LengthSet emptiest;
  emptiest.reserve(shares.size());
  for (const auto& [share, length] : shares) emptiest.push_back(length);
  return emptiest;
}

}  // namespace rbt::planning
