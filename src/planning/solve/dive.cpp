// SPDX-License-Identifier: MIT
#include "planning/solve/dive.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "planning/solve/greedy.h"

namespace rbt::planning {
namespace {

constexpr double kMicrosInUnit = 1e6;  // micros in a cost unit
constexpr double kNearly = 1e-6;       // a value so near below a whole number is that number
constexpr double kCostSlack = 1e-6;

/// One in so many of the fractions is cut at a time, at least one: to ask for prices after each takes longer
/// than it gains.
constexpr std::size_t kFractionsAtOnce = 8;
/// How much of every value a dive keeps back from its first cut: whole parts alone may leave too little to
/// combine.
struct KeptBack {
  double bars;
  double share;
};
constexpr KeptBack kDives[] = {{0.0, 0.0}, {1.0, 0.0}, {0.0, 0.5}, {2.0, 0.0}, {0.0, 0.7}, {4.0, 0.0}};
/// Dives go on while they took so many times the work of the first, or less than the least.
constexpr std::int64_t kWorkOfFirst = 1;
constexpr std::int64_t kLeastWork = 30'000'000;

struct Fraction {
  double value = 0.0;
  std::size_t column = 0;
};

class Diver {
 public:
  Diver(const CuttingTask& task, const Cutting& start, Pace& pace)
      : task_(task), pace_(pace), columns_(task, pace), best_cost_(CostOf(task, start)) {
    columns_.Offer(start);
    ForgetCuts();
  }

  ColumnsResult Run() {
    TakeBound();
    if (IsBest()) return {std::move(best_), std::move(prices_)};
    const std::int64_t begin = pace_.Spent();
    std::int64_t first = 0;
    for (const KeptBack& kept : kDives) {
      const std::int64_t spent = pace_.Spent() - begin;
      if (first != 0 && spent > std::max(kLeastWork, first * kWorkOfFirst)) break;
      // The first time the bound says when it is enough; a second dive is worth the whole way.
      if (!(first == 0 ? columns_.ConvergeToBound() : columns_.Converge())) break;
      TakeBound();
      if (IsBest()) break;
      Dive(kept);
      if (first == 0) first = pace_.Spent() - begin;
      if (IsBest() || pace_.Stopped()) break;
      ForgetCuts();
      columns_.SetLeft(left_, bars_left_);
    }
    return {std::move(best_), std::move(prices_)};
  }

 private:
  void ForgetCuts() {
    cut_.clear();
    cut_cost_ = 0;
    left_.clear();
    bars_left_.clear();
    for (const Item& item : task_.items) left_.push_back(item.demand);
    for (const Bar& bar : task_.bars) bars_left_.push_back(bar.available);
  }

  void TakeBound() {
    if (columns_.Bound() <= bound_) return;
    bound_ = columns_.Bound();
    prices_ = columns_.BoundPrices();
  }

  /// `cost` units more than is cut are no improvement.
  bool IsNoBetter(double cost) const {
    return static_cast<double>(cut_cost_) / kMicrosInUnit + cost >=
           static_cast<double>(best_cost_) / kMicrosInUnit - kCostSlack;
  }
  bool IsBest() const {
    return columns_.RoundedUp(bound_) >= static_cast<double>(best_cost_) / kMicrosInUnit - kCostSlack;
  }

  void Dive(const KeptBack& kept) {
    CutWholeParts(kept);
    CutRestGreedily();
    while (!pace_.Stopped()) {
      if (PiecesLeft() == 0 || IsBest()) return;
      columns_.SetLeft(left_, bars_left_);
      if (!columns_.ConvergeToBound() || IsNoBetter(columns_.RoundedUp(columns_.Bound()))) return;
      if (!CutWholeParts({}) && !CutLargestFractions()) return;
      CutRestGreedily();
    }
  }

