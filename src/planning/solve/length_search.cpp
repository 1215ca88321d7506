// SPDX-License-Identifier: MIT
#include "planning/solve/length_search.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <optional>

#include "planning/problem/bar_rule.h"
#include "planning/solve/columns.h"
#include "planning/solve/greedy.h"

namespace rbt::planning {
namespace {

constexpr double kImpossible = std::numeric_limits<double>::infinity();
/// Rounds of the linear program after which a set is judged.
constexpr int kRounds = 4;
constexpr double kGain = 1e-9;
/// Of the sets that are compared so many are judged by the linear program, the best guesses first: of those
/// that grow by a length, and of those that exchange one, which are many.
constexpr std::size_t kJudgedOfGrown = 24;
constexpr std::size_t kJudgedOfExchanged = 8;
/// Rounds of exchanging.
constexpr int kExchanges = 3;

/// What a group costs from a set of lengths.
class GroupJudge {
 public:
  GroupJudge(const Problem& problem, const Group& group, Pace& pace)
      : problem_(problem), group_(group), pace_(pace), task_(MakeTask(problem, group)) {
    if (problem.options.effort == Effort::full && LinearProgramsAreSolved() && HasRoomForColumns(task_)) {
      columns_ = std::make_unique<Columns>(task_, pace);
    }
  }

  /// Of the greedy plan.
  double Guess(const LengthSet& lengths) const {
    CuttingTask task = MakeTask(problem_, group_, lengths, AllRests(problem_.supplies[group_.supply]));
    const std::optional<Cutting> greedy = CutGreedily(task, DemandOf(task), pace_);
    return greedy ? static_cast<double>(CostOf(task, *greedy)) : kImpossible;
  }

  bool CanTellMore() const { return columns_ != nullptr; }
  /// By the linear program, which begins with the greedy plan; no more than that it is above `enough` is told
  /// of a set whose bound is.
  double Cost(const LengthSet& lengths, double enough) {
    ByIndex<bool> allowed;
    std::size_t length = 0;
    for (const Bar& bar : task_.bars) {
      allowed.push_back(bar.rest || std::ranges::binary_search(lengths, length));
      if (!bar.rest) ++length;
    }
    CuttingTask task = task_;
    for (std::size_t b = 0; b < allowed.size(); ++b) {
      if (!allowed[b]) task.bars[b].capacity = 0;
    }
    const std::optional<Cutting> greedy = CutGreedily(task, DemandOf(task), pace_);
    if (!greedy) return kImpossible;
    columns_->Offer(*greedy);
    columns_->AllowBars(allowed);
    return columns_->Estimate(kRounds, enough) && columns_->Bound() <= enough ? columns_->Cost()
                                                                              : kImpossible;
  }

 private:
  const Problem& problem_;
  const Group& group_;
  Pace& pace_;
  CuttingTask task_;
  std::unique_ptr<Columns> columns_;
};

/// Bars in parts are a judge of large groups; of small ones, where sets cost alike, whole bars tell more.
struct JudgedSet {
  LengthSet lengths;
  double cost = kImpossible;   ///< of the linear program, where it is solved
  double guess = kImpossible;  ///< of the greedy plans
};

bool Gains(double cost, double over) { return cost < over * (1.0 - kGain); }

bool IsCheaper(const JudgedSet& a, const JudgedSet& b) {
  if (Gains(a.cost, b.cost)) return true;
  return !Gains(b.cost, a.cost) && a.guess < b.guess;
}

/// What all groups of a supply cost from a set of lengths.
class Judge {
 public:
  Judge(const Problem& problem, std::vector<std::size_t> groups, Pace& pace)
      : problem_(problem), groups_(std::move(groups)), pace_(pace) {
    for (const std::size_t g : groups_) {
      judges_.push_back(std::make_unique<GroupJudge>(problem, problem.groups[g], pace));
    }
    by_programs_ = std::ranges::all_of(judges_, [](const auto& judge) { return judge->CanTellMore(); });
  }

  /// The cheapest of several sets that may cost less than `beat`: all are guessed, the best guesses judged.
  JudgedSet Cheapest(std::vector<LengthSet> sets, std::size_t most, double beat) {
    std::vector<JudgedSet> judged;
    for (LengthSet& set : sets) {
      if (pace_.Stopped()) return {};
      if (!HoldsAll(problem_, groups_, set)) continue;
      judged.push_back({std::move(set), 0.0, 0.0});
      for (const auto& judge : judges_) judged.back().guess += judge->Guess(judged.back().lengths);
    }
    std::ranges::stable_sort(judged, {}, &JudgedSet::guess);
    if (judged.size() > most) judged.resize(most);
    JudgedSet best;
    for (JudgedSet& set : judged) {
      set.cost = Cost(set, std::min(beat, best.cost));
      if (best.lengths.empty() || IsCheaper(set, best)) best = std::move(set);
    }
    return pace_.Stopped() ? JudgedSet{} : best;
  }

