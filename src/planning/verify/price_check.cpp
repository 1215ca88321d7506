// SPDX-License-Identifier: MIT
#include "planning/verify/price_check.h"

#include <algorithm>
#include <numeric>

#include "planning/verify/group_check.h"
#include "planning/verify/verify.h"

namespace rbt::planning {
namespace {

/// A piece by its room on a bar: its cut and a kerf, out of a bar that is a kerf longer.
struct Priced {
  int mm = 0;
  std::int64_t room = 0;
  std::int64_t count = 0;
  std::int64_t price = 0;
};

/// The most that pieces of the given room are worth, none more often than its count: for every item a window
/// of as many multiples of its room slides over the worths without it.
std::vector<std::int64_t> MostWorth(const std::vector<Priced>& pieces, std::int64_t largest) {
  std::vector<std::int64_t> worth(static_cast<std::size_t>(largest) + 1, 0);
  struct Bare {
    std::int64_t pieces;  ///< so far
    std::int64_t worth;   ///< as if none of them were taken
  };
  std::vector<Bare> window;
  for (const Priced& piece : pieces) {
    if (piece.price == 0) continue;
    for (std::int64_t offset = 0; offset < std::min(piece.room, largest + 1); ++offset) {
      window.clear();
      std::size_t first = 0;
      for (std::int64_t n = 0; offset + n * piece.room <= largest; ++n) {
        std::int64_t& at = worth[static_cast<std::size_t>(offset + n * piece.room)];
        const std::int64_t bare = at - n * piece.price;
        while (window.size() > first && window.back().worth <= bare) window.pop_back();
        window.push_back({n, bare});
        while (window[first].pieces < n - piece.count) ++first;
        at = window[first].worth + n * piece.price;
      }
    }
  }
  return worth;
}

class PriceCheck {
 public:
  PriceCheck(const Problem& problem, const Group& group, const GroupPlan& plan)
      : problem_(problem), group_(group), supply_(problem.supplies[group.supply]), plan_(plan) {}

  std::vector<std::string> Run(std::int64_t cost) {
    if (!ReadPrices()) return std::move(faults_);
    if (plan_.bound > cost) Report("its bound is above its cost");
    if (plan_.bound < 0) Report("its bound is below 0");
    const std::int64_t cells = Largest() * static_cast<std::int64_t>(pieces_.size());
    if (cells <= kLargestTable) CheckWorths();
    return std::move(faults_);
  }

 private:
  void Report(const std::string& what) { faults_.push_back(NameOf(problem_, group_) + ": " + what); }

  bool ReadPrices() {
    if (plan_.prices.size() != group_.cuts.size()) {
      Report("it has " + std::to_string(plan_.prices.size()) + " prices for " +
             std::to_string(group_.cuts.size()) + " cuts");
      return false;
    }
    for (std::size_t p = 0; p < plan_.prices.size(); ++p) {
      const Cut& cut = group_.cuts[group_.cuts.size() - 1 - p];
      const Price& price = plan_.prices[p];
      if (price.cut_mm != cut.mm)
        Report("price " + std::to_string(p + 1) + " is not that of " + std::to_string(cut.mm));
      if (price.price < 0) Report("the price of " + std::to_string(cut.mm) + " is below 0");
      pieces_.push_back({cut.mm, std::int64_t{cut.mm} + problem_.options.bar.kerf, cut.count, price.price});
    }
    for (const Priced& piece : pieces_) measure_ = std::gcd(measure_, piece.room);
    for (Priced& piece : pieces_) piece.room /= measure_;
    return faults_.empty();
  }

  std::int64_t RoomOf(int mm) const {
    const BarRule& rule = problem_.options.bar;
    return std::max<std::int64_t>(0, std::int64_t{mm} - rule.trim + rule.plus + rule.kerf) / measure_;
  }

  std::int64_t Largest() const {
    std::int64_t largest = 0;
    for (const StockLength& length : supply_.lengths) largest = std::max(largest, RoomOf(length.mm));
    for (const RestBar& rest : supply_.rests) largest = std::max(largest, RoomOf(rest.mm));
    return largest;
  }

  /// The most that a content of a bar is worth; a piece as long as the bar always fits.
  std::int64_t WorthOf(const std::vector<std::int64_t>& worths, int mm) const {
    std::int64_t worth = worths[static_cast<std::size_t>(RoomOf(mm))];
    for (const Priced& piece : pieces_) {
      if (piece.mm == mm) worth = std::max(worth, piece.price);
    }
    return worth;
  }

  void CheckWorths() {
    const std::vector<std::int64_t> worths = MostWorth(pieces_, Largest());
    for (const StockLength& length : supply_.lengths) {
      if (WorthOf(worths, length.mm) > length.cost) {
        Report("a content of bar " + std::to_string(length.mm) + " is worth more than the bar costs");
      }
    }
    if (plan_.bound > RoundedUp(Proven(worths))) Report("its prices do not prove its bound");
  }

  /// What all pieces are worth less what the rest bars can carry of it, at least 0. A rest bar may be there
  /// so often that the product would overflow.
  std::int64_t Proven(const std::vector<std::int64_t>& worths) const {
    std::int64_t proven = 0;
    for (const Priced& piece : pieces_) proven += piece.count * piece.price;
    for (const RestBar& rest : supply_.rests) {
      std::int64_t carried = 0;
      const bool overflows = __builtin_mul_overflow(rest.count, WorthOf(worths, rest.mm), &carried);
      proven = overflows ? 0 : std::max<std::int64_t>(0, proven - carried);
    }
    return proven;
  }

  std::int64_t RoundedUp(std::int64_t proven) const {
    constexpr std::int64_t kUnit = 1'000'000;
    std::int64_t step = 0;
    for (const StockLength& length : supply_.lengths) {
      if (length.cost % kUnit != 0) return proven;
      step = std::gcd(step, length.cost);
    }
    return step == 0 ? proven : (proven + step - 1) / step * step;
  }

  const Problem& problem_;
  const Group& group_;
  const Supply& supply_;
  const GroupPlan& plan_;
  std::vector<Priced> pieces_;  ///< by rising cut
  std::int64_t measure_ = 0;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> CheckPrices(const Problem& problem, const Group& group, const GroupPlan& plan,
                                     std::int64_t cost) {
  return PriceCheck(problem, group, plan).Run(cost);
}

}  // namespace rbt::planning
