// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <tuple>
#include <vector>

#include "planning/problem/problem.h"

namespace rbt::planning::test {

/// The least cost of a small group, all ways tried: the longest piece left goes on some bar with every set of
/// other pieces that fits. Least lots and the number of lengths are kept to; rows that stay as scheduled are
/// not looked at.
class BruteForce {
 public:
  /// Of a group that no plan can cut.
  static constexpr Micros kNever = std::numeric_limits<Micros>::max();

  BruteForce(const Problem& problem, const Group& group)
      : problem_(problem), supply_(problem.supplies[group.supply]) {
    for (const Cut& cut : group.cuts) {
      cuts_.push_back(cut.mm);
      left_.push_back(static_cast<int>(cut.count));
    }
    for (const RestBar& rest : supply_.rests) rests_.push_back(static_cast<int>(rest.count));
    const auto has_lot = [](const StockLength& length) { return length.least_lot > 0; };
    limited_ = problem.options.max_lengths > 0 || std::ranges::any_of(supply_.lengths, has_lot);
    bought_.assign(supply_.lengths.size(), 0);
    for (const StockLength& length : supply_.lengths) {
      int bars = 1;
      while (bars * length.table_weight < length.least_lot) ++bars;
      least_bars_.push_back(bars);
    }
  }

  Micros LeastCost() {
    const std::tuple state{left_, rests_, bought_};
    if (const auto known = known_.find(state); known != known_.end()) return known->second;
    const auto lead = std::ranges::find_if(left_, [](int left) { return left > 0; });
    if (lead == left_.end()) return KeepsLimits() ? 0 : kNever;
    Micros best = kNever;
    const auto first = static_cast<std::size_t>(lead - left_.begin());
    for (std::size_t l = 0; l < supply_.lengths.size(); ++l) {
      const StockLength& length = supply_.lengths[l];
      const int before = bought_[l];
      if (limited_) bought_[l] = std::min(before + 1, least_bars_[l]);
      TryContents(length.mm, first, [&] {
        const Micros others = LeastCost();
        if (others != kNever) best = std::min(best, length.cost + others);
      });
      bought_[l] = before;
    }
    for (std::size_t r = 0; r < rests_.size(); ++r) {
      if (rests_[r] == 0) continue;
      --rests_[r];
      TryContents(supply_.rests[r].mm, first, [&] { best = std::min(best, LeastCost()); });
      ++rests_[r];
    }
    known_[state] = best;
    return best;
  }

 private:
  bool KeepsLimits() const {
    int used = 0;
    for (std::size_t l = 0; l < bought_.size(); ++l) {
      if (bought_[l] == 0) continue;
      ++used;
      if (bought_[l] < least_bars_[l]) return false;
    }
    return problem_.options.max_lengths == 0 || used <= problem_.options.max_lengths;
  }

  /// With at least one piece of the first cut that is left.
  void TryContents(int mm, std::size_t first, const std::function<void()>& use) {
    const BarRule& rule = problem_.options.bar;
    --left_[first];
    const int room = mm - rule.trim + rule.plus - cuts_[first];
    if (room >= 0) {
      Fill(room, first, 1, use);
    } else if (cuts_[first] == mm) {
      use();
    }
    ++left_[first];
  }

  /// Adds pieces of cut `at` and behind to a bar that holds `kinds` cuts so far.
  void Fill(int room, std::size_t at, int kinds, const std::function<void()>& use) {
    use();
    const BarRule& rule = problem_.options.bar;
    for (std::size_t c = at; c < cuts_.size(); ++c) {
      const int now = c == at ? kinds : kinds + 1;
      if (left_[c] == 0 || cuts_[c] + rule.kerf > room) continue;
      if (problem_.options.mix > 0 && now > problem_.options.mix) continue;
      --left_[c];
      Fill(room - cuts_[c] - rule.kerf, c, now, use);
      ++left_[c];
    }
  }

  const Problem& problem_;
  const Supply& supply_;
  std::vector<int> cuts_;
  std::vector<int> left_;
  std::vector<int> rests_;
  bool limited_ = false;
  std::vector<int> least_bars_;  ///< that fill the lot of each length
  std::vector<int> bought_;      ///< of each length, no more than fill its lot; none where nothing is limited
  std::map<std::tuple<std::vector<int>, std::vector<int>, std::vector<int>>, Micros> known_;
};

}  // namespace rbt::planning::test
