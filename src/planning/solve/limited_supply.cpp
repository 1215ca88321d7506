// SPDX-License-Identifier: MIT
#include "planning/solve/limited_supply.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "planning/problem/refusal.h"
#include "planning/solve/dive.h"
#include "planning/solve/every_plan.h"
#include "planning/solve/greedy.h"
#include "planning/solve/group_solver.h"
#include "planning/solve/one_length.h"
#include "planning/solve/row_plans.h"

namespace rbt::planning {
namespace {

/// Bars that are filled to look at every plan of a supply before that is given up: a small part of a second.
constexpr int kTriedForEveryPlan = 60'000;
/// Sets of so few lengths are tried besides the lengths that a plan without limits buys.
constexpr std::size_t kSetsForLots = 3;
/// Sets from which greedy plans are made to fill the lots, and how many of them are tried by columns.
constexpr int kGreedySets = 40;
constexpr std::size_t kBestSets = 3;

Micros CostOf(const SupplyPlans& plans) {
  Micros cost = 0;
  for (const Candidate& plan : plans) cost += plan.cost;
  return cost;
}

}  // namespace

bool IsLimited(const Problem& problem, const Supply& supply) {
  const auto has_lot = [](const StockLength& length) { return length.least_lot > 0; };
  return problem.options.max_lengths > 0 || std::ranges::any_of(supply.lengths, has_lot);
}

LengthSet UsedLengths(const Supply& supply, const SupplyPlans& plans) {
  std::set<std::size_t> used;
  for (const Candidate& plan : plans) {
    for (const Pattern& pattern : plan.patterns) {
      if (!pattern.rest)
        used.insert(static_cast<std::size_t>(FindLength(supply, pattern.stock_mm) - supply.lengths.data()));
    }
  }
  return {used.begin(), used.end()};
}

LengthSet NeededLengths(const Problem& problem, std::span<const std::size_t> groups,
                        const SupplyPlans& plans) {
  LengthSet used = UsedLengths(problem.supplies[problem.groups[groups.front()].supply], plans);
  if (HoldsAll(problem, groups, used)) return used;
  LengthSet needed;
  std::ranges::set_union(used, Cover(problem, groups), std::back_inserter(needed));
  return needed;
}

LimitedSupply::LimitedSupply(const Problem& problem, std::size_t supply, int most_lengths, Wanted wanted)
    : problem_(problem),
      index_(supply),
      supply_(problem.supplies[supply]),
      most_(most_lengths > 0 ? static_cast<std::size_t>(most_lengths) : supply_.lengths.size()),
      any_number_(most_lengths == 0),
      wanted_(wanted),
      groups_(GroupsOf(problem, supply)),
      kept_(supply_.lengths.size(), 0),
      plans_(supply_.lengths.size() + 1) {
  for (const KeptRow& row : problem.kept) {
    const StockLength* length = row.steel == supply_.steel ? FindLength(supply_, row.stock_mm) : nullptr;
    if (length != nullptr)
      kept_[static_cast<std::size_t>(length - supply_.lengths.data())] += row.table_weight * row.bars;
  }
}

void LimitedSupply::MakeQuickPlan(Pace& pace) {
  // Of few pieces every plan is looked at: one that would only fill a lot is none.
  if (HasLots() && ConsiderEveryPlan()) {
    if (BestOf(most_) == nullptr) Refuse();
    return;
  }
  if (FindQuickPlan(pace)) return;
  // A refusal is no answer for want of time, but the first plan is one.
  Pace patience([&] {
    const bool may_stop = BestOf(most_) != nullptr && pace.Stopped();
    return may_stop ? pace.Why() : Stopped::no;
  });
  if (HasLots() || !ConsiderEveryPlan()) SearchFullLots(false, patience);
  if (BestOf(most_) == nullptr) Refuse();
}

bool LimitedSupply::FindQuickPlan(Pace& pace) {
  // The longer of equals stays.
  for (std::size_t length = supply_.lengths.size(); length-- > 0;) {
    if (HoldsAll(problem_, groups_, {length})) Keep(MakePlans({length}, Method::per_row, pace));
  }
  if (BestOf(1) == nullptr) {
    ConsiderWithFullLots(Cover(problem_, groups_), false, pace);
    ConsiderWithFullLots(AllLengths(supply_), false, pace);
  }
  LengthSet last;
  for (std::size_t most = 1; most <= most_ && !pace.Stopped(); ++most) {
    const SupplyPlans* best = BestOf(most);
    const LengthSet used = best != nullptr ? UsedLengths(supply_, *best) : LengthSet();
    if (used != last) ConsiderWithFullLots(used, false, pace);
    last = used;
  }
  return BestOf(most_) != nullptr;
}

void LimitedSupply::Refuse() const {
  const std::string label = "D" + std::to_string(supply_.steel.diameter);
  const LengthSet cover = Cover(problem_, groups_);
  if (cover.size() > most_) {
    throw Refusal(label + ": " + std::to_string(most_) + " lengths do not hold every piece");
  }
  throw Refusal(label + ": no length can fill its least lot");
}

void LimitedSupply::Improve(Micros least, Pace& pace) {
  if (pace.Stopped()) return;
  const bool by_columns = problem_.options.effort == Effort::full;
  const SupplyPlans free = Consider(AllLengths(supply_), by_columns, pace);
  if (ConsiderEveryPlan() || pace.Stopped()) return;
  // Where their number is free, the plan from all lengths is the best if it happens to fill the lots.
  const bool is_best = IsProven(most_, least) || (any_number_ && FillsLots(free));
  if (wanted_ == Wanted::plan && is_best) return;
  SearchSets(free, least, pace);
  ConsiderOneLength(pace);
  if (HasLots()) SearchFullLots(by_columns, pace);
}

void LimitedSupply::SearchSets(const SupplyPlans& free, Micros least, Pace& pace) {
  const bool by_columns = problem_.options.effort == Effort::full;
  const std::size_t number = NumberOf(free);
  std::size_t most = any_number_ ? kSetsForLots : most_;
  if (FillsLots(free)) {
    most = std::min(most, std::max<std::size_t>(1, number) - 1);
  } else if (number <= most_) {
    ConsiderWithFullLots(UsedLengths(supply_, free), by_columns, pace);
  }
  const auto consider = [&](const LengthSet& lengths) {
    ConsiderWithFullLots(lengths, by_columns, pace);
    return !pace.Stopped() && !IsProven(wanted_ == Wanted::plan ? most_ : lengths.size(), least);
  };
  SearchLengthSets(problem_, index_, most, consider, pace);
}

void LimitedSupply::ConsiderOneLength(Pace& pace) {
  OneLengthPlans one(problem_, index_);
  for (std::size_t length = 0; length < supply_.lengths.size() && !pace.Stopped(); ++length) {
    if (!HoldsAll(problem_, groups_, {length})) continue;
    // For the curve they are the plans of one length, else they need only be looked at where they are
    // cheaper.
    const SupplyPlans* best = BestOf(wanted_ == Wanted::curve ? 1 : most_);
    const Micros below = best != nullptr ? CostOf(*best) : std::numeric_limits<Micros>::max();
    if (const auto plans = one.Make(length, below, pace)) Keep(*plans);
  }
}

bool LimitedSupply::ConsiderEveryPlan() {
  PurchaseLimits limits;
  limits.most_tried = kTriedForEveryPlan;
  for (std::size_t l = 0; l < supply_.lengths.size(); ++l) {
    const StockLength& length = supply_.lengths[l];
    const Milligrams lot = length.least_lot - kept_[l] + length.table_weight - 1;
    limits.least_bars.push_back(std::max<std::int64_t>(1, lot / length.table_weight));
  }
  for (limits.most_lengths = 1; limits.most_lengths <= std::min(most_, supply_.lengths.size());
       ++limits.most_lengths) {
    const EveryPlan every = TryEveryPlan(problem_, groups_, limits);
    if (every.cheapest) Keep(*every.cheapest);
    if (!every.finished) return false;
    limits.most_tried -= every.tried;
  }
  return true;
}

void LimitedSupply::SearchFullLots(bool by_columns, Pace& pace) {
  std::vector<LengthSet> open{AllLengths(supply_)};
  std::set<LengthSet> seen(open.begin(), open.end());
  std::vector<std::tuple<Micros, std::size_t, LengthSet>> full;  // what it costs, how many lengths it buys
  for (int tried = 0; tried < kGreedySets && !open.empty() && !pace.Stopped(); ++tried) {
    const LengthSet lengths = std::move(open.back());
    open.pop_back();
    const SupplyPlans plans = Consider(lengths, false, pace);
    if (FillsLots(plans)) full.emplace_back(CostOf(plans), NumberOf(plans), lengths);
    const LengthSet emptiest = EmptiestLots(plans, lengths);
    // The emptiest is left out first.
    for (auto length = emptiest.rbegin(); length != emptiest.rend(); ++length) {
      LengthSet others = lengths;
      std::erase(others, *length);
      if (seen.insert(others).second) open.push_back(std::move(others));
    }
  }
  std::ranges::sort(full);
  std::set<LengthSet> considered;
  for (std::size_t most = 1; by_columns && most <= std::min(most_, supply_.lengths.size()); ++most) {
    std::size_t best = 0;
    for (const auto& [cost, number, lengths] : full) {
      if (number > most || best == kBestSets) continue;
      ++best;
      if (!pace.Stopped() && considered.insert(lengths).second) Consider(lengths, true, pace);
    }
  }
}

SupplyPlans LimitedSupply::Consider(const LengthSet& lengths, bool by_columns, Pace& pace) {
  SupplyPlans plans = MakePlans(lengths, Method::per_row, pace);
  Keep(plans);
  for (const Method method : {Method::greedy, Method::columns}) {
    if (pace.Stopped() || (method == Method::columns && !by_columns)) break;
    plans = MakePlans(lengths, method, pace);
    Keep(plans);
  }
  return plans;
}

SupplyPlans LimitedSupply::MakePlans(const LengthSet& lengths, Method method, Pace& pace) const {
  SupplyPlans plans;
  RestCounts rests = AllRests(supply_);
  for (const std::size_t g : groups_) {
    const Group& group = problem_.groups[g];
    Candidate plan = PerRowCandidate(problem_, group, lengths);
    if (method != Method::per_row) {
      const CuttingTask task = MakeTask(problem_, group, lengths, rests);
      const std::optional<Cutting> greedy = CutGreedily(task, DemandOf(task), pace);
      if (greedy) TakeBetter(plan, MakeCandidate(supply_, Method::greedy, task, *greedy), {});
      if (greedy && method == Method::columns) {
        const Cutting columns = CutByColumns(task, *greedy, pace).cutting;
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
    const SupplyPlans plans = Consider(lengths, by_columns, pace);
    if (FillsLots(plans)) return;
    const LengthSet used = UsedLengths(supply_, plans);
    const LengthSet emptiest = EmptiestLots(plans, used);
    if (emptiest.empty()) return;
    lengths = used;
    std::erase(lengths, emptiest.front());
  }
}

void LimitedSupply::Keep(const SupplyPlans& plans) {
  const std::size_t number = NumberOf(plans);
  if (number > most_ || !FillsLots(plans)) return;
  const SupplyPlans* best = BestOf(number);
  if (best == nullptr || CostOf(plans) < CostOf(*best)) plans_[number] = plans;
}

const SupplyPlans* LimitedSupply::BestOf(std::size_t most) const {
  const SupplyPlans* best = nullptr;
  for (std::size_t number = 0; number <= std::min(most, supply_.lengths.size()); ++number) {
    const SupplyPlans& plans = plans_[number];
    if (!plans.empty() && (best == nullptr || CostOf(plans) < CostOf(*best))) best = &plans;
  }
  return best;
}

bool LimitedSupply::IsProven(std::size_t most, Micros least) const {
  const SupplyPlans* best = BestOf(most);
  return best != nullptr && CostOf(*best) <= least;
}

bool LimitedSupply::HasLots() const {
  return std::ranges::any_of(supply_.lengths, [](const StockLength& length) { return length.least_lot > 0; });
}

std::size_t LimitedSupply::NumberOf(const SupplyPlans& plans) const {
  const bool bought = wanted_ == Wanted::plan;
  return (bought ? UsedLengths(supply_, plans) : NeededLengths(problem_, groups_, plans)).size();
}

std::vector<Milligrams> LimitedSupply::LotsOf(const SupplyPlans& plans) const {
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

bool LimitedSupply::FillsLots(const SupplyPlans& plans) const {
  const std::vector<Milligrams> lots = LotsOf(plans);
  for (std::size_t l = 0; l < lots.size(); ++l) {
    if (lots[l] > 0 && lots[l] < supply_.lengths[l].least_lot) return false;
  }
  return true;
}

LengthSet LimitedSupply::EmptiestLots(const SupplyPlans& plans, const LengthSet& lengths) const {
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
