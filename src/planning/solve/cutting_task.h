// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "planning/problem/problem.h"
#include "planning/solve/by_index.h"

namespace rbt::planning {

/// A length to cut so many times. Every piece takes its cut and a kerf out of a bar that is a kerf longer, so
/// that pieces fit when their weights fit the capacity.
struct Item {
  int cut_mm = 0;
  int weight = 0;
  std::int64_t demand = 0;
};

/// A bar to cut from.
struct Bar {
  int mm = 0;
  int capacity = 0;             ///< in weights of items, at least 0
  Micros cost = 0;              ///< 0 for a rest bar
  Milligrams table_weight = 0;  ///< of a bought bar
  bool rest = false;
  std::int64_t available = 0;  ///< of a rest bar
  int whole_item = -1;  ///< the item as long as the bar, where only the rule of the whole bar lets it in
};

/// Pieces on a bar: (index of an item, how many), by rising index.
using Content = std::vector<std::pair<int, int>>;

struct CutBars {
  int bar = 0;  ///< index of a bar
  Content content;
  std::int64_t count = 0;
};

using Cutting = std::vector<CutBars>;

/// One group as the solver sees it.
struct CuttingTask {
  ByIndex<Item> items;  ///< by falling cut
  ByIndex<Bar> bars;    ///< rest bars first, then bars to buy, each by rising length
  int mix = 0;          ///< at most so many items on a bar; 0: any number

  /// The number of pieces of an item that fit a bar, demand aside.
  int MostPieces(int item, int bar) const;
  bool Fits(int item, int bar) const { return MostPieces(item, bar) > 0; }
  int LargestCapacity() const;
};

/// Indices of lengths of a supply, rising.
using LengthSet = std::vector<std::size_t>;
LengthSet AllLengths(const Supply& supply);
/// How many there are of each rest bar of a supply.
using RestCounts = std::vector<std::int64_t>;
RestCounts AllRests(const Supply& supply);

/// The task of a group, with lengths that may be bought and what is there of the supply's rest bars.
CuttingTask MakeTask(const Problem& problem, const Group& group, const LengthSet& lengths,
                     const RestCounts& rests);
/// With all lengths and all rests.
CuttingTask MakeTask(const Problem& problem, const Group& group);

ByIndex<std::int64_t> DemandOf(const CuttingTask& task);
Micros CostOf(const CuttingTask& task, const Cutting& cutting);

}  // namespace rbt::planning
