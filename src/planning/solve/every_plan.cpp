// SPDX-License-Identifier: MIT
#include "planning/solve/every_plan.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "planning/problem/bar_rule.h"

namespace rbt::planning {
namespace {

constexpr std::int64_t kFewPieces = 12;
/// Bars that are filled, and purchases that are compared, before it is given up: a fraction of a second.
constexpr int kMostSteps = 400'000;

/// What is left to cut, and the rest bars that are left.
struct State {
  std::vector<std::int64_t> pieces;
  std::vector<std::int64_t> rests;

  friend auto operator<=>(const State&, const State&) = default;
};

/// (index of a cut, how many), by rising index.
using Pieces = std::vector<std::pair<std::size_t, int>>;

/// How many bars of each length are bought.
using Purchase = std::vector<std::int64_t>;

bool IsWithin(const Purchase& purchase, const Purchase& other) {
  return std::ranges::equal(purchase, other, std::less_equal());
}

/// A purchase from which all that is left can be cut, and the bar to cut next.
struct Way {
  Purchase bought;
  bool rest = false;
  std::size_t bar = 0;  ///< index into the supply's lengths or rests
  Pieces pieces = {};
};

/// Adds a way unless a lesser purchase is known; those that it makes needless go.
void AddWay(std::vector<Way>& ways, Way way) {
  const auto does = [&](const Way& known) { return IsWithin(known.bought, way.bought); };
  if (std::ranges::any_of(ways, does)) return;
  std::erase_if(ways, [&](const Way& known) { return IsWithin(way.bought, known.bought); });
  ways.push_back(std::move(way));
}

/// Plans are built bar by bar: the next one takes the first piece that is left, so that plans that differ in
/// the order of their bars alone are looked at once. A purchase without a needless bar leaves one for the
/// pieces behind each of its bars, too: only those are kept for what is left.
class Search {
 public:
  Search(const Problem& problem, std::span<const std::size_t> groups, const PurchaseLimits& limits)
      : rule_(problem.options.bar),
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
    patterns_.resize(groups.size());
  }

  EveryPlan Run() {
    if (pieces_ > kFewPieces) return {};
    const Way* const best = Cheapest(Ways());
    if (steps_ > kMostSteps) return {};
    EveryPlan result{true};
    if (best == nullptr) return result;
    Purchase bought = best->bought;
    while (pieces_ > 0) Take(bought);
    result.cheapest.emplace();
    for (std::vector<Pattern>& patterns : patterns_) {
      result.cheapest->push_back(MakeCandidate(supply_, Method::columns, std::move(patterns)));
    }
    return result;
  }

 private:
  struct GroupCut {
    std::size_t group;
    int mm;
  };

  bool KeepsLimits(const Purchase& bought) const {
    std::size_t used = 0;
    for (std::size_t l = 0; l < bought.size(); ++l) {
      if (bought[l] == 0) continue;
      ++used;
      if (bought[l] < limits_.least_bars[l]) return false;
    }
    return used <= limits_.most_lengths;
  }

  Micros CostOf(const Purchase& bought) const {
    Micros cost = 0;
    for (std::size_t l = 0; l < bought.size(); ++l) cost += bought[l] * supply_.lengths[l].cost;
    return cost;
  }

  /// The longer of equally cheap bars stay.
  bool IsCheaper(const Purchase& bought, const Purchase& other) const {
    const Micros cost = CostOf(bought);
    const Micros others_cost = CostOf(other);
    if (cost != others_cost) return cost < others_cost;
    return std::lexicographical_compare(other.rbegin(), other.rend(), bought.rbegin(), bought.rend());
  }

  /// Null where no purchase keeps the limits.
  const Way* Cheapest(const std::vector<Way>& ways) const {
    const Way* best = nullptr;
    for (const Way& way : ways) {
      if (!KeepsLimits(way.bought)) continue;
      if (best == nullptr || IsCheaper(way.bought, best->bought)) best = &way;
    }
    return best;
  }

  /// From which purchases, none of them within another, all that is left can be cut.
  const std::vector<Way>& Ways() {
    if (const auto known = known_.find(state_); known != known_.end()) return known->second;
    std::vector<Way> ways;
    if (pieces_ == 0) {
      ways.push_back({Purchase(supply_.lengths.size())});
    } else if (steps_ <= kMostSteps) {
      for (std::size_t r = 0; r < supply_.rests.size(); ++r) TryRest(r, ways);
      for (std::size_t l = 0; l < supply_.lengths.size(); ++l) TryLength(l, ways);
    }
    return known_.emplace(state_, std::move(ways)).first->second;
  }

  void TryRest(std::size_t rest, std::vector<Way>& ways) {
    if (state_.rests[rest] == 0) return;
    --state_.rests[rest];
    TryContents(supply_.rests[rest].mm, [&](const Pieces& pieces) {
      for (const Way& later : Ways()) {
        ++steps_;
        AddWay(ways, {later.bought, true, rest, pieces});
      }
    });
    ++state_.rests[rest];
  }

  void TryLength(std::size_t length, std::vector<Way>& ways) {
    TryContents(supply_.lengths[length].mm, [&](const Pieces& pieces) {
      for (const Way& later : Ways()) {
        ++steps_;
        Way way{later.bought, false, length, pieces};
        ++way.bought[length];
        AddWay(ways, std::move(way));
      }
    });
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
    ++steps_;
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

  /// Cuts the next bar of a purchase, which is one of those known for what is left.
  void Take(Purchase& bought) {
    const std::vector<Way>& ways = known_.at(state_);
    const Way& way = *std::ranges::find(ways, bought, &Way::bought);
    Pattern pattern{way.rest ? supply_.rests[way.bar].mm : supply_.lengths[way.bar].mm, way.rest, 1, {}};
    for (const auto& [cut, count] : way.pieces) {
      pattern.pieces.emplace_back(cuts_[cut].mm, count);
      state_.pieces[cut] -= count;
      pieces_ -= count;
    }
    --(way.rest ? state_.rests : bought)[way.bar];
    patterns_[cuts_[way.pieces.front().first].group].push_back(std::move(pattern));
  }

  const BarRule& rule_;
  const int mix_;
  const Supply& supply_;
  const PurchaseLimits& limits_;
  std::vector<GroupCut> cuts_;  ///< of all groups, group by group
  State state_;
  std::int64_t pieces_ = 0;  ///< that are left, of all cuts
  int steps_ = 0;
  std::map<State, std::vector<Way>> known_;
  std::vector<std::vector<Pattern>> patterns_;  ///< by group
};

}  // namespace

EveryPlan TryEveryPlan(const Problem& problem, std::span<const std::size_t> groups,
                       const PurchaseLimits& limits) {
  return Search(problem, groups, limits).Run();
}

}  // namespace rbt::planning
