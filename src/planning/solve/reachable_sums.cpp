// SPDX-License-Identifier: MIT
#include "planning/solve/reachable_sums.h"

#include <algorithm>

namespace rbt::planning {
namespace {

/// About what a row takes for each of its words: shifts for 1, 2, 4, ... pieces.
constexpr std::int64_t kStepsOfWord = 4;

}  // namespace

ReachableSums::ReachableSums(const CuttingTask& task, const ByIndex<std::int64_t>& left, Pace& pace)
    : task_(task),
      left_(left),
      pace_(pace),
      items_(static_cast<int>(task.items.size())),
      largest_(std::max(0, task.LargestCapacity())),
      kinds_(task.mix),
      words_(WordsFor(largest_)),
      rows_((task.items.size() + 1) * static_cast<std::size_t>(kinds_ + 1) * words_),
      led_(words_),
      scratch_(words_) {
  for (int kinds = 0; kinds <= kinds_; ++kinds) Row(items_, kinds)[0] = 1;
  Renew(0, items_ - 1);
}

int ReachableSums::Most(int item) const {
  return static_cast<int>(std::min<std::int64_t>(left_[item], largest_ / task_.items[item].weight));
}

Words ReachableSums::Row(int item, int kinds) {
  return Words(rows_).subspan(static_cast<std::size_t>(item * (kinds_ + 1) + kinds) * words_, words_);
}

ConstWords ReachableSums::Row(int item, int kinds) const {
  return ConstWords(rows_).subspan(static_cast<std::size_t>(item * (kinds_ + 1) + kinds) * words_, words_);
}

void ReachableSums::WithCopies(Words to, ConstWords from, int weight, int copies) const {
  std::ranges::fill(to, 0);
  if (copies == 0) return;
  OrShifted(to, from, weight);
  for (int have = 1; have < copies;) {
    const int more = std::min(have, copies - have);
    OrShifted(to, to, more * weight);
    have += more;
  }
}

void ReachableSums::Renew(int first, int last) {
  const int lowest_kinds = kinds_ == 0 ? 0 : 1;
  for (int item = last; item >= first; --item) {
    for (int kinds = lowest_kinds; kinds <= kinds_; ++kinds) {
      if (pace_.StoppedAfter(kStepsOfWord * static_cast<std::int64_t>(words_))) return;
      const ConstWords behind = Row(item + 1, kinds);
      const ConstWords fewer = Row(item + 1, kinds_ == 0 ? 0 : kinds - 1);
      WithCopies(scratch_, fewer, task_.items[item].weight, Most(item));
      const Words row = Row(item, kinds);
      for (std::size_t w = 0; w < words_; ++w) row[w] = behind[w] | scratch_[w];
    }
    if (kinds_ != 0) Row(item, 0)[0] = 1;
  }
}

void ReachableSums::LeadWith(int item) {
  lead_ = item;
  WithCopies(led_, Row(item + 1, std::max(0, kinds_ - 1)), task_.items[item].weight, Most(item));
}

int ReachableSums::Best(int capacity) const {
  return std::max(0, HighestBit(led_, 1, std::min(capacity, largest_)));
}

Content ReachableSums::ContentOf(int sum) const {
  Content content;
  int kinds = kinds_;
  for (int item = lead_; sum > 0; ++item) {
    const int weight = task_.items[item].weight;
    const int fewer = kinds_ == 0 ? 0 : kinds - 1;
    int pieces = std::min(Most(item), sum / weight);
    if (kinds_ != 0 && kinds == 0) pieces = 0;
    while (pieces > 0 && !TestBit(Row(item + 1, fewer), sum - pieces * weight)) --pieces;
    if (pieces == 0) continue;
    content.emplace_back(item, pieces);
    sum -= pieces * weight;
    kinds = fewer;
  }
  return content;
}

}  // namespace rbt::planning
