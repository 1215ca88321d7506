// SPDX-License-Identifier: MIT
#include "planning/outcome/outcome.h"

#include <algorithm>
#include <map>

#include <fmt/format.h>

#include "planning/outcome/figures.h"
#include "planning/problem/weights.h"
#include "planning/solve/row_plans.h"

namespace rbt::planning {
namespace {

constexpr Micros kUnit = 1'000'000;

OutcomePattern Described(const BarRule& rule, const Pattern& pattern) {
  const Laid laid = LaidOf(pattern);
  return {pattern, UsedMm(rule, laid), LeftMm(rule, pattern.stock_mm, laid),
          CutsOnBar(rule, pattern.stock_mm, laid)};
}

OutcomeCut Described(const Cut& cut) {
  OutcomeCut described{cut.mm, cut.count, {}};
  for (const PlannedRow& row : cut.rows) described.rows.push_back({row.page, row.line, row.pieces, row.mark});
  return described;
}

OutcomeGroup Described(const Problem& problem, const Group& group, const GroupPlan& plan) {
  const Supply& supply = problem.supplies[group.supply];
  const Milligrams unit = UnitMilligrams(supply.steel.diameter);
  OutcomeGroup described;
  described.scope = group.scope;
  described.steel = supply.steel;
  for (const StockLength& length : supply.lengths) described.lengths.push_back(length.mm);
  for (const Cut& cut : group.cuts) {
    described.cuts.push_back(Described(cut));
    described.installed_weight += Product(Product(unit, cut.mm), cut.count);
  }
  for (const Pattern& pattern : plan.patterns) {
    described.patterns.push_back(Described(problem.options.bar, pattern));
    if (pattern.rest) continue;
    const StockLength& length = *FindLength(supply, pattern.stock_mm);
    described.cost += Product(length.cost, pattern.bars);
    described.steel_weight += Product(Product(unit, length.mm), pattern.bars);
    described.table_weight += Product(length.table_weight, pattern.bars);
  }
  described.method = plan.method;
  described.loss_percent = PercentAbove(static_cast<double>(described.steel_weight),
                                        static_cast<double>(described.installed_weight));
  described.bound = plan.bound;
  described.prices = plan.prices;
  return described;
}

std::vector<OutcomeShort> ShortRows(const Problem& problem) {
  std::map<std::size_t, OutcomeShort> by_place;
  for (const Group& group : problem.groups) {
    for (const Cut& cut : group.cuts) {
      for (const PlannedRow& row : cut.rows) {
        if (row.own_mm == 0) continue;
        const std::int64_t needed = CutAlone(problem.options.bar, row.own_mm, cut.mm, row.pieces).Bars();
        if (row.own_bars < needed) by_place[row.place] = {row.page, row.line, needed};
      }
    }
  }
  std::vector<OutcomeShort> rows;
  rows.reserve(by_place.size());
  for (const auto& [place, row] : by_place) rows.push_back(row);
  return rows;
}

std::optional<Micros> YenOf(Milligrams bar, std::int64_t bars, const std::optional<std::int64_t>& price) {
  if (!price) return std::nullopt;
  return Product(Product(bar, *price) / kPriceByWeightPerMicro, bars);
}

std::vector<PurchaseLine> PurchaseOf(const Problem& problem, const Plan& plan) {
  std::map<std::pair<BarSteel, int>, PurchaseLine> lines;
  const auto buy = [&](const BarSteel& steel, int mm, std::int64_t planned, std::int64_t kept, Milligrams bar,
                       const std::optional<std::int64_t>& price) {
    PurchaseLine& line = lines[{steel, mm}];
    line.steel = steel;
    line.stock_mm = mm;
    line.planned += planned;
    line.kept += kept;
    line.table_weight = Product(bar, line.Bars());
    line.yen = YenOf(bar, line.Bars(), price);
  };
  for (std::size_t g = 0; g < plan.groups.size(); ++g) {
    const Supply& supply = problem.supplies[problem.groups[g].supply];
    for (const Pattern& pattern : plan.groups[g].patterns) {
      if (pattern.rest) continue;
      const StockLength& length = *FindLength(supply, pattern.stock_mm);
      buy(supply.steel, length.mm, pattern.bars, 0, length.table_weight, length.price);
    }
  }
  for (const KeptRow& row : problem.kept) {
    if (row.stock_mm > 0 && row.bars > 0) {
      buy(row.steel, row.stock_mm, 0, row.bars, row.table_weight, row.price);
    }
  }
  std::vector<PurchaseLine> purchase;
  purchase.reserve(lines.size());
  for (const auto& [key, line] : lines) purchase.push_back(line);
  return purchase;
}

std::vector<UsableRest> RestsOf(const std::vector<OutcomeGroup>& groups, int usable) {
  std::map<std::pair<BarSteel, std::int64_t>, std::int64_t> counts;
  for (const OutcomeGroup& group : groups) {
    for (const OutcomePattern& pattern : group.patterns) {
      if (pattern.left_mm < usable || pattern.left_mm == 0) continue;
      counts[{group.steel, pattern.left_mm}] += pattern.pattern.bars;
    }
  }
  std::vector<UsableRest> rests;
  rests.reserve(counts.size());
  for (const auto& [key, count] : counts) rests.push_back({key.first, key.second, count});
  return rests;
}

/// In kilograms, as milligrams, or yen, as millionths.
OutcomeBound BoundOf(const Problem& problem, const std::vector<OutcomeGroup>& groups) {
  OutcomeBound bound;
  const bool steel = problem.options.aim == Aim::steel;
  for (const OutcomeGroup& group : groups) {
    const Milligrams unit = UnitMilligrams(group.steel.diameter);
    bound.cost += steel ? Product(group.bound / kUnit, unit) : group.bound;
    bound.plan_cost += steel ? group.steel_weight : group.cost;
  }
  const auto cost = static_cast<double>(bound.cost);
  const auto plan_cost = static_cast<double>(bound.plan_cost);
  if (bound.cost > 0 || bound.plan_cost == 0) bound.gap_percent = PercentAbove(plan_cost, cost);
  if (steel) bound.loss_percent = PercentAbove(cost, static_cast<double>(InstalledWeight(problem)));
  return bound;
}

OutcomeAdvice Described(const Problem& problem, const Advice& advice) {
  Milligrams installed = 0;
  const Milligrams unit = UnitMilligrams(advice.steel.diameter);
  for (const Group& group : problem.groups) {
    if (problem.supplies[group.supply].steel != advice.steel) continue;
    for (const Cut& cut : group.cuts) installed += Product(Product(unit, cut.mm), cut.count);
  }
  OutcomeAdvice described{advice.steel, {}};
  for (const AdvicePoint& point : advice.curve) {
    const Milligrams weight = Product(unit, point.bought_mm);
    described.curve.push_back({point.count, point.lengths, weight,
                               PercentAbove(static_cast<double>(weight), static_cast<double>(installed))});
  }
  return described;
}

}  // namespace

Outcome Describe(const Problem& problem, const Plan& plan) {
  Outcome outcome;
  outcome.options = problem.options;
  outcome.stopped = plan.stopped;
  for (std::size_t g = 0; g < problem.groups.size(); ++g) {
    outcome.groups.push_back(Described(problem, problem.groups[g], plan.groups[g]));
  }
  for (const KeptRow& row : problem.kept) outcome.kept.push_back({row.page, row.line, row.reason});
  outcome.short_rows = ShortRows(problem);
  outcome.purchase = PurchaseOf(problem, plan);
  outcome.rests = RestsOf(outcome.groups, problem.options.usable);
  outcome.schedule = ScheduleFigures(problem);
  outcome.per_row = PerRowFigures(problem);
  outcome.plan = FiguresOfPlan(problem, plan);
  outcome.bound = BoundOf(problem, outcome.groups);
  for (const Advice& advice : plan.advice) outcome.advice.push_back(Described(problem, advice));
  return outcome;
}

std::string ProgressText(const Problem& problem, const Plan& plan, std::size_t done, std::size_t of) {
  std::vector<OutcomeGroup> groups;
  groups.reserve(problem.groups.size());
  for (std::size_t g = 0; g < problem.groups.size(); ++g) {
    groups.push_back(Described(problem, problem.groups[g], plan.groups[g]));
  }
  const OutcomeBound bound = BoundOf(problem, groups);
  const std::string begin = fmt::format("{} of {} groups: ", done, of);
  if (!bound.loss_percent) {
    return begin + fmt::format("cost {} JPY, bound {} JPY", bound.plan_cost / kUnit, bound.cost / kUnit);
  }
  const double loss =
      PercentAbove(static_cast<double>(bound.plan_cost), static_cast<double>(InstalledWeight(problem)));
  return begin + fmt::format("loss {:.3f} %, bound {:.3f} %", loss, *bound.loss_percent);
}

std::string_view MethodName(Method method) {
  switch (method) {
    case Method::schedule:
      return "schedule";
    case Method::per_row:
      return "perRow";
    case Method::greedy:
      return "greedy";
    case Method::columns:
      return "columns";
  }
  return "";
}

std::string_view ReasonName(KeptReason reason) {
  switch (reason) {
    case KeptReason::column:
      return "column";
    case KeptReason::empty:
      return "empty";
    case KeptReason::joined:
      return "joined";
    case KeptReason::welded:
      return "welded";
    case KeptReason::scope:
      return "scope";
    case KeptReason::too_long:
      return "long";
  }
  return "";
}

std::string_view StoppedName(Stopped stopped) {
  switch (stopped) {
    case Stopped::no:
      return "";
    case Stopped::time:
      return "time";
    case Stopped::cancel:
      return "cancel";
  }
  return "";
}

}  // namespace rbt::planning
