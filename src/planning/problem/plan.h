// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/problem/stop_signal.h"

namespace rbt::planning {

/// Bars of one length that are all cut alike.
struct Pattern {
  int stock_mm = 0;
  bool rest = false;
  std::int64_t bars = 0;
  std::vector<std::pair<int, int>> pieces;  ///< (cut in mm, how many), by falling cut, never empty

  friend bool operator==(const Pattern&, const Pattern&) = default;
};

/// What a group's patterns came from.
enum class Method { schedule, per_row, greedy, columns };

/// The price of a piece: in no bar that may be bought is a content worth more than the bar costs.
struct Price {
  int cut_mm = 0;
  Micros price = 0;

  friend bool operator==(const Price&, const Price&) = default;
};

struct GroupPlan {
  /// Rest bars first, then by falling stock, then by falling pieces; no two alike.
  std::vector<Pattern> patterns;
  Method method = Method::per_row;
  std::vector<Price> prices;  ///< one for each cut, by rising cut
  Micros bound = 0;           ///< what the prices prove: no plan of the group costs less

  friend bool operator==(const GroupPlan&, const GroupPlan&) = default;
};

/// The best set of at most `count` lengths that was found.
struct AdvicePoint {
  int count = 0;
  std::vector<int> lengths;    ///< mm, rising
  std::int64_t bought_mm = 0;  ///< of bars, in all groups of the steel
  Micros cost = 0;             ///< of these bars: by it sets are compared

  friend bool operator==(const AdvicePoint&, const AdvicePoint&) = default;
};

struct Advice {
  BarSteel steel;
  std::vector<AdvicePoint> curve;  ///< for 1, 2, ... lengths

  friend bool operator==(const Advice&, const Advice&) = default;
};

struct Plan {
  std::vector<GroupPlan> groups;  ///< parallel to the problem's
  Stopped stopped = Stopped::no;
  std::vector<Advice> advice;  ///< by rising steel, those that are complete; empty unless asked for

  friend bool operator==(const Plan&, const Plan&) = default;
};

}  // namespace rbt::planning
