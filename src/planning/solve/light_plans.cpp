// SPDX-License-Identifier: MIT
#include "planning/solve/light_plans.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "planning/problem/bar_rule.h"
#include "planning/problem/weights.h"
#include "planning/solve/cover_lp.h"
#include "planning/solve/dive.h"
#include "planning/solve/greedy.h"
#include "planning/solve/row_plans.h"

namespace rbt::planning {
namespace {

constexpr Micros kMicrosPerMm = 1'000'000;
/// How much the table's weight counts beside the cost, in parts of the whole: first to choose between plans
/// of equal cost, last alone.
constexpr std::int64_t kWhole = 64;
constexpr std::int64_t kParts[] = {1, 16, 32, 48, 64};
/// Mixtures that are tried, and the steps that they may take together.
constexpr std::int64_t kMostMixtures = 400;
constexpr std::int64_t kMixtureSteps = 200'000'000;

/// A cut from full bars of a first length, what is left of it from a second.
struct TwoLengths {
  std::size_t first = 0;  ///< indices of the supply's lengths
  std::size_t second = 0;
  std::int64_t first_bars = 0;
  Milligrams table_weight = 0;
  Micros cost = 0;
};

/// The lightest of a cut's cuttings from two lengths within a cost.
class LightestOfCut {
 public:
  LightestOfCut(const BarRule& rule, const Supply& supply, const Cut& cut, Micros most)
      : supply_(supply), cut_(cut), most_(most) {
    for (const StockLength& length : supply.lengths)
      per_bar_.push_back(PiecesPerBar(rule, length.mm, cut.mm));
  }

  TwoLengths Find() {
    for (std::size_t first = 0; first < per_bar_.size(); ++first) {
      for (std::size_t second = 0; second < per_bar_.size(); ++second) {
        if (per_bar_[first] > 0 && per_bar_[second] > 0) TryPair(first, second);
      }
    }
    return *best_;
  }

 private:
  /// So many bars more of the first length replace whole bars of the second: from one number of bars to that
  /// which is a period larger, cost and weight change by the same amounts.
  void TryPair(std::size_t first, std::size_t second) {
    const std::int64_t common = std::gcd(per_bar_[first], per_bar_[second]);
    const std::int64_t period = per_bar_[second] / common;
    const std::int64_t most_bars = cut_.count / per_bar_[first];
    for (std::int64_t bars = 0; bars < std::min(period, most_bars + 1); ++bars) {
      const TwoLengths begin = Make(first, second, bars);
      const std::int64_t last = (most_bars - bars) / period;
      if (last == 0) {
        Take(begin);
        continue;
      }
      const TwoLengths next = Make(first, second, bars + period);
      std::int64_t low = 0;
      std::int64_t high = last;
      const Micros step = next.cost - begin.cost;
      const Micros room = most_ - begin.cost;
      if (step > 0) high = room < 0 ? -1 : std::min(last, room / step);
      if (step < 0 && room < 0) low = (room + step + 1) / step;
      if (low > high) continue;
      Take(Make(first, second, bars + period * (next.table_weight < begin.table_weight ? high : low)));
    }
  }

  TwoLengths Make(std::size_t first, std::size_t second, std::int64_t bars) const {
    const std::int64_t left = cut_.count - bars * per_bar_[first];
    const std::int64_t others = (left + per_bar_[second] - 1) / per_bar_[second];
    const StockLength& a = supply_.lengths[first];
    const StockLength& b = supply_.lengths[second];
    return {first, second, bars, a.table_weight * bars + b.table_weight * others,
            a.cost * bars + b.cost * others};
  }

  void Take(const TwoLengths& other) {
    if (other.cost > most_) return;
    const auto rank = [](const TwoLengths& of) { return std::tuple(of.table_weight, of.cost); };
    if (!best_ || rank(other) < rank(*best_)) best_ = other;
  }

