// SPDX-License-Identifier: MIT
#include "planning/solve/every_plan.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <utility>

#include "planning/problem/bar_rule.h"
#include "planning/solve/spare_bar.h"

namespace rbt::planning {
namespace {

constexpr std::int64_t kFewPieces = 12;
constexpr Micros kNever = std::numeric_limits<Micros>::max();

/// What is left to cut, the rest bars that are left, and the bars that were bought of each length, as far as
/// that matters: bars beyond the least number are all alike.
struct State {
  std::vector<std::int64_t> pieces;
  std::vector<std::int64_t> rests;
  std::vector<std::int64_t> bought;

  friend auto operator<=>(const State&, const State&) = default;
};

/// (index of a cut, how many), by rising index.
using Pieces = std::vector<std::pair<std::size_t, int>>;

/// The best bar to cut next, and what that bar and all later ones cost.
struct Step {
  Micros cost = kNever;
  bool rest = false;
  std::size_t bar = 0;  ///< index into the supply's lengths or rests
  Pieces pieces = {};
};

/// Plans are built bar by bar: the next one takes the first piece that is left, so that plans that differ in
/// the order of their bars alone are looked at once.
class Search {
 public:
  Search(const Problem& problem, std::span<const std::size_t> groups, const PurchaseLimits& limits)
      : problem_(problem),
        rule_(problem.options.bar),
        mix_(problem.options.mix),
        supply_(problem.supplies[problem.groups[groups.front()].supply]),
        limits_(limits) {
    for (std::size_t g = 0; g < groups.size(); ++g) {
      for (const Cut& cut : problem.groups[groups[g]].cuts) {
        cuts_.push_back({g, cut.mm});
        state_.pieces.push_back(cut.count);
        pieces_ += cut.count;
      }
    }
    state_.rests = AllRests(supply_);
    state_.bought.assign(supply_.lengths.size(), 0);
    patterns_.resize(groups.size());
  }

  EveryPlan Run() {
    if (pieces_ > kFewPieces) return {};
    const State start = state_;
    const bool is_plan = Least() != kNever;
    if (bars_tried_ > limits_.most_tried) return {};
    EveryPlan result{true, bars_tried_};
    if (!is_plan) return result;
    state_ = start;
    while (pieces_ > 0) Take(known_.at(state_));
    result.cheapest.emplace();
    for (std::vector<Pattern>& patterns : patterns_) {
      // Among those without such a bar others may be the cheapest.
      if (FillsLots() && HasSpareBar(problem_, patterns)) return {};
      result.cheapest->push_back(MakeCandidate(supply_, Method::columns, std::move(patterns)));
    }
    return result;
  }

 private:
  struct GroupCut {
    std::size_t group;
    int mm;
  };

  Micros Least() {
    if (const auto known = known_.find(state_); known != known_.end()) return known->second.cost;
    Step best;
    if (pieces_ == 0) {
      if (MissingBars() == 0) best.cost = 0;
    } else if (MissingBars() <= pieces_ && bars_tried_ <= limits_.most_tried) {
      for (std::size_t r = 0; r < supply_.rests.size(); ++r) TryRest(r, best);
      // The longer of equals stays.
      for (std::size_t l = supply_.lengths.size(); l-- > 0;) TryLength(l, best);
    }
    const Micros cost = best.cost;
    known_.emplace(state_, std::move(best));
    return cost;
  }

  /// Bars that are still to be bought of lengths that are bought already; each takes a piece.
  std::int64_t MissingBars() const {
    std::int64_t missing = 0;
    for (std::size_t l = 0; l < state_.bought.size(); ++l) {
      if (state_.bought[l] > 0) missing += limits_.least_bars[l] - state_.bought[l];
    }
    return missing;
  }

