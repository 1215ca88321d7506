// SPDX-License-Identifier: MIT
#include "planning/verify/group_check.h"

#include <algorithm>
#include <limits>

namespace rbt::planning {
namespace {

/// Bars of one length that are tried beside those of another.
constexpr std::int64_t kMostBarsTried = 10'000;

}  // namespace

std::string NameOf(const Problem& problem, const Group& group) {
  const BarSteel& steel = problem.supplies[group.supply].steel;
  return group.scope + " D" + std::to_string(steel.diameter) + " kind " + std::to_string(steel.kind) +
         (steel.hoop ? " hoop" : "");
}

GroupCheck::GroupCheck(const Problem& problem, std::size_t group, const GroupPlan& plan)
    : problem_(problem),
      group_(problem.groups[group]),
      supply_(problem.supplies[group_.supply]),
      plan_(plan) {}

std::vector<std::string> GroupCheck::Run() {
  for (const Pattern& pattern : plan_.patterns) CheckPattern(pattern);
  CheckOrder();
  CheckCounts();
  CheckPromises();
  return std::move(faults_);
}

void GroupCheck::Report(const std::string& what) {
  faults_.push_back(NameOf(problem_, group_) + ": " + what);
}

const StockLength* GroupCheck::Length(int mm) const {
  for (const StockLength& length : supply_.lengths) {
    if (length.mm == mm) return &length;
  }
  return nullptr;
}

void GroupCheck::CheckPattern(const Pattern& pattern) {
  const std::string bar = (pattern.rest ? "rest bar " : "bar ") + std::to_string(pattern.stock_mm);
  if (pattern.bars < 1) Report(bar + " is cut " + std::to_string(pattern.bars) + " times");
  if (pattern.rest) {
    const auto same = [&](const RestBar& rest) { return rest.mm == pattern.stock_mm; };
    if (supply_.steel.hoop) Report(bar + " is cut for hoops");
    if (std::ranges::none_of(supply_.rests, same)) Report(bar + " is not there");
    rests_[pattern.stock_mm] += pattern.bars;
  } else {
    if (Length(pattern.stock_mm) == nullptr) Report(bar + " may not be bought");
    bought_[pattern.stock_mm] += pattern.bars;
  }
  CheckPieces(pattern);
}

void GroupCheck::CheckPieces(const Pattern& pattern) {
  const std::string bar = "bar " + std::to_string(pattern.stock_mm);
  const BarRule& rule = problem_.options.bar;
  long long pieces = 0;
  long long laid = 0;
  int before = std::numeric_limits<int>::max();
  for (const auto& [cut, count] : pattern.pieces) {
    if (count < 1) Report(bar + " carries " + std::to_string(count) + " pieces of " + std::to_string(cut));
    if (cut >= before) Report(bar + ": its pieces do not fall");
    before = cut;
    pieces += count;
    laid += static_cast<long long>(cut) * count;
    cut_[cut] += count * pattern.bars;
  }
  if (pieces == 0) Report(bar + " is empty");
  const long long used = laid + rule.kerf * (pieces - 1);
  const bool whole = pieces == 1 && laid == pattern.stock_mm;
  if (!whole && used > static_cast<long long>(pattern.stock_mm) - rule.trim + rule.plus) {
    Report(bar + " is overfilled: " + std::to_string(used) + " used");
  }
  const int mix = problem_.options.mix;
  if (mix > 0 && static_cast<int>(pattern.pieces.size()) > mix) {
    Report(bar + " mixes " + std::to_string(pattern.pieces.size()) + " lengths");
  }
}

void GroupCheck::CheckOrder() {
  for (std::size_t p = 1; p < plan_.patterns.size(); ++p) {
    const Pattern& a = plan_.patterns[p - 1];
    const Pattern& b = plan_.patterns[p];
    bool ordered = a.rest && !b.rest;
    if (a.rest == b.rest)
      ordered = a.stock_mm > b.stock_mm || (a.stock_mm == b.stock_mm && a.pieces > b.pieces);
    if (!ordered) Report("pattern " + std::to_string(p + 1) + " is out of order");
  }
}

void GroupCheck::CheckCounts() {
  for (const Cut& cut : group_.cuts) {
    const std::int64_t done = cut_[cut.mm];
    if (done != cut.count) {
      Report("piece " + std::to_string(cut.mm) + " is cut " + std::to_string(done) + " times, not " +
             std::to_string(cut.count));
    }
    cut_.erase(cut.mm);
  }
  for (const auto& [mm, count] : cut_) Report("piece " + std::to_string(mm) + " is not asked for");
}

std::int64_t GroupCheck::PiecesOn(int stock, int cut) const {
  const BarRule& rule = problem_.options.bar;
  std::int64_t pieces = 0;
  while (cut * (pieces + 1) + rule.kerf * pieces <=
         static_cast<std::int64_t>(stock) - rule.trim + rule.plus) {
    ++pieces;
  }
  return pieces == 0 && cut == stock ? 1 : pieces;
}

GroupCheck::Alone GroupCheck::CutAlone(int stock, int cut, std::int64_t pieces) const {
  const std::int64_t per_bar = PiecesOn(stock, cut);
  if (per_bar == 0) return {pieces, false};
  return {(pieces + per_bar - 1) / per_bar, true};
}

std::int64_t GroupCheck::PerRowCost(const Cut& cut) const {
  std::int64_t best = -1;
  for (const StockLength& length : supply_.lengths) {
    const Alone alone = CutAlone(length.mm, cut.mm, cut.count);
    if (alone.fits && (best < 0 || alone.bars * length.cost < best)) best = alone.bars * length.cost;
  }
  return best;
}

std::int64_t GroupCheck::LightestOfTwo(const Cut& cut, std::int64_t most) const {
  std::int64_t lightest = std::numeric_limits<std::int64_t>::max();
  for (const StockLength& first : supply_.lengths) {
    const Alone all = CutAlone(first.mm, cut.mm, cut.count);
    if (!all.fits) continue;
    const std::int64_t per_bar = PiecesOn(first.mm, cut.mm);
    for (const StockLength& second : supply_.lengths) {
      for (std::int64_t bars = 0; bars <= std::min(cut.count / per_bar, kMostBarsTried); ++bars) {
        const Alone rest = CutAlone(second.mm, cut.mm, cut.count - bars * per_bar);
        if (!rest.fits || bars * first.cost + rest.bars * second.cost > most) continue;
        lightest = std::min(lightest, bars * first.table_weight + rest.bars * second.table_weight);
      }
    }
  }
  return lightest;
}

bool GroupCheck::RowsCanWeigh(std::int64_t table) const {
  std::int64_t lightest = 0;
  for (const Cut& cut : group_.cuts) lightest += LightestOfTwo(cut, PerRowCost(cut));
  return lightest <= table;
}

void GroupCheck::CheckPromises() {
  const auto has_lot = [](const StockLength& length) { return length.least_lot > 0; };
  if (problem_.options.max_lengths > 0 || std::ranges::any_of(supply_.lengths, has_lot)) return;
  std::int64_t cost = 0;
  std::int64_t steel = 0;
  std::int64_t table = 0;
  for (const auto& [mm, bars] : bought_) {
    const StockLength* length = Length(mm);
    if (length == nullptr) return;  // reported already
    cost += length->cost * bars;
    steel += mm * bars;
    table += length->table_weight * bars;
  }
  std::int64_t per_row_cost = 0;
  for (const Cut& cut : group_.cuts) per_row_cost += PerRowCost(cut);
  if (cost > per_row_cost) Report("it costs more than the per-row rule");
  std::int64_t schedule_cost = 0;
  std::int64_t schedule_steel = 0;
  std::int64_t schedule_table = 0;
  for (const Cut& cut : group_.cuts) {
    for (const PlannedRow& row : cut.rows) {
      const StockLength* own = Length(row.own_mm);
      if (own == nullptr) return;  // no promise: the schedule's length may not be bought
      const Alone alone = CutAlone(own->mm, cut.mm, row.pieces);
      if (!alone.fits) return;  // nor where the piece does not come out of it
      const std::int64_t bars = std::max(row.own_bars, alone.bars);
      schedule_cost += own->cost * bars;
      schedule_steel += own->mm * bars;
      schedule_table += own->table_weight * bars;
    }
  }
  if (problem_.options.aim == Aim::money) {
    if (cost > schedule_cost) Report("it costs more than the schedule");
    return;
  }
  if (steel > schedule_steel) Report("it buys more steel than the schedule");
  if (table <= schedule_table) return;
  // Where the schedule costs more than the per-row rule there may be no plan below both.
  if (schedule_cost <= per_row_cost || RowsCanWeigh(schedule_table)) {
    Report("it weighs more than the schedule");
  }
}

}  // namespace rbt::planning
