// SPDX-License-Identifier: MIT
#include "planning/solve/group_solver.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "planning/solve/columns.h"
#include "planning/solve/dive.h"
#include "planning/solve/greedy.h"
#include "planning/solve/light_plans.h"

namespace rbt::planning {
namespace {

CuttingTask TaskOfAnyMix(const Problem& problem, const Group& group) {
  CuttingTask task = MakeTask(problem, group);
  task.mix = 0;
  return task;
}

/// The better of a bound already proven and one that prices would prove.
void TakeBetter(PriceProof& proof, const CuttingTask& task, const std::vector<double>& prices, Pace& pace) {
  if (prices.empty()) return;
  std::optional<PriceProof> other = ProveBound(task, prices, pace);
  if (other && other->bound > proof.bound) proof = *std::move(other);
}

}  // namespace

GroupSolver::GroupSolver(const Problem& problem, const Group& group)
    : problem_(problem),
      group_(group),
      supply_(problem.supplies[group.supply]),
      promises_(PromisesOf(problem, group)),
      best_(PerRowCandidate(problem, group, AllLengths(supply_))),
      proof_(ProveMaterialBound(MakeTask(problem, group))) {
  if (auto schedule = ScheduleCandidate(problem, group)) {
    planning::TakeBetter(best_, std::move(*schedule), promises_);
  }
}

void GroupSolver::MakeQuickPlan(const RestCounts& rests, Pace& pace) {
  if (!pace.Stopped()) {
    const CuttingTask task = MakeTask(problem_, group_, AllLengths(supply_), rests);
    for (const Ties ties : {Ties::shorter, Ties::fuller}) {
      const std::optional<Cutting> cutting = CutGreedily(task, DemandOf(task), pace, ties);
      if (!cutting) break;
      planning::TakeBetter(best_, MakeCandidate(supply_, Method::greedy, task, *cutting), promises_);
    }
  }
  if (!promises_.KeptBy(best_)) {
    planning::TakeBetter(best_, LightRowsCandidate(problem_, group_), promises_);
  }
}

void GroupSolver::Improve(const RestCounts& rests, Pace& pace) {
  if (pace.Stopped() || (best_.cost <= proof_.bound && promises_.KeptBy(best_))) return;
  if (problem_.options.effort == Effort::greedy || !LinearProgramsAreSolved()) {
    LookForLightPlan(problem_, group_, rests, promises_, best_, pace);
    proof_ = BestBound(problem_, group_, pace);
    return;
  }
  const CuttingTask task = MakeTask(problem_, group_, AllLengths(supply_), rests);
  const std::optional<Cutting> start = CutGreedily(task, DemandOf(task), pace);
  if (!start) return;
  const ColumnsResult result = CutByColumns(task, *start, pace);
  if (!result.cutting.empty()) {
    planning::TakeBetter(best_, MakeCandidate(supply_, Method::columns, task, result.cutting), promises_);
  }
  LookForLightPlan(problem_, group_, rests, promises_, best_, pace);
  if (pace.Stopped()) return;
  if (task.mix == 0) {
    TakeBetter(proof_, TaskOfAnyMix(problem_, group_), result.prices, pace);
  } else {
    proof_ = BestBound(problem_, group_, pace);
  }
}

RestCounts RestsUsed(const Supply& supply, const Candidate& candidate) {
  RestCounts used(supply.rests.size(), 0);
  for (const Pattern& pattern : candidate.patterns) {
    if (!pattern.rest) continue;
    const auto at = std::ranges::lower_bound(supply.rests, pattern.stock_mm, {}, &RestBar::mm);
    used[static_cast<std::size_t>(at - supply.rests.begin())] += pattern.bars;
  }
  return used;
}

RestCounts RestsLeft(const Supply& supply, std::span<const Candidate* const> plans) {
  RestCounts rests = AllRests(supply);
  for (const Candidate* plan : plans) {
    const RestCounts used = RestsUsed(supply, *plan);
    for (std::size_t r = 0; r < rests.size(); ++r) rests[r] -= used[r];
  }
  return rests;
}

PriceProof BestBound(const Problem& problem, const Group& group, Pace& pace) {
  const CuttingTask task = TaskOfAnyMix(problem, group);
  PriceProof proof = ProveMaterialBound(task);
  if (pace.Stopped() || !HasRoomForColumns(task)) return proof;
  if (problem.options.effort == Effort::greedy || !LinearProgramsAreSolved()) {
    TakeBetter(proof, task, MaterialPrices(task), pace);
    return proof;
  }
  const std::optional<Cutting> start = CutGreedily(task, DemandOf(task), pace);
  if (!start) return proof;
  Columns columns(task, pace);
  columns.Offer(*start);
  columns.ConvergeToBound();
  if (!pace.Stopped()) TakeBetter(proof, task, columns.BoundPrices(), pace);
  return proof;
}

}  // namespace rbt::planning
