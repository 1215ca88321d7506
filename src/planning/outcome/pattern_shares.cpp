// SPDX-License-Identifier: MIT
#include "planning/outcome/pattern_shares.h"

#include <algorithm>
#include <map>

namespace rbt::planning {
namespace {

/// The rows of a cut, of which the first are served.
class RowQueue {
 public:
  explicit RowQueue(const OutcomeCut& cut) : rows_(cut.rows) {}

  std::vector<OutcomeShare> Take(std::int64_t pieces) {
    std::vector<OutcomeShare> taken;
    while (pieces > 0 && at_ < rows_.size()) {
      OutcomeShare& row = rows_[at_];
      OutcomeShare share = row;
      share.pieces = std::min(pieces, row.pieces);
      row.pieces -= share.pieces;
      pieces -= share.pieces;
      if (row.pieces == 0) ++at_;
      taken.push_back(std::move(share));
    }
    return taken;
  }

 private:
  std::vector<OutcomeShare> rows_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<std::vector<CutShares>> SharesOf(const OutcomeGroup& group) {
  std::map<int, RowQueue> queues;
  for (const OutcomeCut& cut : group.cuts) queues.emplace(cut.mm, RowQueue(cut));
  std::vector<std::vector<CutShares>> shares;
  shares.reserve(group.patterns.size());
  for (const OutcomePattern& of : group.patterns) {
    std::vector<CutShares>& pattern = shares.emplace_back();
    for (const auto& [cut, pieces] : of.pattern.pieces) {
      pattern.push_back({cut, queues.at(cut).Take(pieces * of.pattern.bars)});
    }
  }
  return shares;
}

int TrimOf(const BarRule& rule, const Pattern& pattern) {
  const bool whole = pattern.pieces.size() == 1 && pattern.pieces[0] == std::pair{pattern.stock_mm, 1};
  return whole ? 0 : rule.trim;
}

std::vector<std::int64_t> MarksOf(const BarRule& rule, const Pattern& pattern) {
  std::int64_t at = TrimOf(rule, pattern);
  std::vector<std::int64_t> marks;
  for (const auto& [cut, pieces] : pattern.pieces) {
    for (int piece = 0; piece < pieces; ++piece) {
      at += (marks.empty() ? 0 : rule.kerf) + cut;
      marks.push_back(at);
    }
  }
  return marks;
}

}  // namespace rbt::planning
