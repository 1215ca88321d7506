// SPDX-License-Identifier: MIT
#include "planning/verify/verify.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "planning/verify/group_check.h"
#include "planning/verify/price_check.h"

namespace rbt::planning {
namespace {

using Faults = std::vector<std::string>;

/// What the groups of a supply take together.
struct Taken {
  std::map<int, std::int64_t> bought;
  std::map<int, std::int64_t> rests;
};

void Append(Faults& faults, Faults more) { std::ranges::move(more, std::back_inserter(faults)); }

std::string NameOf(const BarSteel& steel) {
  return "D" + std::to_string(steel.diameter) + " kind " + std::to_string(steel.kind) +
         (steel.hoop ? " hoop" : "");
}

/// Table weight that rows kept as scheduled order of a length.
std::int64_t KeptWeight(const Problem& problem, const BarSteel& steel, int mm) {
  std::int64_t weight = 0;
  for (const KeptRow& row : problem.kept) {
    if (row.steel == steel && row.stock_mm == mm) weight += row.bars * row.table_weight;
  }
  return weight;
}

Faults CheckSupply(const Problem& problem, const Supply& supply, const Taken& taken) {
  Faults faults;
  const std::string name = NameOf(supply.steel) + ": ";
  for (const RestBar& rest : supply.rests) {
    const auto used = taken.rests.find(rest.mm);
    if (used != taken.rests.end() && used->second > rest.count) {
      faults.push_back(name + std::to_string(used->second) + " rest bars of " + std::to_string(rest.mm) +
                       " are cut, there are " + std::to_string(rest.count));
    }
  }
  const int most = problem.options.max_lengths;
  if (most > 0 && static_cast<int>(taken.bought.size()) > most) {
    faults.push_back(name + std::to_string(taken.bought.size()) + " lengths are bought, allowed are " +
                     std::to_string(most));
  }
  for (const StockLength& length : supply.lengths) {
    const auto bars = taken.bought.find(length.mm);
    if (bars == taken.bought.end()) continue;
    const std::int64_t weight =
        bars->second * length.table_weight + KeptWeight(problem, supply.steel, length.mm);
    if (weight < length.least_lot)
      faults.push_back(name + "the lot of " + std::to_string(length.mm) + " is not filled");
  }
  return faults;
}

Faults CheckAdvice(const Problem& problem, const Advice& advice) {
  Faults faults;
  const std::string name = "advice for " + NameOf(advice.steel) + ": ";
  const auto same = [&](const Supply& supply) { return supply.steel == advice.steel; };
  const auto supply = std::ranges::find_if(problem.supplies, same);
  if (supply == problem.supplies.end()) return {name + "there is no such steel"};
  for (std::size_t p = 0; p < advice.curve.size(); ++p) {
    const AdvicePoint& point = advice.curve[p];
    if (static_cast<int>(point.lengths.size()) > point.count) {
      faults.push_back(name + "more lengths than " + std::to_string(point.count));
    }
    for (const int mm : point.lengths) {
      if (std::ranges::find(supply->lengths, mm, &StockLength::mm) == supply->lengths.end()) {
        faults.push_back(name + std::to_string(mm) + " may not be bought");
      }
    }
    if (p > 0 && point.cost > advice.curve[p - 1].cost) faults.push_back(name + "the curve rises");
  }
  return faults;
}

std::int64_t CostOf(const Supply& supply, const std::map<int, std::int64_t>& bought) {
  std::int64_t cost = 0;
  for (const StockLength& length : supply.lengths) {
    const auto bars = bought.find(length.mm);
    if (bars != bought.end()) cost += bars->second * length.cost;
  }
  return cost;
}

}  // namespace

Verifier::Verifier(const Problem& problem)
    : problem_(problem), groups_(problem.groups.size()), sound_(problem.groups.size(), false) {}

Faults Verifier::CheckGroup(std::size_t group, const GroupPlan& plan) {
  GroupCheck check(problem_, group, plan);
  Faults faults = check.Run();
  const Group& of = problem_.groups[group];
  Append(faults, CheckPrices(problem_, of, plan, CostOf(problem_.supplies[of.supply], check.Bought())));
  groups_[group] = {plan, check.Bought(), check.Rests()};
  return faults;
}

Faults Verifier::FindFaults(const Plan& plan) {
  if (plan.groups.size() != problem_.groups.size()) {
    return {std::to_string(plan.groups.size()) + " groups are planned, not " +
            std::to_string(problem_.groups.size())};
  }
  Faults faults;
  std::vector<Taken> taken(problem_.supplies.size());
  for (std::size_t g = 0; g < plan.groups.size(); ++g) {
    if (!sound_[g] || groups_[g].plan != plan.groups[g]) {
      Faults found = CheckGroup(g, plan.groups[g]);
      sound_[g] = found.empty();
      Append(faults, std::move(found));
    }
    Taken& of_supply = taken[problem_.groups[g].supply];
    for (const auto& [mm, bars] : groups_[g].bought) of_supply.bought[mm] += bars;
    for (const auto& [mm, bars] : groups_[g].rests) of_supply.rests[mm] += bars;
  }
  for (std::size_t s = 0; s < taken.size(); ++s)
    Append(faults, CheckSupply(problem_, problem_.supplies[s], taken[s]));
  for (const Advice& advice : plan.advice) Append(faults, CheckAdvice(problem_, advice));
  return faults;
}

Faults FindFaults(const Problem& problem, const Plan& plan) { return Verifier(problem).FindFaults(plan); }

}  // namespace rbt::planning
