// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <numeric>
#include <utility>
#include <vector>

#include "planning/solve/brute_force.h"

namespace rbt::planning::test {

/// The least cost of the only group of a small problem among the purchases that can do without none of their
/// bars, all of them tried: a bar that only fills a lot is none that is needed.
class NeededBars {
 public:
  explicit NeededBars(const Problem& problem) : problem_(problem), supply_(problem.supplies[0]) {
    for (const Cut& cut : problem.groups[0].cuts) pieces_ += cut.count;
  }

  Micros LeastCost() {
    const Micros any = BruteForce(problem_, problem_.groups[0]).LeastCost();
    if (any == BruteForce::kNever) return any;
    std::vector<std::pair<Micros, Purchase>> purchases;
    Collect(Purchase(supply_.lengths.size()), 0, pieces_, purchases);
    std::ranges::sort(purchases);
    for (const auto& [cost, bought] : purchases) {
      if (cost >= any && KeepsLimits(bought) && IsEnough(bought) && NeedsEveryBar(bought)) return cost;
    }
    return BruteForce::kNever;
  }

 private:
  using Purchase = std::vector<std::int64_t>;

  void Collect(const Purchase& bought, std::size_t length, std::int64_t more,
               std::vector<std::pair<Micros, Purchase>>& to) const {
    if (length == bought.size()) {
      Micros cost = 0;
      for (std::size_t l = 0; l < bought.size(); ++l) cost += bought[l] * supply_.lengths[l].cost;
      to.emplace_back(cost, bought);
      return;
    }
    Purchase next = bought;
    for (std::int64_t bars = 0; bars <= more; ++bars) {
      next[length] = bars;
      Collect(next, length + 1, more - bars, to);
    }
  }

  bool KeepsLimits(const Purchase& bought) const {
    for (std::size_t l = 0; l < bought.size(); ++l) {
      const StockLength& length = supply_.lengths[l];
      if (bought[l] > 0 && bought[l] * length.table_weight < length.least_lot) return false;
    }
    const auto used = std::ranges::count_if(bought, [](std::int64_t bars) { return bars > 0; });
    return problem_.options.max_lengths == 0 || used <= problem_.options.max_lengths;
  }

  bool NeedsEveryBar(Purchase bought) {
    for (std::int64_t& bars : bought) {
      if (bars == 0) continue;
      --bars;
      if (IsEnough(bought)) return false;
      ++bars;
    }
    return true;
  }

  /// Bars that are there already cost nothing: what they cannot hold is never cut.
  bool IsEnough(const Purchase& bought) {
    if (const auto known = enough_.find(bought); known != enough_.end()) return known->second;
    Problem there = problem_;
    Supply& supply = there.supplies[0];
    supply.lengths.clear();
    for (std::size_t l = 0; l < bought.size(); ++l) {
      if (bought[l] > 0) supply.rests.push_back({supply_.lengths[l].mm, bought[l]});
    }
    return enough_[bought] = BruteForce(there, there.groups[0]).LeastCost() != BruteForce::kNever;
  }

  const Problem& problem_;
  const Supply& supply_;
  std::int64_t pieces_ = 0;
  std::map<Purchase, bool> enough_;
};

}  // namespace rbt::planning::test
