// SPDX-License-Identifier: MIT
#include "planning/solve/spare_bar.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <utility>

#include "planning/problem/bar_rule.h"

namespace rbt::planning {
namespace {

/// A bar that is being filled, cut by cut.
struct OpenBar {
  int mm = 0;
  int room = 0;      ///< for the next piece
  int last_cut = 0;  ///< mm; 0: it carries nothing
  int kinds = 0;     ///< different cuts on it

  friend auto operator<=>(const OpenBar&, const OpenBar&) = default;
};

/// Lays pieces, equal ones side by side, onto bars in every way.
class Laying {
 public:
  Laying(const Problem& problem, const std::vector<int>& pieces)
      : rule_(problem.options.bar), mix_(problem.options.mix), pieces_(pieces) {}

  bool Fits(std::vector<OpenBar> bars) {
    bars_ = std::move(bars);
    return HaveRoom() && FitsFrom(0);
  }

 private:
  /// False where all the bars together are too short, which most are.
  bool HaveRoom() const {
    std::int64_t room = 0;
    for (const OpenBar& bar : bars_) room += std::max(bar.mm, bar.room) + rule_.kerf;
    for (const int piece : pieces_) room -= piece + rule_.kerf;
    return room >= 0;
  }

  bool FitsFrom(std::size_t piece) {
    if (piece == pieces_.size()) return true;
    std::set<OpenBar> tried;  // bars that stand alike take the piece alike
    for (OpenBar& bar : bars_) {
      if (!tried.insert(bar).second || !Takes(bar, pieces_[piece])) continue;
      const OpenBar before = bar;
      if (bar.last_cut != pieces_[piece]) ++bar.kinds;
      bar.last_cut = pieces_[piece];
      bar.room -= pieces_[piece] + rule_.kerf;
      if (FitsFrom(piece + 1)) return true;
      bar = before;
    }
    return false;
  }

  bool Takes(const OpenBar& bar, int cut) const {
    if (bar.last_cut == 0) return PiecesPerBar(rule_, bar.mm, cut) > 0;
    return cut <= bar.room && (cut == bar.last_cut || mix_ == 0 || bar.kinds < mix_);
  }

  const BarRule& rule_;
  const int mix_;
  const std::vector<int>& pieces_;
  std::vector<OpenBar> bars_;
};

}  // namespace

bool HasSpareBar(const Problem& problem, const std::vector<Pattern>& patterns) {
  const BarRule& rule = problem.options.bar;
  std::vector<int> pieces;
  std::vector<OpenBar> bars;
  std::set<int> bought;
  for (const Pattern& pattern : patterns) {
    const OpenBar empty{pattern.stock_mm, pattern.stock_mm - rule.trim + rule.plus};
    bars.insert(bars.end(), static_cast<std::size_t>(pattern.bars), empty);
    for (const auto& [cut, count] : pattern.pieces) {
      pieces.insert(pieces.end(), static_cast<std::size_t>(count * pattern.bars), cut);
    }
    if (!pattern.rest) bought.insert(pattern.stock_mm);
  }
  std::ranges::sort(pieces, std::greater());
  return std::ranges::any_of(bought, [&](int mm) {
    // A rest bar that is as long does as well: what counts is how many are left.
    std::vector<OpenBar> others = bars;
    others.erase(std::ranges::find(others, mm, &OpenBar::mm));
    return Laying(problem, pieces).Fits(std::move(others));
  });
}

}  // namespace rbt::planning
