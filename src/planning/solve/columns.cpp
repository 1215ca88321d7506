// SPDX-License-Identifier: MIT
#include "planning/solve/columns.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "planning/solve/price_proof.h"

namespace rbt::planning {
namespace {

constexpr double kUnit = 1e6;        // micros in a cost unit
constexpr double kTieWeight = 1e-6;  // far below the cost of a bar, far above the tolerance of the program
constexpr double kPays = 1.0 + 1e-7;
constexpr double kLeastGain = 1e-6;  // in cost units, of a rest bar that is not scarce
constexpr int kMostLeading = 255;    // pieces of one item tried on a bar
/// Contents that are kept for each item. More make a pivot dear, fewer must be found again.
constexpr std::size_t kKeptPerItem = 6;

/// The largest amount of which all costs are multiples, in cost units; 0 when the costs are not whole.
double WholeCost(const CuttingTask& task) {
  Micros common = 0;
  for (const Bar& bar : task.bars) common = std::gcd(common, bar.cost);
  const Micros unit = static_cast<Micros>(kUnit);
  const Micros units = common / unit;
  return units * unit == common ? static_cast<double>(units) : 0.0;
}

std::vector<double> CostsOf(const CuttingTask& task) {
  double dearest = 0.0;
  double heaviest = 1.0;
  for (const Bar& bar : task.bars) {
    dearest = std::max(dearest, static_cast<double>(bar.cost) / kUnit);
    heaviest = std::max(heaviest, static_cast<double>(bar.table_weight));
  }
  std::vector<double> costs;
  for (const Bar& bar : task.bars) {
    const double tie = kTieWeight * dearest * static_cast<double>(bar.table_weight) / heaviest;
    costs.push_back(bar.rest ? 0.0 : static_cast<double>(bar.cost) / kUnit + tie);
  }
  return costs;
}

std::vector<double> NeedsOf(const CuttingTask& task) {
  std::vector<double> needs;
  for (const Item& item : task.items) needs.push_back(static_cast<double>(item.demand));
  // Rest bars stand first: at most so many are at least minus so many.
  for (const Bar& bar : task.bars) {
    if (bar.rest) needs.push_back(-static_cast<double>(bar.available));
  }
  return needs;
}

}  // namespace

bool HasRoomForColumns(const CuttingTask& task) {
  constexpr std::int64_t kMostCells = 150'000'000;
  const auto items = static_cast<std::int64_t>(task.items.size());
  return items * (task.LargestCapacity() + 1) <= kMostCells / std::max(1, task.mix - 1);
}

Columns::Columns(const CuttingTask& task, Pace& pace)
    : task_(task),
      pace_(pace),
      items_(static_cast<int>(task.items.size())),
      bars_(static_cast<int>(task.bars.size())),
      allowed_(task.bars.size(), true),
      cost_(CostsOf(task)),
      whole_cost_(WholeCost(task)),
      lp_(NeedsOf(task)),
      table_(MakeContentTable(task, task.mix - 1)),
      prices_(task.items.size()),
      scarcity_(task.bars.size()),
      dearest_(task.bars.size()) {
  for (const Item& item : task.items) left_.push_back(item.demand);
  for (const Bar& bar : task.bars) bars_left_.push_back(bar.available);
  AddSingles();
  BeginBound();
}

double Columns::RoundedUp(double bound) const {
  if (whole_cost_ == 0.0) return bound;
  // What arithmetic adds or loses must not turn a multiple into the next.
  return std::ceil(bound * (1.0 - 1e-9) / whole_cost_ - 1e-6) * whole_cost_;
}

bool Columns::Add(int bar, const Content& content) {
  if (!known_.emplace(bar, content).second) return false;
  std::vector<std::pair<int, double>> entries(content.begin(), content.end());
  if (task_.bars[bar].rest) entries.emplace_back(items_ + bar, -1.0);
  lp_.AddColumn(cost_[bar], entries);
  columns_.push_back({bar, content});
  return true;
}

/// What is left of each item by itself on the bar that is cheapest for it, so that there is always a way; and
/// the pieces that only a bar of their own length holds.
void Columns::AddSingles() {
  for (int item = 0; item < items_; ++item) {
    if (left_[item] == 0) continue;
    int best = -1;
    int best_pieces = 1;
    for (int bar = 0; bar < bars_; ++bar) {
      if (!allowed_[bar]) continue;
      if (task_.bars[bar].whole_item == item) Add(bar, {{item, 1}});
      const int pieces = static_cast<int>(std::min<std::int64_t>(task_.MostPieces(item, bar), left_[item]));
      if (task_.bars[bar].rest || pieces == 0) continue;
      if (best < 0 || cost_[bar] * best_pieces < cost_[best] * pieces) {
        best = bar;
        best_pieces = pieces;
      }
    }
    Add(best, {{item, best_pieces}});
  }
}

void Columns::Offer(const Cutting& cutting) {
  for (const CutBars& bars : cutting) Add(bars.bar, bars.content);
}

void Columns::SetLeft(const ByIndex<std::int64_t>& items, const ByIndex<std::int64_t>& bars) {
  left_ = items;
  bars_left_ = bars;
  for (int item = 0; item < items_; ++item) lp_.SetNeed(item, static_cast<double>(left_[item]));
  for (int bar = 0; bar < bars_ && task_.bars[bar].rest; ++bar) {
    lp_.SetNeed(items_ + bar, -static_cast<double>(bars_left_[bar]));
  }
  AllowColumns();
}

void Columns::AllowBars(const ByIndex<bool>& allowed) {
  allowed_ = allowed;
  AllowColumns();
}

void Columns::AllowColumns() {
  AddSingles();
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    lp_.Allow(static_cast<int>(c), allowed_[columns_[c].bar] && IsLeft(columns_[c].content));
  }
  BeginBound();
}