 private:
  double Cost(const JudgedSet& guessed, double enough) {
    if (!by_programs_) return guessed.guess;
    double cost = 0.0;
    for (const auto& judge : judges_) {
      cost += pace_.Stopped() ? kImpossible : judge->Cost(guessed.lengths, enough - cost);
      if (cost == kImpossible) break;
    }
    return cost;
  }

  const Problem& problem_;
  std::vector<std::size_t> groups_;
  Pace& pace_;
  std::vector<std::unique_ptr<GroupJudge>> judges_;  ///< parallel to the groups
  bool by_programs_ = false;                         ///< linear programs judge all groups
};

LengthSet With(LengthSet lengths, std::size_t length) {
  lengths.insert(std::ranges::lower_bound(lengths, length), length);
  return lengths;
}

LengthSet Without(LengthSet lengths, std::size_t length) {
  std::erase(lengths, length);
  return lengths;
}

/// The best of the sets that are made from `base` by one length more and may cost less than `beat`.
JudgedSet BestWithOneMore(Judge& judge, const LengthSet& base, const LengthSet& all, std::size_t judged,
                          double beat) {
  std::vector<LengthSet> sets;
  for (const std::size_t length : all) {
    if (!std::ranges::binary_search(base, length)) sets.push_back(With(base, length));
  }
  return judge.Cheapest(std::move(sets), judged, beat);
}

/// Exchanges one length for another as long as that gains.
void Exchange(Judge& judge, JudgedSet& set, const LengthSet& all) {
  bool gained = set.lengths.size() > 1;
  for (int round = 0; round < kExchanges && gained; ++round) {
    gained = false;
    for (const std::size_t length : LengthSet(set.lengths)) {
      JudgedSet other =
          BestWithOneMore(judge, Without(set.lengths, length), all, kJudgedOfExchanged, set.cost);
      if (other.lengths.empty() || !IsCheaper(other, set)) continue;
      set = std::move(other);
      gained = true;
    }
  }
}

}  // namespace

LengthSet Cover(const Problem& problem, std::span<const std::size_t> groups) {
  const LengthSet all = AllLengths(problem.supplies[problem.groups[groups.front()].supply]);
  const auto held = [&](std::size_t length, const LengthSet& by) {
    std::size_t more = 0;
    for (const std::size_t g : groups) {
      const Supply& supply = problem.supplies[problem.groups[g].supply];
      for (const Cut& cut : problem.groups[g].cuts) {
        const auto holds = [&](std::size_t l) {
          return PiecesPerBar(problem.options.bar, supply.lengths[l].mm, cut.mm) > 0;
        };
        if (holds(length) && std::ranges::none_of(by, holds)) ++more;
      }
    }
    return more;
  };
  LengthSet cover;
  while (!HoldsAll(problem, groups, cover)) {
    std::size_t best = 0;
    for (const std::size_t length : all) {
      if (held(length, cover) >= held(best, cover)) best = length;
    }
    cover = With(cover, best);
  }
  return cover;
}

std::vector<std::size_t> GroupsOf(const Problem& problem, std::size_t supply) {
  std::vector<std::size_t> groups;
  for (std::size_t g = 0; g < problem.groups.size(); ++g) {
    if (problem.groups[g].supply == supply) groups.push_back(g);
  }
  return groups;
}

bool HoldsAll(const Problem& problem, std::span<const std::size_t> groups, const LengthSet& lengths) {
  return std::ranges::all_of(groups, [&](std::size_t g) {
    const Group& group = problem.groups[g];
    const Supply& supply = problem.supplies[group.supply];
    return std::ranges::all_of(group.cuts, [&](const Cut& cut) {
      return std::ranges::any_of(lengths, [&](std::size_t l) {
        return PiecesPerBar(problem.options.bar, supply.lengths[l].mm, cut.mm) > 0;
      });
    });
  });
}

void SearchLengthSets(const Problem& problem, std::size_t supply, std::size_t most, const TakeLengthSet& take,
                      Pace& pace) {
  const LengthSet all = AllLengths(problem.supplies[supply]);
  const std::vector<std::size_t> groups = GroupsOf(problem, supply);
  Judge judge(problem, groups, pace);
  JudgedSet last;
  while (last.lengths.size() < std::min(most, all.size())) {
    JudgedSet next = BestWithOneMore(judge, last.lengths, all, kJudgedOfGrown, kImpossible);
    if (last.lengths.empty() && next.lengths.empty()) {
      next = judge.Cheapest({Cover(problem, groups)}, 1, kImpossible);
    }
    if (next.lengths.empty()) return;
    Exchange(judge, next, all);
    if (next.lengths.size() > most || (!last.lengths.empty() && !IsCheaper(next, last))) return;
    last = std::move(next);
    if (!take(last.lengths)) return;
  }
}

}  // namespace rbt::planning
