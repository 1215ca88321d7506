// SPDX-License-Identifier: MIT
#include "planning/solve/cutting_task.h"

#include <algorithm>
#include <numeric>

namespace rbt::planning {
namespace {

Bar MakeBar(int mm, const BarRule& rule, const std::vector<Item>& items) {
  Bar bar;
  bar.mm = mm;
  bar.capacity = mm - rule.trim + rule.plus + rule.kerf;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].cut_mm == mm && items[i].weight > bar.capacity) bar.whole_item = static_cast<int>(i);
  }
  return bar;
}

/// Weights in their greatest common measure: cuts in whole centimetres make every table ten times smaller.
void Shrink(CuttingTask& task) {
  int measure = 0;
  for (const Item& item : task.items) measure = std::gcd(measure, item.weight);
  for (Item& item : task.items) item.weight /= measure;
  for (Bar& bar : task.bars) bar.capacity = std::max(0, bar.capacity) / measure;
}

/// A limit that no bar can reach is none, nor one of as many items as there are.
void DropIdleMix(CuttingTask& task) {
  if (task.mix >= static_cast<int>(task.items.size())) task.mix = 0;
  const auto lightest = std::ranges::min_element(task.items, {}, &Item::weight);
  if (lightest != task.items.end() && task.mix >= task.LargestCapacity() / lightest->weight) task.mix = 0;
}

}  // namespace

int CuttingTask::MostPieces(int item, int bar) const {
  const Bar& from = bars[bar];
  if (from.whole_item == item) return 1;
  return from.capacity / items[item].weight;
}

int CuttingTask::LargestCapacity() const {
  int largest = 0;
  for (const Bar& bar : bars) largest = std::max(largest, bar.capacity);
  return largest;
}

LengthSet AllLengths(const Supply& supply) {
  LengthSet all(supply.lengths.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return all;
}

RestCounts AllRests(const Supply& supply) {
  RestCounts rests;
  for (const RestBar& rest : supply.rests) rests.push_back(rest.count);
  return rests;
}

CuttingTask MakeTask(const Problem& problem, const Group& group, const LengthSet& lengths,
                     const RestCounts& rests) {
  const Supply& supply = problem.supplies[group.supply];
  const BarRule& rule = problem.options.bar;
  CuttingTask task;
  task.mix = problem.options.mix;
  for (const Cut& cut : group.cuts) task.items.push_back({cut.mm, cut.mm + rule.kerf, cut.count});
  for (std::size_t r = 0; r < rests.size(); ++r) {
    if (rests[r] == 0) continue;
    Bar bar = MakeBar(supply.rests[r].mm, rule, task.items);
    bar.rest = true;
    bar.available = rests[r];
    task.bars.push_back(bar);
  }
  for (const std::size_t l : lengths) {
    Bar bar = MakeBar(supply.lengths[l].mm, rule, task.items);
    bar.cost = supply.lengths[l].cost;
    bar.table_weight = supply.lengths[l].table_weight;
    task.bars.push_back(bar);
  }
  Shrink(task);
  DropIdleMix(task);
  return task;
}

CuttingTask MakeTask(const Problem& problem, const Group& group) {
  const Supply& supply = problem.supplies[group.supply];
  return MakeTask(problem, group, AllLengths(supply), AllRests(supply));
}

ByIndex<std::int64_t> DemandOf(const CuttingTask& task) {
  ByIndex<std::int64_t> demand;
  for (const Item& item : task.items) demand.push_back(item.demand);
  return demand;
}

Micros CostOf(const CuttingTask& task, const Cutting& cutting) {
  Micros cost = 0;
  for (const CutBars& bars : cutting) cost += task.bars[bars.bar].cost * bars.count;
  return cost;
}

}  // namespace rbt::planning
