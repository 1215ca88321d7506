// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"
#include "planning/solve/every_plan.h"
#include "planning/solve/length_search.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// True when the lengths bought of a supply are limited in number or have a least lot.
bool IsLimited(const Problem& problem, const Supply& supply);

/// The lengths that plans of a supply's groups buy.
LengthSet UsedLengths(const Supply& supply, const std::vector<Candidate>& plans);

/// The groups of a supply whose lengths are limited. They share the limits: a purchase line is one for all
/// scopes.
class LimitedSupply {
 public:
  LimitedSupply(const Problem& problem, std::size_t supply);

  /// A plan that keeps the limits, from one length where one is enough. Throws `Refusal` where none was
  /// found: of few pieces every plan was looked at then.
  void MakeQuickPlan(Pace& pace);
  /// Looks for better sets of lengths; of few pieces it finds the cheapest plan.
  void Improve(Pace& pace);

  /// What the groups buy from a set of lengths that holds every piece, whatever its number; nothing where no
  /// plan from it fills the least lots.
  std::optional<std::int64_t> BoughtMm(const LengthSet& lengths, Pace& pace) const;

  /// Indices of the problem's groups, and the plan of each.
  const std::vector<std::size_t>& Groups() const { return groups_; }
  const std::vector<Candidate>& Best() const { return *best_; }

 private:
  using Plans = std::vector<Candidate>;

  /// The plans of all groups from a set of lengths, each method in turn; keeps the cheapest that keeps the
  /// limits. Returns the plans of the last method.
  Plans Consider(const LengthSet& lengths, bool by_columns, Pace& pace);
  Plans MakePlans(const LengthSet& lengths, Method method, Pace& pace) const;
  /// As `Consider`; as long as a least lot is not filled, without the length that lacks most of its lot.
  void ConsiderWithFullLots(LengthSet lengths, bool by_columns, Pace& pace);
  /// Greedy plans from ever smaller sets: where lots are not filled, each time without one of their lengths.
  /// Then the best of the sets by columns.
  void SearchFullLots(bool by_columns, Pace& pace);
  /// Every plan, if there are few; false where there are too many.
  bool ConsiderEveryPlan();
  void Refuse() const;
  void Keep(const Plans& plans);

  /// Table weight that is bought of each length, rows that stay as scheduled included where bars are planned.
  std::vector<Milligrams> LotsOf(const Plans& plans) const;
  bool FillsLots(const Plans& plans) const;
  bool KeepsLimits(const Plans& plans) const;
  /// The lengths that do not fill their lots and without which the others hold every piece, that which lacks
  /// the largest share first.
  LengthSet EmptiestLots(const Plans& plans, const LengthSet& lengths) const;
  std::size_t MostLengths() const;

  const Problem& problem_;
  std::size_t index_;
  const Supply& supply_;
  std::vector<std::size_t> groups_;
  std::vector<Milligrams> kept_;  ///< table weight of the kept rows' bars, by length
  std::optional<Plans> best_;
};

}  // namespace rbt::planning
