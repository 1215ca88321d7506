// SPDX-License-Identifier: MIT
#include "planning/solve/one_length.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "planning/solve/columns.h"
#include "planning/solve/greedy.h"
#include "planning/solve/group_solver.h"

namespace rbt::planning {
namespace {

constexpr double kMicrosOfUnit = 1e6;  // micros in a cost unit
/// Far more than arithmetic adds to a bound.
constexpr double kSlack = 1e-9;

/// What the other groups leave of the rest bars.
RestCounts RestsFor(const Supply& supply, const std::vector<GroupSolver>& solvers, std::size_t group) {
  std::vector<const Candidate*> others;
  for (std::size_t other = 0; other < solvers.size(); ++other) {
    if (other != group) others.push_back(&solvers[other].Best());
  }
  return RestsLeft(supply, others);
}

}  // namespace

OneLengthPlans::OneLengthPlans(const Problem& problem, std::size_t supply)
    : supply_(problem.supplies[supply]), alone_{problem.options, {supply_}, {}, {}, std::nullopt} {
  for (const Group& group : problem.groups) {
    if (group.supply != supply) continue;
    alone_.groups.push_back(group);
    alone_.groups.back().supply = 0;
  }
}

std::optional<std::vector<Candidate>> OneLengthPlans::Make(std::size_t length, Micros below, Pace& pace) {
  alone_.supplies[0].lengths = {supply_.lengths[length]};
  if (CannotCostLess(below, pace)) return std::nullopt;
  std::vector<GroupSolver> solvers;
  solvers.reserve(alone_.groups.size());
  std::vector<std::pair<Micros, std::size_t>> gains;
  gains.reserve(alone_.groups.size());
  for (const Group& group : alone_.groups) solvers.emplace_back(alone_, group);
  for (std::size_t g = 0; g < solvers.size(); ++g) {
    solvers[g].MakeQuickPlan(RestsFor(alone_.supplies[0], solvers, g), pace);
  }
  for (std::size_t g = 0; g < solvers.size(); ++g) {
    gains.emplace_back(solvers[g].Proof().bound - solvers[g].Best().cost, g);
  }
  // Where groups share rest bars, that comes first which can gain most.
  std::ranges::sort(gains);
  for (const auto& [gain, g] : gains) solvers[g].Improve(RestsFor(alone_.supplies[0], solvers, g), pace);
  std::vector<Candidate> plans;
  plans.reserve(solvers.size());
  for (const GroupSolver& solver : solvers) plans.push_back(solver.Best());
  return plans;
}

bool OneLengthPlans::CannotCostLess(Micros below, Pace& pace) const {
  std::vector<CuttingTask> tasks;
  tasks.reserve(alone_.groups.size());
  Micros bound = 0;
  for (const Group& group : alone_.groups) {
    tasks.push_back(MakeTask(alone_, group));
    bound += ProveMaterialBound(tasks.back()).bound;
  }
  if (bound >= below) return true;
  if (alone_.options.effort == Effort::greedy || !LinearProgramsAreSolved()) return false;
  auto others = static_cast<double>(bound) / kMicrosOfUnit;
  const double enough = static_cast<double>(below) / kMicrosOfUnit;
  for (const CuttingTask& task : tasks) {
    if (pace.Stopped() || !HasRoomForColumns(task)) return false;
    const double material = static_cast<double>(ProveMaterialBound(task).bound) / kMicrosOfUnit;
    others -= material;
    const std::optional<Cutting> greedy = CutGreedily(task, DemandOf(task), pace);
    if (!greedy) return false;
    Columns columns(task, pace);
    columns.Offer(*greedy);
    columns.Estimate(std::numeric_limits<int>::max(), (enough - others) * (1.0 + kSlack));
    others += std::max(material, columns.RoundedUp(columns.Bound()));
    if (others >= enough * (1.0 - kSlack)) return true;
  }
  return false;
}

}  // namespace rbt::planning