  const Supply& supply_;
  const Cut& cut_;
  Micros most_;
  std::vector<int> per_bar_;  ///< pieces on a bar of each length
  std::optional<TwoLengths> best_;
};

/// The task with costs that lie between its own and the table's weights.
CuttingTask Blend(CuttingTask task, std::int64_t part, Milligrams unit) {
  for (Bar& bar : task.bars) {
    if (bar.rest) continue;
    bar.cost = (bar.cost * (kWhole - part) + bar.table_weight * kMicrosPerMm / unit * part) / kWhole;
  }
  return task;
}

/// What is left of a task when some bars of a plan are cut.
struct Remainder {
  CuttingTask task;
  ByIndex<std::int64_t> left;
};

Remainder RemainderBehind(CuttingTask task, const std::vector<Pattern>& patterns) {
  ByIndex<std::int64_t> left = DemandOf(task);
  for (const Pattern& pattern : patterns) {
    for (std::size_t i = 0; i < task.items.size(); ++i) {
      for (const auto& [cut, pieces] : pattern.pieces) {
        if (cut == task.items[i].cut_mm) left[i] -= pieces * pattern.bars;
      }
    }
    for (Bar& bar : task.bars) {
      if (pattern.rest && bar.rest && bar.mm == pattern.stock_mm) bar.available -= pattern.bars;
    }
  }
  return {std::move(task), std::move(left)};
}

}  // namespace

Candidate LightRowsCandidate(const Problem& problem, const Group& group) {
  const Supply& supply = problem.supplies[group.supply];
  const BarRule& rule = problem.options.bar;
  std::vector<Pattern> patterns;
  for (const Cut& cut : group.cuts) {
    const BarsOfOneCut alone = *CutFromBestLength(rule, supply, cut);
    const Micros most = FindLength(supply, alone.stock_mm)->cost * alone.Bars();
    const TwoLengths two = LightestOfCut(rule, supply, cut, most).Find();
    const int first_mm = supply.lengths[two.first].mm;
    const std::int64_t on_first = two.first_bars * PiecesPerBar(rule, first_mm, cut.mm);
    AppendPatterns(patterns, CutAlone(rule, first_mm, cut.mm, on_first));
    AppendPatterns(patterns, CutAlone(rule, supply.lengths[two.second].mm, cut.mm, cut.count - on_first));
  }
  return MakeCandidate(supply, Method::per_row, std::move(patterns));
}

void LookForLightPlan(const Problem& problem, const Group& group, const RestCounts& rests,
                      const Promises& promises, Candidate& best, Pace& pace) {
  const Supply& supply = problem.supplies[group.supply];
  const CuttingTask task = MakeTask(problem, group, AllLengths(supply), rests);
  const Milligrams unit = UnitMilligrams(supply.steel.diameter);
  const bool by_columns = problem.options.effort == Effort::full && LinearProgramsAreSolved();
  const Candidate cheapest = best;
  Candidate lightest = best;
  const auto offer = [&](Method method, const Cutting& cutting) {
    Candidate other = MakeCandidate(supply, method, task, cutting);
    if (other.table_weight < lightest.table_weight) lightest = other;
    TakeBetter(best, std::move(other), promises);
  };
  for (const std::int64_t part : kParts) {
    if (promises.KeptBy(best) || pace.Stopped()) return;
    const CuttingTask blended = Blend(task, part, unit);
    const std::optional<Cutting> greedy = CutGreedily(blended, DemandOf(blended), pace);
    if (!greedy) return;
    offer(Method::greedy, *greedy);
    if (!by_columns) continue;
    const Cutting columns = CutByColumns(blended, *greedy, pace).cutting;
    if (!columns.empty()) offer(Method::columns, columns);
  }
  OfferMixtures(supply, Blend(task, kWhole, unit), cheapest, promises, best, pace);
  OfferMixtures(supply, task, lightest, promises, best, pace);
}

void OfferMixtures(const Supply& supply, const CuttingTask& task, const Candidate& base,
                   const Promises& promises, Candidate& best, Pace& pace) {
  const std::optional<Cutting> whole = CutGreedily(task, DemandOf(task), pace);
  if (!whole) return;
  std::int64_t most = 0;
  for (const Pattern& pattern : base.patterns) most = std::max(most, pattern.bars);
  const std::int64_t steps = std::max<std::int64_t>(1, GreedySteps(task, *whole));
  const std::int64_t tries = std::clamp<std::int64_t>(kMixtureSteps / steps, 1, kMostMixtures);
  const std::int64_t stride = (most + tries - 1) / tries;
  for (std::int64_t bars = most - 1; bars > 0 && !pace.Stopped(); bars -= stride) {
    std::vector<Pattern> patterns = base.patterns;
    for (Pattern& pattern : patterns) pattern.bars = std::min(pattern.bars, bars);
    const Remainder remainder = RemainderBehind(task, patterns);
    const std::optional<Cutting> cutting = CutGreedily(remainder.task, remainder.left, pace);
    if (!cutting) return;
    pace.Spend(GreedySteps(remainder.task, *cutting));
    const Candidate rest = MakeCandidate(supply, Method::greedy, remainder.task, *cutting);
    patterns.insert(patterns.end(), rest.patterns.begin(), rest.patterns.end());
    TakeBetter(best, MakeCandidate(supply, Method::greedy, std::move(patterns)), promises);
  }
}

}  // namespace rbt::planning
