// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"
#include "planning/solve/pace.h"
#include "planning/solve/price_proof.h"

namespace rbt::planning {

/// A group whose lengths no limit restricts.
class GroupSolver {
 public:
  GroupSolver(const Problem& problem, const Group& group);

  /// The schedule, the per-row rule and, unless it is stopped before that stands, the greedy plan; where none
  /// of them keeps the promises, also the rows alone from two lengths.
  void MakeQuickPlan(const RestCounts& rests, Pace& pace);
  /// Columns on top of it where the effort is full and linear programs are solved, and the best bound.
  void Improve(const RestCounts& rests, Pace& pace);

  const Candidate& Best() const { return best_; }
  const PriceProof& Proof() const { return proof_; }

 private:
  const Problem& problem_;
  const Group& group_;
  const Supply& supply_;
  Promises promises_;
  Candidate best_;
  PriceProof proof_;
};

/// The rest bars that a plan cuts from, parallel to the supply's.
RestCounts RestsUsed(const Supply& supply, const Candidate& candidate);
/// What plans leave of a supply's rest bars.
RestCounts RestsLeft(const Supply& supply, std::span<const Candidate* const> plans);

/// The best bound of a group, from all its lengths and rests and any mix; from the material alone where no
/// more is asked for, linear programs are not solved or it was stopped. `start` is a cutting to begin with.
PriceProof BestBound(const Problem& problem, const Group& group, Pace& pace);

}  // namespace rbt::planning
