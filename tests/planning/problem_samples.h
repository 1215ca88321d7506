// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "planning/problem/bar_rule.h"
#include "planning/problem/problem.h"
#include "planning/problem/weights.h"

namespace rbt::planning::test {

/// What a bar costs for each millimetre.
inline constexpr Micros kMm = 1'000'000;

/// Lengths that may be bought for steel, without lots.
inline std::vector<StockLength> Lengths(int diameter, const std::vector<int>& mm) {
  std::vector<StockLength> lengths;
  for (const int length : mm) {
    StockLength& added = lengths.emplace_back();
    added.mm = length;
    added.table_weight = TableMilligrams(diameter, length);
    added.cost = std::int64_t{length} * kMm;
  }
  return lengths;
}

/// A problem of one group of D16 on the whole site; `pieces` are (cut, count), each a row without a stock
/// length of its own.
inline Problem OneGroup(const std::vector<std::pair<int, std::int64_t>>& pieces,
                        const std::vector<int>& lengths) {
  Problem problem;
  problem.supplies.push_back({{16, 1, false}, Lengths(16, lengths), {}});
  Group group{"site", 0, {}};
  std::map<int, Cut, std::greater<>> cuts;
  int line = 0;
  for (const auto& [mm, count] : pieces) {
    Cut& cut = cuts[mm];
    cut.mm = mm;
    cut.count += count;
    ++line;
    cut.rows.push_back({1, line, count, 0, 0, {}, static_cast<std::size_t>(line - 1)});
  }
  for (auto& [mm, cut] : cuts) group.cuts.push_back(std::move(cut));
  problem.groups.push_back(std::move(group));
  return problem;
}

/// Random numbers that are the same on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  int Between(int low, int high) {
    return low + static_cast<int>(engine_() % (static_cast<std::uint64_t>(high - low) + 1));
  }
  bool Chance(int percent) { return Between(1, 100) <= percent; }
  template <typename T>
  T Pick(const std::vector<T>& from) {
    return from[static_cast<std::size_t>(Between(0, static_cast<int>(from.size()) - 1))];
  }

 private:
  std::mt19937_64 engine_;
};

/// How large and of what kind random problems are.
struct RandomKind {
  int most_cuts = 12;
  int most_pieces = 30;
  int supplies = 2;
  int scopes = 2;
  bool limits = false;  ///< numbers of lengths and least lots
  bool rests = true;
  bool schedule = true;  ///< rows have stock lengths of their own
};

inline void AddRow(Random& random, const Problem& problem, const Supply& supply, Cut& cut, bool schedule,
                   std::size_t place) {
  PlannedRow row{1, static_cast<int>(place), random.Between(1, 20), 0, 0, {}, place};
  std::vector<int> holding;
  for (const StockLength& length : supply.lengths) {
    if (PiecesPerBar(problem.options.bar, length.mm, cut.mm) > 0) holding.push_back(length.mm);
  }
  if (schedule) {
    row.own_mm = random.Pick(holding);
    const int per_bar = PiecesPerBar(problem.options.bar, row.own_mm, cut.mm);
    row.own_bars = std::max<std::int64_t>(0, (row.pieces + per_bar - 1) / per_bar + random.Between(-1, 1));
  }
  cut.count += row.pieces;
  cut.rows.push_back(row);
}

inline Supply RandomSupply(Random& random, const Problem& problem, int index, const RandomKind& kind) {
  static const std::vector<int> kDiameters{10, 13, 16, 25, 51, 0};
  Supply supply;
  supply.steel = {kDiameters[static_cast<std::size_t>(index)], random.Between(1, 4), random.Chance(20)};
  std::vector<int> mm{12000};
  for (int column = 0; column < 17; ++column) {
    if (random.Chance(35)) mm.push_back(3500 + column * 500);
  }
  std::ranges::sort(mm);
  supply.lengths = Lengths(supply.steel.diameter, mm);
  for (StockLength& length : supply.lengths) {
    if (problem.options.aim == Aim::money || random.Chance(50)) {
      length.price = 80'000 + 100 * random.Between(0, 200);
    }
    if (problem.options.aim == Aim::money) length.cost = length.table_weight * *length.price / 1'000;
    if (kind.limits && random.Chance(50)) length.least_lot = length.table_weight * random.Between(1, 4);
  }
  if (kind.rests && !supply.steel.hoop && random.Chance(50)) {
    std::map<int, std::int64_t> rests;
    for (int rest = 0; rest < 3; ++rest) rests[random.Between(600, 9000)] = random.Between(1, 3);
    for (const auto& [length, count] : rests) supply.rests.push_back({length, count});
  }
  return supply;
}

/// A problem of random pieces, lengths and options.
inline Problem RandomProblem(std::uint64_t seed, const RandomKind& kind = {}) {
  Random random(seed);
  Problem problem;
  problem.options.bar.kerf = random.Chance(40) ? random.Between(1, 5) : 0;
  problem.options.bar.trim = random.Chance(40) ? random.Between(1, 30) : 0;
  problem.options.bar.plus = random.Chance(40) ? random.Between(1, 40) : 0;
  problem.options.mix = random.Chance(40) ? random.Between(1, 4) : 0;
  problem.options.aim = random.Chance(30) ? Aim::money : Aim::steel;
  if (kind.limits && random.Chance(70)) problem.options.max_lengths = random.Between(1, 4);
  for (int s = 0; s < kind.supplies; ++s) problem.supplies.push_back(RandomSupply(random, problem, s, kind));
  std::ranges::sort(problem.supplies, {}, &Supply::steel);
  std::size_t place = 0;
  for (int scope = 0; scope < kind.scopes; ++scope) {
    for (std::size_t s = 0; s < problem.supplies.size(); ++s) {
      Group group{std::to_string(scope), s, {}};
      std::map<int, Cut, std::greater<>> cuts;
      const int wanted = random.Between(1, kind.most_cuts);
      const int step = random.Pick<int>({1, 10, 50});
      for (int c = 0; c < wanted; ++c) {
        const int mm = random.Chance(10) ? random.Pick(problem.supplies[s].lengths).mm
                                         : random.Between(300 / step, 11900 / step) * step;
        if (PiecesPerBar(problem.options.bar, 12000, mm) == 0) continue;
        cuts[mm].mm = mm;
        AddRow(random, problem, problem.supplies[s], cuts[mm], kind.schedule, place++);
      }
      for (auto& [mm, cut] : cuts) group.cuts.push_back(std::move(cut));
      if (!group.cuts.empty()) problem.groups.push_back(std::move(group));
    }
  }
  return problem;
}

}  // namespace rbt::planning::test