bool Columns::IsLeft(const Content& content) const {
  return std::ranges::all_of(content, [&](const auto& part) { return part.second <= left_[part.first]; });
}

bool Columns::Converge() {
  Round round = Round::found;
  while (round == Round::found) round = RunRound();
  return round == Round::none_found;
}

bool Columns::ConvergeToBound() {
  return Estimate(std::numeric_limits<int>::max(), std::numeric_limits<double>::infinity());
}

bool Columns::Estimate(int rounds, double enough) {
  Round round = Round::found;
  for (int done = 0; done < rounds && round == Round::found && bound_ <= enough; ++done) {
    round = RunRound();
    if (round != Round::failed && IsAtBound()) return true;
  }
  return round != Round::failed;
}

Columns::Round Columns::RunRound() {
  if (pace_.Stopped() || !lp_.Solve()) return Round::failed;
  pace_.Spend(lp_.Steps());
  ReadPrices();
  Purge();
  if (!table_->Fill(prices_, left_, pace_)) return Round::failed;
  pace_.Spend(table_->Steps());
  const int added = AddPayingColumns();
  UpdateBound();
  return added > 0 ? Round::found : Round::none_found;
}

bool Columns::IsAtBound() const { return RoundedUp(bound_) * (1.0 + kTieWeight) >= lp_.Cost() - kLeastGain; }

void Columns::Purge() {
  const std::size_t most = kKeptPerItem * static_cast<std::size_t>(items_);
  if (columns_.size() <= most) return;
  const std::vector<int> gone = lp_.DropDearest(most / 2);
  std::size_t kept = 0;
  std::size_t next = 0;
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    if (next < gone.size() && gone[next] == static_cast<int>(c)) {
      known_.erase({columns_[c].bar, columns_[c].content});
      ++next;
    } else {
      if (kept != c) columns_[kept] = std::move(columns_[c]);
      ++kept;
    }
  }
  columns_.resize(kept);
}

void Columns::ReadPrices() {
  const ViewByIndex<const double> duals = lp_.Prices();
  for (int item = 0; item < items_; ++item)
    prices_[item] = left_[item] == 0 ? 0.0 : std::max(0.0, duals[item]);
  for (int bar = 0; bar < bars_ && task_.bars[bar].rest; ++bar) {
    scarcity_[bar] = bars_left_[bar] == 0 ? 0.0 : std::max(0.0, duals[items_ + bar]);
  }
}

void Columns::Keep(const Lead& lead) {
  if (lead.worth > dearest_[lead.bar].worth) dearest_[lead.bar] = lead;
}

