// SPDX-License-Identifier: MIT
#include "planning/solve/plan_maker.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "planning/problem/weights.h"
#include "planning/solve/advisor.h"
#include "planning/solve/group_solver.h"
#include "planning/solve/limited_supply.h"

namespace rbt::planning {
namespace {

/// A part of the work that can make the plan better by no more than `gain`.
struct Part {
  double gain = 0.0;
  std::function<void()> work;
};

class PlanMaker {
 public:
  PlanMaker(const Problem& problem, const StopSignal& signal, const PlanListener& listener)
      : problem_(problem), pace_(signal), listener_(listener), solvers_(problem.groups.size()) {
    for (const Group& group : problem.groups) {
      proofs_.push_back(ProveMaterialBound(MakeTask(problem, group)));
    }
  }

  Plan Make() {
    MakeQuickPlans();
    std::vector<Part> parts = Parts();
    std::ranges::stable_sort(parts, [](const Part& a, const Part& b) { return a.gain > b.gain; });
    for (std::size_t done = 0; done < parts.size() && !pace_.Stopped(); ++done) {
      Tell(done, parts.size());
      parts[done].work();
    }
    Tell(parts.size(), parts.size());
    Plan plan = SoFar();
    plan.stopped = pace_.Why();
    return plan;
  }

 private:
  void MakeQuickPlans() {
    for (std::size_t s = 0; s < problem_.supplies.size(); ++s) {
      if (!IsLimited(problem_, problem_.supplies[s])) continue;
      limited_.push_back(
          std::make_unique<LimitedSupply>(problem_, s, problem_.options.max_lengths, Wanted::plan));
      limited_.back()->MakeQuickPlan(pace_);
    }
    for (std::size_t g = 0; g < problem_.groups.size(); ++g) {
      const Group& group = problem_.groups[g];
      if (IsLimited(problem_, problem_.supplies[group.supply])) continue;
      solvers_[g] = std::make_unique<GroupSolver>(problem_, group);
    }
    for (std::size_t g = 0; g < problem_.groups.size(); ++g) {
      if (solvers_[g]) solvers_[g]->MakeQuickPlan(RestsFor(g), pace_);
    }
  }

  /// What the other groups of its supply leave of the rest bars.
  RestCounts RestsFor(std::size_t group) const {
    const std::size_t index = problem_.groups[group].supply;
    const Supply& supply = problem_.supplies[index];
    std::vector<const Candidate*> others;
    for (const std::size_t other :
         supply.rests.empty() ? std::vector<std::size_t>() : GroupsOf(problem_, index)) {
      if (other != group && solvers_[other]) others.push_back(&solvers_[other]->Best());
    }
    return RestsLeft(supply, others);
  }

  /// What a plan costs above the material, in one measure for all steels.
  double GainOf(std::size_t group, const Candidate& plan) const {
    const Micros gain = plan.cost - proofs_[group].bound;
    const bool in_mm = problem_.options.aim == Aim::steel;
    const int diameter = problem_.supplies[problem_.groups[group].supply].steel.diameter;
    return static_cast<double>(gain) * static_cast<double>(in_mm ? UnitMilligrams(diameter) : 1);
  }

  std::vector<Part> Parts() {
    std::vector<Part> parts;
    for (std::size_t g = 0; g < solvers_.size(); ++g) {
      if (!solvers_[g]) continue;
      parts.push_back({GainOf(g, solvers_[g]->Best()), [this, g] { ImproveGroup(g); }});
    }
    for (const auto& limited : limited_) {
      Part part;
      for (std::size_t i = 0; i < limited->Groups().size(); ++i) {
        part.gain += GainOf(limited->Groups()[i], limited->Best()[i]);
      }
      part.work = [this, &limited] { ImproveLimited(*limited); };
      parts.push_back(std::move(part));
    }
    for (std::size_t s = 0; problem_.options.advise > 0 && s < problem_.supplies.size(); ++s) {
      parts.push_back({-1.0, [this, s] { AdviseOn(s); }});
    }
    return parts;
  }

  void ImproveGroup(std::size_t group) {
    solvers_[group]->Improve(RestsFor(group), pace_);
    proofs_[group] = solvers_[group]->Proof();
  }

  void ImproveLimited(LimitedSupply& limited) {
    for (const std::size_t g : limited.Groups()) proofs_[g] = BestBound(problem_, problem_.groups[g], pace_);
    limited.Improve(BoundOf(limited.Groups()), pace_);
  }

  Micros BoundOf(const std::vector<std::size_t>& groups) const {
    Micros bound = 0;
    for (const std::size_t g : groups) bound += proofs_[g].bound;
    return bound;
  }

  void AdviseOn(std::size_t supply) {
    const std::vector<std::size_t> groups = GroupsOf(problem_, supply);
    std::vector<Candidate> plans;
    plans.reserve(groups.size());
    for (const std::size_t g : groups) plans.push_back(BestOf(g));
    Advice advice = Advise(problem_, supply, plans, BoundOf(groups), pace_);
    // A curve that is not complete may rise where it is looked at longer.
    if (!pace_.Stopped()) advice_.push_back(std::move(advice));
  }

  const Candidate& BestOf(std::size_t group) const {
    if (solvers_[group]) return solvers_[group]->Best();
    const auto has = [&](const auto& limited) { return std::ranges::count(limited->Groups(), group) > 0; };
    const LimitedSupply& limited = **std::ranges::find_if(limited_, has);
    const auto at = std::ranges::find(limited.Groups(), group) - limited.Groups().begin();
    return limited.Best()[static_cast<std::size_t>(at)];
  }

  void Tell(std::size_t done, std::size_t of) const {
    if (listener_) listener_(SoFar(), done, of);
  }

  Plan SoFar() const {
    Plan plan;
    plan.groups.resize(problem_.groups.size());
    for (std::size_t g = 0; g < solvers_.size(); ++g) plan.groups[g] = GroupPlanOf(g, BestOf(g));
    plan.advice = advice_;
    return plan;
  }

  GroupPlan GroupPlanOf(std::size_t group, const Candidate& candidate) const {
    GroupPlan plan{candidate.patterns, candidate.method, {}, proofs_[group].bound};
    const std::vector<Cut>& cuts = problem_.groups[group].cuts;
    for (std::size_t c = cuts.size(); c-- > 0;) plan.prices.push_back({cuts[c].mm, proofs_[group].prices[c]});
    return plan;
  }

  const Problem& problem_;
  Pace pace_;
  const PlanListener& listener_;
  std::vector<std::unique_ptr<GroupSolver>> solvers_;  ///< by group; none where the lengths are limited
  std::vector<std::unique_ptr<LimitedSupply>> limited_;
  std::vector<PriceProof> proofs_;  ///< by group
  std::vector<Advice> advice_;
};

}  // namespace

Plan SolvePlan(const Problem& problem, const StopSignal& signal, const PlanListener& listener) {
  return PlanMaker(problem, signal, listener).Make();
}

}  // namespace rbt::planning