  bool CutWholeParts(const KeptBack& back) {
    const std::span<const double> values = columns_.Values();
    bool any = false;
    fractions_.clear();
    for (std::size_t c = 0; c < values.size(); ++c) {
      const double value = values[c];
      const auto whole = static_cast<std::int64_t>(value - back.bars - value * back.share + kNearly);
      const std::int64_t cut = std::max<std::int64_t>(0, std::min(whole, MostBars(c)));
      if (cut > 0) any = Cut(c, cut) || any;
      const double fraction = value - static_cast<double>(cut);
      if (fraction > kNearly) fractions_.push_back({fraction, c});
    }
    return any;
  }

  /// The largest fractions, a share of them at a time.
  bool CutLargestFractions() {
    std::ranges::stable_sort(fractions_,
                             [](const Fraction& a, const Fraction& b) { return a.value > b.value; });
    bool any = false;
    const std::size_t share = std::max<std::size_t>(1, fractions_.size() / kFractionsAtOnce);
    for (std::size_t f = 0; f < std::min(share, fractions_.size()); ++f) {
      if (f == 0 || MostBars(fractions_[f].column) > 0) any = Cut(fractions_[f].column, 1) || any;
    }
    return any;
  }

  /// How many bars with the content of a column can be cut from what is left.
  std::int64_t MostBars(std::size_t column) const {
    const Columns::Column& of = columns_.All()[column];
    std::int64_t most = task_.bars[of.bar].rest ? bars_left_[of.bar] : left_[of.content.front().first];
    for (const auto& [item, pieces] : of.content) most = std::min(most, left_[item] / pieces);
    return most;
  }

  /// Bars with the content of a column, or with what is left of it.
  bool Cut(std::size_t column, std::int64_t count) {
    const Columns::Column& of = columns_.All()[column];
    if (task_.bars[of.bar].rest && bars_left_[of.bar] < count) return false;
    CutBars bars{of.bar, {}, count};
    for (const auto& [item, pieces] : of.content) {
      const int taken = static_cast<int>(std::min<std::int64_t>(pieces, left_[item]));
      if (taken > 0) bars.content.emplace_back(item, taken);
      left_[item] -= taken * count;
    }
    if (bars.content.empty()) return false;
    if (task_.bars[of.bar].rest) bars_left_[of.bar] -= count;
    cut_cost_ += task_.bars[of.bar].cost * count;
    cut_.push_back(std::move(bars));
    return true;
  }

  std::int64_t PiecesLeft() const {
    std::int64_t pieces = 0;
    for (const std::int64_t left : left_) pieces += left;
    return pieces;
  }

  void CutRestGreedily() {
    CuttingTask rest = task_;
    for (std::size_t b = 0; b < rest.bars.size(); ++b) rest.bars[b].available = bars_left_[b];
    const std::optional<Cutting> greedy = CutGreedily(rest, left_, pace_);
    if (!greedy) return;
    pace_.Spend(GreedySteps(task_, *greedy));
    const Micros cost = cut_cost_ + CostOf(task_, *greedy);
    if (cost >= best_cost_) return;
    best_cost_ = cost;
    best_ = cut_;
    best_.insert(best_.end(), greedy->begin(), greedy->end());
  }

  const CuttingTask& task_;
  Pace& pace_;
  Columns columns_;
  Cutting best_;
  Micros best_cost_;
  double bound_ = 0.0;
  std::vector<double> prices_;
  // The dive under way.
  Cutting cut_;
  Micros cut_cost_ = 0;
  ByIndex<std::int64_t> left_;
  ByIndex<std::int64_t> bars_left_;
  std::vector<Fraction> fractions_;  ///< what the last solve has of bars that are not whole
};

}  // namespace

ColumnsResult CutByColumns(const CuttingTask& task, const Cutting& start, Pace& pace) {
  if (!HasRoomForColumns(task)) return {};
  return Diver(task, start, pace).Run();
}

}  // namespace rbt::planning