Columns::Lead Columns::BestWith(int item) {
  Lead best;
  double best_ratio = 0.0;
  const int weight = task_.items[item].weight;
  const int most = task_.mix == 0 ? 1 : static_cast<int>(std::min<std::int64_t>(left_[item], kMostLeading));
  for (int bar = 0; bar < bars_; ++bar) {
    if (!allowed_[bar]) continue;
    const Bar& of = task_.bars[bar];
    for (int pieces = 1; pieces <= most && pieces * weight <= of.capacity; ++pieces) {
      const double worth = pieces * prices_[item] + table_->Worth(of.capacity - pieces * weight);
      const Lead lead{bar, item, pieces, worth};
      if (task_.mix != 0) Keep(lead);
      if (of.rest || worth <= best_ratio * cost_[bar]) continue;
      best_ratio = worth / cost_[bar];
      best = lead;
    }
  }
  return best;
}

Content Columns::ContentOf(const Lead& lead) const {
  const int capacity = task_.bars[lead.bar].capacity;
  if (lead.item < 0) return table_->ContentAt(capacity);
  Content content = table_->ContentAt(capacity - lead.pieces * task_.items[lead.item].weight);
  const auto at = std::ranges::lower_bound(content, std::pair{lead.item, 0});
  if (at != content.end() && at->first == lead.item) {
    at->second += lead.pieces;
  } else {
    content.insert(at, {lead.item, lead.pieces});
  }
  return content;
}

bool Columns::AddIfItPays(const Lead& lead) {
  if (lead.bar < 0 || !allowed_[lead.bar] || (task_.bars[lead.bar].rest && bars_left_[lead.bar] == 0))
    return false;
  const Content content = ContentOf(lead);
  if (content.empty() || !IsLeft(content)) return false;
  double worth = 0.0;
  for (const auto& [item, pieces] : content) worth += prices_[item] * pieces;
  const double cost = task_.bars[lead.bar].rest ? scarcity_[lead.bar] + kLeastGain : cost_[lead.bar];
  return worth > cost * kPays && Add(lead.bar, content);
}

int Columns::AddPayingColumns() {
  int added = 0;
  for (int bar = 0; bar < bars_; ++bar) {
    dearest_[bar] = {bar, -1, 0, task_.mix == 0 ? table_->Worth(task_.bars[bar].capacity) : 0.0};
  }
  for (int item = 0; item < items_; ++item) {
    if (left_[item] > 0 && AddIfItPays(BestWith(item))) ++added;
  }
  for (const Lead& lead : dearest_) {
    if (AddIfItPays(lead)) ++added;
  }
  return added;
}

/// The material itself is the first bound.
void Columns::BeginBound() {
  prices_ = MaterialPrices(task_);
  for (int item = 0; item < items_; ++item) {
    if (left_[item] == 0) prices_[item] = 0.0;
  }
  double dearest = 0.0;  // by weight
  for (int item = 0; item < items_; ++item) {
    dearest = std::max(dearest, prices_[item] / task_.items[item].weight);
  }
  for (int bar = 0; bar < bars_; ++bar) dearest_[bar] = {bar, -1, 0, task_.bars[bar].capacity * dearest};
  bound_ = 0.0;
  bound_prices_.assign(task_.items.size(), 0.0);
  UpdateBound();
}

/// By the prices divided by the greatest overpayment no content is worth more than its bar costs.
void Columns::UpdateBound() {
  double overpaid = 0.0;
  double worth = 0.0;
  for (int bar = 0; bar < bars_; ++bar) {
    if (!allowed_[bar]) continue;
    const Bar& of = task_.bars[bar];
    const double whole = of.whole_item >= 0 ? prices_[of.whole_item] : 0.0;
    const double dearest = std::max(dearest_[bar].worth, whole);
    if (of.rest) {
      worth -= static_cast<double>(bars_left_[bar]) * dearest;
    } else {
      overpaid = std::max(overpaid, dearest * kUnit / static_cast<double>(of.cost));
    }
  }
  for (int item = 0; item < items_; ++item) worth += prices_[item] * static_cast<double>(left_[item]);
  if (overpaid <= 0.0 || worth / overpaid <= bound_) return;
  bound_ = worth / overpaid;
  for (int item = 0; item < items_; ++item) bound_prices_[item] = prices_[item] / overpaid;
}

}  // namespace rbt::planning