  void TryRest(std::size_t rest, Step& best) {
    if (state_.rests[rest] == 0) return;
    --state_.rests[rest];
    TryContents(supply_.rests[rest].mm, [&](const Pieces& pieces) {
      const Micros cost = Least();
      if (cost < best.cost) best = {cost, true, rest, pieces};
    });
    ++state_.rests[rest];
  }

  void TryLength(std::size_t length, Step& best) {
    const auto used = static_cast<std::size_t>(
        std::ranges::count_if(state_.bought, [](std::int64_t bars) { return bars > 0; }));
    const std::int64_t before = state_.bought[length];
    if (before == 0 && used >= limits_.most_lengths) return;
    state_.bought[length] = std::min(before + 1, limits_.least_bars[length]);
    TryContents(supply_.lengths[length].mm, [&](const Pieces& pieces) {
      const Micros later = Least();
      if (later == kNever) return;
      const Micros cost = later + supply_.lengths[length].cost;
      if (cost < best.cost) best = {cost, false, length, pieces};
    });
    state_.bought[length] = before;
  }

  using Use = std::function<void(const Pieces& pieces)>;

  /// Every content of a bar that has the first piece that is left.
  void TryContents(int bar_mm, const Use& use) {
    std::size_t first = 0;
    while (state_.pieces[first] == 0) ++first;
    if (PiecesPerBar(rule_, bar_mm, cuts_[first].mm) == 0) return;
    Pieces pieces;
    Fill(first, bar_mm - rule_.trim + rule_.plus, pieces, use);
  }

  /// Adds pieces from a cut on to those that a bar has. Nothing more fits a bar that is used whole.
  void Fill(std::size_t cut, int room, Pieces& pieces, const Use& use) {
    const bool another = pieces.empty() || pieces.back().first != cut;
    if (another) pieces.emplace_back(cut, 0);
    ++pieces.back().second;
    --state_.pieces[cut];
    --pieces_;
    ++bars_tried_;
    use(pieces);
    const int left = room - cuts_[cut].mm - rule_.kerf;
    for (std::size_t next = cut; next < cuts_.size() && cuts_[next].group == cuts_[cut].group; ++next) {
      const bool mixes = next != cut && mix_ > 0 && pieces.size() >= static_cast<std::size_t>(mix_);
      if (state_.pieces[next] > 0 && cuts_[next].mm <= left && !mixes) Fill(next, left, pieces, use);
    }
    ++pieces_;
    ++state_.pieces[cut];
    --pieces.back().second;
    if (another) pieces.pop_back();
  }

  void Take(const Step& step) {
    Pattern pattern{step.rest ? supply_.rests[step.bar].mm : supply_.lengths[step.bar].mm, step.rest, 1, {}};
    for (const auto& [cut, count] : step.pieces) {
      pattern.pieces.emplace_back(cuts_[cut].mm, count);
      state_.pieces[cut] -= count;
      pieces_ -= count;
    }
    if (step.rest) {
      --state_.rests[step.bar];
    } else {
      std::int64_t& bought = state_.bought[step.bar];
      bought = std::min(bought + 1, limits_.least_bars[step.bar]);
    }
    patterns_[cuts_[step.pieces.front().first].group].push_back(std::move(pattern));
  }

  bool FillsLots() const {
    return std::ranges::any_of(limits_.least_bars, [](std::int64_t bars) { return bars > 1; });
  }

  const Problem& problem_;
  const BarRule& rule_;
  const int mix_;
  const Supply& supply_;
  const PurchaseLimits& limits_;
  std::vector<GroupCut> cuts_;  ///< of all groups, group by group
  State state_;
  std::int64_t pieces_ = 0;  ///< that are left, of all cuts
  int bars_tried_ = 0;
  std::map<State, Step> known_;
  std::vector<std::vector<Pattern>> patterns_;  ///< by group
};

}  // namespace

EveryPlan TryEveryPlan(const Problem& problem, std::span<const std::size_t> groups,
                       const PurchaseLimits& limits) {
  return Search(problem, groups, limits).Run();
}

}  // namespace rbt::planning
