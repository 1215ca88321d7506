// SPDX-License-Identifier: MIT
#include "planning/solve/price_proof.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "planning/solve/exact_ratio.h"

namespace rbt::planning {
namespace {

constexpr Micros kWholeUnit = 1'000'000;

/// What the dearest content of every capacity is worth, none of an item more often than it is to be cut;
/// empty where it was stopped.
std::vector<Micros> DearestWorths(const CuttingTask& task, ViewByIndex<const Micros> prices, Pace& pace) {
  const int capacity = task.LargestCapacity();
  ByIndex<Micros> worth(static_cast<std::size_t>(capacity) + 1, 0);
  ByIndex<Micros> next(worth);
  for (std::size_t i = 0; i < prices.size(); ++i) {
    const Item& item = task.items[i];
    auto most = static_cast<int>(std::min<std::int64_t>(item.demand, capacity / item.weight));
    // In bundles of 1, 2, 4, ... pieces and the rest, each taken or not.
    for (int pieces = 1; prices[i] > 0 && most > 0; pieces *= 2) {
      if (pace.StoppedAfter(capacity)) return {};
      const int bundle = std::min(pieces, most);
      most -= bundle;
      const int weight = item.weight * bundle;
      const Micros more = prices[i] * bundle;
      std::copy_n(worth.begin(), weight, next.begin());
      for (int c = weight; c <= capacity; ++c) next[c] = std::max(worth[c], worth[c - weight] + more);
      worth.swap(next);
    }
  }
  return worth;
}

Micros DearestOf(const Bar& bar, ViewByIndex<const Micros> worths, ViewByIndex<const Micros> prices) {
  const Micros whole = bar.whole_item >= 0 ? prices[bar.whole_item] : 0;
  return std::max(worths[bar.capacity], whole);
}

Micros BoundOf(const CuttingTask& task, ViewByIndex<const Micros> prices,
               ViewByIndex<const Micros> rest_worths) {
  Micros bound = 0;
  for (std::size_t i = 0; i < prices.size(); ++i) bound += prices[i] * task.items[i].demand;
  for (std::size_t b = 0; b < task.bars.size(); ++b) {
    if (!task.bars[b].rest || rest_worths[b] == 0) continue;
    // There may be far more rest bars than any group needs: what all of them are worth has no 64 bits then.
    if (task.bars[b].available > bound / rest_worths[b]) return 0;
    bound -= rest_worths[b] * task.bars[b].available;
  }
  return bound;
}

std::vector<Micros> RestWorths(const CuttingTask& task, ViewByIndex<const Micros> worths,
                               ViewByIndex<const Micros> prices) {
  std::vector<Micros> of;
  for (const Bar& bar : task.bars) of.push_back(bar.rest ? DearestOf(bar, worths, prices) : 0);
  return of;
}

}  // namespace

std::optional<PriceProof> ProveBound(const CuttingTask& task, std::span<const double> prices, Pace& pace) {
  PriceProof proof;
  for (const double price : prices) proof.prices.push_back(static_cast<Micros>(price * kWholeUnit));
  const std::vector<Micros> worths = DearestWorths(task, proof.prices, pace);
  if (worths.empty()) return std::nullopt;
  // The bar whose dearest content is worth most for what it costs.
  Micros cost = 1;
  Micros worth = 0;
  for (const Bar& bar : task.bars) {
    if (bar.rest) continue;
    const Micros dearest = DearestOf(bar, worths, proof.prices);
    if (!RatioIsLess(worth, cost, dearest, bar.cost)) continue;
    cost = bar.cost;
    worth = dearest;
  }
  if (worth == 0) return proof;
  for (Micros& price : proof.prices) price = Scaled(price, cost, worth);
  const bool has_rests = task.bars.front().rest;
  const std::vector<Micros> scaled = has_rests ? DearestWorths(task, proof.prices, pace) : worths;
  if (scaled.empty()) return std::nullopt;
  proof.bound = RoundUpBound(task, BoundOf(task, proof.prices, RestWorths(task, scaled, proof.prices)));
  return proof;
}

ByIndex<double> MaterialPrices(const CuttingTask& task) {
  double least = 0.0;
  for (const Bar& bar : task.bars) {
    if (bar.rest || bar.capacity == 0) continue;
    const double price = static_cast<double>(bar.cost) / kWholeUnit / bar.capacity;
    if (least == 0.0 || price < least) least = price;
  }
  ByIndex<double> prices;
  for (const Item& item : task.items) prices.push_back(item.weight * least);
  for (const Bar& bar : task.bars) {
    if (bar.whole_item < 0 || bar.rest) continue;
    double& price = prices[bar.whole_item];
    price = std::min(price, static_cast<double>(bar.cost) / kWholeUnit);
  }
  return prices;
}

PriceProof ProveMaterialBound(const CuttingTask& task) {
  // The bar that costs least for its capacity; no content weighs more than the capacity.
  const Bar* cheapest = nullptr;
  for (const Bar& bar : task.bars) {
    if (bar.rest || bar.capacity == 0) continue;
    if (cheapest == nullptr || RatioIsLess(bar.cost, bar.capacity, cheapest->cost, cheapest->capacity)) {
      cheapest = &bar;
    }
  }
  PriceProof proof;
  proof.prices.resize(task.items.size());
  if (cheapest == nullptr) return proof;
  for (std::size_t i = 0; i < task.items.size(); ++i) {
    proof.prices[i] = Scaled(task.items[i].weight, cheapest->cost, cheapest->capacity);
  }
  for (const Bar& bar : task.bars) {
    if (bar.whole_item < 0 || bar.rest) continue;
    proof.prices[bar.whole_item] = std::min(proof.prices[bar.whole_item], bar.cost);
  }
  std::vector<Micros> rest_worths;
  for (const Bar& bar : task.bars) {
    const Micros whole = bar.whole_item >= 0 ? proof.prices[bar.whole_item] : 0;
    rest_worths.push_back(std::max(whole, Scaled(bar.capacity, cheapest->cost, cheapest->capacity)));
  }
  proof.bound = RoundUpBound(task, BoundOf(task, proof.prices, rest_worths));
  return proof;
}

Micros RoundUpBound(const CuttingTask& task, Micros bound) {
  Micros common = 0;
  for (const Bar& bar : task.bars) common = std::gcd(common, bar.cost);
  if (common == 0 || common % kWholeUnit != 0) return bound;
  return (bound + common - 1) / common * common;
}

}  // namespace rbt::planning
