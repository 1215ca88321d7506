// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"

namespace rbt::planning {

/// The faults of one group's plan that need no look at other groups; each begins with the group's name.
class GroupCheck {
 public:
  GroupCheck(const Problem& problem, std::size_t group, const GroupPlan& plan);

  std::vector<std::string> Run();

  /// Bars of each length in mm that the plan takes; after `Run`.
  const std::map<int, std::int64_t>& Bought() const { return bought_; }
  const std::map<int, std::int64_t>& Rests() const { return rests_; }

 private:
  void Report(const std::string& what);
  void CheckPattern(const Pattern& pattern);
  void CheckPieces(const Pattern& pattern);
  void CheckOrder();
  void CheckCounts();
  void CheckPromises();
  /// What pieces of a length cost from bars of another, when each bar carries as many as it can; nothing
  /// where it holds none.
  struct Alone {
    std::int64_t bars = 0;
    bool fits = false;
  };
  /// How many pieces of a length a bar of another carries.
  std::int64_t PiecesOn(int stock, int cut) const;
  Alone CutAlone(int stock, int cut, std::int64_t pieces) const;
  const StockLength* Length(int mm) const;
  /// The cost of a cut by the per-row rule.
  std::int64_t PerRowCost(const Cut& cut) const;
  /// The least table weight of a cut from bars of two lengths that cost no more than `most`.
  std::int64_t LightestOfTwo(const Cut& cut, std::int64_t most) const;
  /// True when the rows alone, from two lengths at most, keep the per-row rule's cost and weigh no more.
  bool RowsCanWeigh(std::int64_t table) const;

  const Problem& problem_;
  const Group& group_;
  const Supply& supply_;
  const GroupPlan& plan_;
  std::map<int, std::int64_t> cut_;  ///< pieces that the patterns cut, by length
  std::map<int, std::int64_t> bought_;
  std::map<int, std::int64_t> rests_;
  std::vector<std::string> faults_;
};

/// "site D16 kind 1 hoop".
std::string NameOf(const Problem& problem, const Group& group);

}  // namespace rbt::planning
