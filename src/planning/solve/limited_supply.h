// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/solve/candidate.h"
#include "planning/solve/length_search.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// The plan of each group of a supply.
using SupplyPlans = std::vector<Candidate>;

/// True when the lengths bought of a supply are limited in number or have a least lot.
bool IsLimited(const Problem& problem, const Supply& supply);

/// The lengths that plans of a supply's groups buy.
LengthSet UsedLengths(const Supply& supply, const SupplyPlans& plans);
/// The same, with more that hold the pieces of rest bars where none of them does: all that must be allowed to
/// make these plans.
LengthSet NeededLengths(const Problem& problem, std::span<const std::size_t> groups,
                        const SupplyPlans& plans);

/// What plans of few lengths are looked for: one from the most lengths that are allowed, or one for every
/// number of lengths, which are then all that it needs.
enum class Wanted { plan, curve };

/// The groups of a supply whose lengths are limited. They share the limits: a purchase line is one for all
/// scopes. What is tried for a number of lengths is also tried for every larger one, in the same way,
/// whatever the most is: so more lengths never cost more.
class LimitedSupply {
 public:
  /// At most so many lengths are bought; 0: any number.
  LimitedSupply(const Problem& problem, std::size_t supply, int most_lengths, Wanted wanted);

  /// A plan that keeps the limits, from one length where one is enough. Throws `Refusal` where none was
  /// found: of few pieces every plan was looked at then.
  void MakeQuickPlan(Pace& pace);
  /// The same; false where none was found.
  bool FindQuickPlan(Pace& pace);
  /// Looks for better sets of lengths; of few pieces it finds the cheapest plan. No plan costs less than
  /// `least`.
  void Improve(Micros least, Pace& pace);
  /// Keeps plans where they keep the limits and cost less than all of no more lengths.
  void Keep(const SupplyPlans& plans);

  /// Indices of the problem's groups, and the plan of each.
  const std::vector<std::size_t>& Groups() const { return groups_; }
  const SupplyPlans& Best() const { return *BestOf(most_); }
  /// The cheapest of so many lengths at most, the fewest lengths of equals; null where none was found.
  const SupplyPlans* BestOf(std::size_t most) const;

 private:
  /// The plans of all groups from a set of lengths, each method in turn; keeps those that keep the limits.
  /// Returns the plans of the last method.
  SupplyPlans Consider(const LengthSet& lengths, bool by_columns, Pace& pace);
  SupplyPlans MakePlans(const LengthSet& lengths, Method method, Pace& pace) const;
  /// As `Consider`; as long as a least lot is not filled, without the length that lacks most of its lot.
  void ConsiderWithFullLots(LengthSet lengths, bool by_columns, Pace& pace);
  /// The plans of each length alone that holds every piece.
  void ConsiderOneLength(Pace& pace);
  /// Sets of ever more lengths, fewer than the plan from all of them buys.
  void SearchSets(const SupplyPlans& free, Micros least, Pace& pace);
  /// Greedy plans from ever smaller sets: where lots are not filled, each time without one of their lengths.
  /// Then the best of the sets of every number of lengths by columns.
  void SearchFullLots(bool by_columns, Pace& pace);
  /// Every plan of 1, 2, ... lengths, if there are few; false where there are too many.
  bool ConsiderEveryPlan();
  void Refuse() const;

  /// True when no plan of so many lengths can be better than what is known.
  bool IsProven(std::size_t most, Micros least) const;
  bool HasLots() const;
  /// How many lengths count of those of plans.
  std::size_t NumberOf(const SupplyPlans& plans) const;
  /// Table weight that is bought of each length, rows that stay as scheduled included where bars are planned.
  std::vector<Milligrams> LotsOf(const SupplyPlans& plans) const;
  bool FillsLots(const SupplyPlans& plans) const;
  /// The lengths that do not fill their lots and without which the others hold every piece, that which lacks
  /// the largest share first.
  LengthSet EmptiestLots(const SupplyPlans& plans, const LengthSet& lengths) const;

  const Problem& problem_;
  std::size_t index_;
  const Supply& supply_;
  std::size_t most_;
  bool any_number_;  ///< the number is not limited, only lots are
  Wanted wanted_;
  std::vector<std::size_t> groups_;
  std::vector<Milligrams> kept_;  ///< table weight of the kept rows' bars, by length
  std::vector<SupplyPlans>
      plans_;  ///< the cheapest by the number of their lengths, empty where there is none
};

}  // namespace rbt::planning
