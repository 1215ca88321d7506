// SPDX-License-Identifier: MIT
#include "planning/solve/greedy.h"

#include <algorithm>
#include <limits>

#include "planning/solve/exact_ratio.h"
#include "planning/solve/reachable_sums.h"

namespace rbt::planning {
namespace {

std::int64_t WordsOfRow(const CuttingTask& task) {
  return static_cast<std::int64_t>(WordsFor(task.LargestCapacity()));
}

class Greedy {
 public:
  Greedy(const CuttingTask& task, ByIndex<std::int64_t> left, Pace& pace, Ties ties)
      : task_(task), left_(std::move(left)), pace_(pace), ties_(ties), sums_(task, left_, pace) {
    for (const Bar& bar : task.bars) available_.push_back(bar.rest ? bar.available : kNoEnd);
  }

  std::optional<Cutting> Cut() {
    const std::int64_t steps_of_bar = WordsOfRow(task_) * static_cast<std::int64_t>(task_.bars.size() + 1);
    for (int lead = 0; lead < static_cast<int>(left_.size()); ++lead) {
      while (left_[lead] > 0) {
        if (pace_.StoppedAfter(steps_of_bar)) return std::nullopt;
        CutBarsWith(lead);
      }
    }
    return std::move(cutting_);
  }

 private:
  static constexpr std::int64_t kNoEnd = std::numeric_limits<std::int64_t>::max();

  struct Choice {
    int bar = -1;
    int sum = 0;  ///< weight that the bar carries
  };

  /// A bar is better that costs less for what it carries; of two free ones that which is filled better.
  bool IsBetter(const Choice& a, const Choice& b) const {
    const Bar& of_a = task_.bars[a.bar];
    const Bar& of_b = task_.bars[b.bar];
    if (of_a.rest != of_b.rest) return of_a.rest;
    const Micros price_a = of_a.rest ? of_a.capacity : of_a.cost;
    const Micros price_b = of_b.rest ? of_b.capacity : of_b.cost;
    if (RatioIsLess(price_a, a.sum, price_b, b.sum)) return true;
    return ties_ == Ties::fuller && a.sum > b.sum && !RatioIsLess(price_b, b.sum, price_a, a.sum);
  }

  Choice BestBar(int lead) const {
    Choice best;
    for (int bar = 0; bar < static_cast<int>(task_.bars.size()); ++bar) {
      if (available_[bar] == 0) continue;
      const bool whole = task_.bars[bar].whole_item == lead;
      const Choice choice{bar, whole ? task_.items[lead].weight : sums_.Best(task_.bars[bar].capacity)};
      if (choice.sum == 0) continue;
      if (best.bar < 0 || IsBetter(choice, best)) best = choice;
    }
    return best;
  }

  void CutBarsWith(int lead) {
    sums_.LeadWith(lead);
    const Choice choice = BestBar(lead);
    CutBars bars{choice.bar, {}, available_[choice.bar]};
    const bool whole = task_.bars[choice.bar].whole_item == lead;
    bars.content = whole ? Content{{lead, 1}} : sums_.ContentOf(choice.sum);
    for (const auto& [item, pieces] : bars.content) bars.count = std::min(bars.count, left_[item] / pieces);
    for (const auto& [item, pieces] : bars.content) left_[item] -= pieces * bars.count;
    if (available_[choice.bar] != kNoEnd) available_[choice.bar] -= bars.count;
    sums_.Renew(lead, bars.content.back().first);
    cutting_.push_back(std::move(bars));
  }

  const CuttingTask& task_;
  ByIndex<std::int64_t> left_;
  Pace& pace_;
  Ties ties_;
  ByIndex<std::int64_t> available_;
  ReachableSums sums_;
  Cutting cutting_;
};

}  // namespace

std::optional<Cutting> CutGreedily(const CuttingTask& task, ByIndex<std::int64_t> left, Pace& pace,
                                   Ties ties) {
  return Greedy(task, std::move(left), pace, ties).Cut();
}

std::int64_t GreedySteps(const CuttingTask& task, const Cutting& cutting) {
  return WordsOfRow(task) * static_cast<std::int64_t>(task.items.size() * (cutting.size() + 1));
}

}  // namespace rbt::planning
